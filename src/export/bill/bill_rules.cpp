// Counting and walking of the assembly structure.
#include "export/bill/bill_rules.h"

#include <algorithm>
#include <limits>
#include <string>
#include <unordered_map>

namespace qm {
namespace {

constexpr wchar_t kAllLevelsLabel[] = L"全部";
constexpr uint32_t kNone = std::numeric_limits<uint32_t>::max();

// For each model the first one of the same key. A model without a name shares none.
template <typename KeyOf>
std::vector<uint32_t> FirstOfEach(const std::vector<BillModel>& models, KeyOf key_of) {
  std::unordered_map<decltype(key_of(models.front())), uint32_t> seen;
  std::vector<uint32_t> first;
  first.reserve(models.size());
  for (const BillModel& model : models) {
    const auto own = static_cast<uint32_t>(first.size());
    first.push_back(model.name.empty() ? own : seen.try_emplace(key_of(model), own).first->second);
  }
  return first;
}

std::vector<uint32_t> FirstOfEachNameAndType(const std::vector<BillModel>& models) {
  // No name holds a zero.
  return FirstOfEach(models, [](const BillModel& model) {
    return model.name + L'\0' + std::to_wstring(model.type);
  });
}

std::vector<uint32_t> FirstOfEachName(const std::vector<BillModel>& models) {
  return FirstOfEach(models,
                     [](const BillModel& model) -> std::wstring_view { return model.name; });
}

class LevelWalk {
 public:
  LevelWalk(const BillStructure& structure, int depth)
      : models_(structure.models),
        depth_(depth == kAllLevels ? std::numeric_limits<int>::max() : depth),
        first_(FirstOfEachName(models_)),
        entries_(models_.size()),
        entry_of_(models_.size(), kNone),
        entered_(models_.size(), false) {}

  std::vector<BillRow> Rows() {
    std::vector<BillRow> rows;
    if (models_.empty() || depth_ < 1) return rows;
    Enter(0);
    while (!path_.empty()) {
      Position& position = path_.back();
      const std::vector<Entry>& entries = entries_[position.assembly];
      if (position.next == entries.size()) {
        entered_[position.assembly] = false;
        path_.pop_back();
        continue;
      }
      const Entry entry = entries[position.next++];
      const int level = static_cast<int>(path_.size());
      rows.push_back({entry.model, entry.quantity, level, static_cast<int64_t>(position.next)});
      // An assembly inside itself would never end.
      if (level < depth_ && !entered_[entry.inside]) Enter(entry.inside);
    }
    return rows;
  }

 private:
  struct Entry {
    uint32_t model;
    uint32_t inside;  // whose components stand below it
    int64_t quantity;
  };
  struct Position {
    uint32_t assembly;
    size_t next;
  };

  void Enter(uint32_t model) {
    if (models_[model].components.empty()) return;
    if (entries_[model].empty()) Merge(model);
    entered_[model] = true;
    path_.push_back({model, 0});
  }

  // The components of one assembly with repeated names counted; done once however often it occurs.
  // The name alone decides among siblings: a part and an assembly of one name are one entry, which
  // is shown as the first of them and has the assembly's components below it.
  void Merge(uint32_t assembly) {
    std::vector<Entry>& entries = entries_[assembly];
    for (const uint32_t component : models_[assembly].components) {
      uint32_t& place = entry_of_[first_[component]];
      if (place == kNone) {
        place = static_cast<uint32_t>(entries.size());
        entries.push_back({component, component, 0});
      }
      Entry& entry = entries[place];
      ++entry.quantity;
      if (models_[entry.inside].components.empty()) entry.inside = component;
    }
    for (const Entry& entry : entries) entry_of_[first_[entry.model]] = kNone;
  }

  const std::vector<BillModel>& models_;
  const int depth_;
  const std::vector<uint32_t> first_;
  std::vector<std::vector<Entry>> entries_;  // of each assembly, once merged
  std::vector<uint32_t> entry_of_;           // of each name, while an assembly is merged
  std::vector<bool> entered_;                // on the way to where the walk is
  std::vector<Position> path_;
};

}  // namespace

std::vector<BillRow> SummaryBill(const BillStructure& structure) {
  const std::vector<uint32_t> first = FirstOfEachNameAndType(structure.models);
  std::vector<uint32_t> row_of(structure.models.size(), kNone);
  std::vector<BillRow> rows;
  for (const uint32_t occurrence : structure.occurrences) {
    const uint32_t model = first[occurrence];
    if (structure.models[model].name.empty()) continue;
    if (row_of[model] == kNone) {
      row_of[model] = static_cast<uint32_t>(rows.size());
      rows.push_back({model, 0});
    }
    ++rows[row_of[model]].quantity;
  }
  return rows;
}

std::vector<BillRow> LevelBill(const BillStructure& structure, int depth) {
  return LevelWalk(structure, depth).Rows();
}

int DepthOf(std::wstring_view option) {
  if (option == kAllLevelsLabel) return kAllLevels;
  if (option.empty() || option.size() > 2) return 0;
  int depth = 0;
  for (const wchar_t c : option) {
    if (c < L'0' || c > L'9') return 0;
    depth = depth * 10 + (c - L'0');
  }
  return depth;
}

const std::wstring& PositionNumber::Of(const BillRow& row) {
  const auto level = static_cast<size_t>(std::max(row.level, 1));
  ends_.resize(std::min(ends_.size(), level - 1));
  number_.resize(ends_.empty() ? 0 : ends_.back());
  if (!number_.empty()) number_ += L'.';
  number_ += std::to_wstring(row.place);
  ends_.push_back(number_.size());
  return number_;
}

}  // namespace qm
