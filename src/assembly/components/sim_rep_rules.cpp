// Branches that are not kept, and numbered names.
#include "assembly/components/sim_rep_rules.h"

namespace qm {
namespace {

constexpr int kMostNames = 1000;

class Branches {
 public:
  explicit Branches(const Levels& levels) : levels_(levels) {}

  void Walk(const ComponentTree& top) {
    Enter(top, 0);
    while (!levels_open_.empty()) {
      Level& level = levels_open_.back();
      if (level.next == level.components->size()) {
        levels_open_.pop_back();
        if (!path_.empty()) path_.pop_back();
        continue;
      }
      const LevelComponent& component = (*level.components)[level.next++];
      const auto branch = level.kept->below.find(component.id);
      if (branch == level.kept->below.end()) {
        left_out_.push_back({path_, component.id});
      } else if (Enter(branch->second, component.level)) {
        path_.push_back(component.id);
      }
    }
  }

  std::vector<LeftOutComponent> Take() { return std::move(left_out_); }

 private:
  struct Level {
    const ComponentTree* kept;
    const std::vector<LevelComponent>* components;
    size_t next;
  };

  // False where nothing below is left out.
  bool Enter(const ComponentTree& kept, int level) {
    if (kept.is_whole || level == kNoLevel) return false;
    levels_open_.push_back({&kept, &levels_[static_cast<size_t>(level)], 0});
    return true;
  }

  const Levels& levels_;
  std::vector<Level> levels_open_;
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
  branches.Walk(kept);
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
