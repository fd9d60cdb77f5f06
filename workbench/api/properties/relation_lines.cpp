// A rough reading of relations.
#include "workbench/api/properties/relation_lines.h"

#include <algorithm>

#include "workbench/base/text.h"

namespace wb {
namespace {

constexpr std::string_view kControlWords[] = {"if", "else", "endif", "solve", "for"};

bool IsControl(std::string_view line) {
  const std::string word = FoldCase(line.substr(0, line.find_first_of(" \t(")));
  return std::ranges::find(kControlWords, word) != std::end(kControlWords);
}

bool IsClosed(std::string_view line) {
  int depth = 0;
  bool quoted = false;
  for (const char c : line) {
    if (c == '"') quoted = !quoted;
    if (quoted) continue;
    if (c == '(') ++depth;
    if (c == ')' && --depth < 0) return false;
  }
  return depth == 0 && !quoted;
}

bool IsRelation(std::string_view line) {
  const size_t first = line.find_first_not_of(" \t");
  if (first == line.npos) return true;
  line.remove_prefix(first);
  if (line.starts_with("/*")) return true;
  if (!IsClosed(line)) return false;
  return IsControl(line) || line.find_first_of("=<>", 1) != line.npos;
}

}  // namespace

bool AreRelations(const RelationLines& lines) {
  return std::ranges::all_of(lines, &IsRelation);
}

}  // namespace wb
