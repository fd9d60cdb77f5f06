// Branches that are not kept, and numbered names.
#include "assembly/components/sim_rep_rules.h"

namespace qm {
namespace {

constexpr int kMostNames = 1000;

class Branches {
 public:
  explicit Branches(const Levels& levels) : levels_(levels) {}

  // As deep as paths of the host are long.
  void Walk(const ComponentTree& kept, int level) {
    if (kept.is_whole || level == kNoLevel) return;
    for (const LevelComponent& component : levels_[static_cast<size_t>(level)]) {
      const auto branch = kept.below.find(component.id);
      if (branch == kept.below.end()) {
        left_out_.push_back({path_, component.id});
        continue;
      }
      path_.push_back(component.id);
      Walk(branch->second, component.level);
      path_.pop_back();
    }
  }

  std::vector<LeftOutComponent> Take() { return std::move(left_out_); }

 private:
  const Levels& levels_;
  std::vector<int> path_;
  std::vector<LeftOutComponent> left_out_;
};

}  // namespace

std::string IdPathText(const LeftOutComponent& component) {
  std::string text;
  for (const int id : component.path) text += std::to_string(id) + "/";
  return text + std::to_string(component.id);
}

std::vector<LeftOutComponent> ComponentsToLeaveOut(const ComponentTree& kept,
                                                   const Levels& levels) {
  Branches branches(levels);
  branches.Walk(kept, 0);
  return branches.Take();
}

std::optional<std::wstring> FreeRepName(
    const std::function<bool(const std::wstring& name)>& is_taken) {
  for (int number = 1; number <= kMostNames; ++number) {
    std::wstring name = L"QM_REP_" + std::to_wstring(number);
    if (!is_taken(name)) return name;
  }
  return std::nullopt;
}

}  // namespace qm
