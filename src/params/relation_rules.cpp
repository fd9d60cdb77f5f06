// Texts of relations.
#include "params/relation_rules.h"

#include <algorithm>
#include <set>

namespace qm {

RelationLines SplitRelations(std::wstring_view text) {
  RelationLines lines;
  while (!text.empty()) {
    const size_t end = std::min(text.find(L'\n'), text.size());
    std::wstring_view line = text.substr(0, end);
    if (line.ends_with(L'\r')) line.remove_suffix(1);
    if (!line.empty()) lines.emplace_back(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

RelationLines RelationsAfter(RelationAction action, const RelationLines& present,
                             const RelationLines& added) {
  if (action == RelationAction::kCover) return added;
  RelationLines lines = present;
  const std::set<std::wstring_view> known(present.begin(), present.end());
  // Deliberately compared with what was there before alone: a line typed twice is added twice.
  std::ranges::copy_if(added, std::back_inserter(lines), [&](const std::wstring& line) {
    return action == RelationAction::kAppend || !known.contains(line);
  });
  return lines;
}

}  // namespace qm
