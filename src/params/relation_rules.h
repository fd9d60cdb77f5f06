// Relation lines: how a typed text parts into them, and how they meet the lines that are there.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qm {

using RelationLines = std::vector<std::wstring>;

// The lines of a text in their order. A line that ends with a carriage return loses it, and empty
// lines are dropped; blanks belong to a line.
RelationLines SplitRelations(std::wstring_view text);

enum class RelationAction {
  kAppend,         // all new lines behind those that are there
  kAppendMissing,  // those that are not among the ones that were there before, to the character
  kCover,          // the new lines alone
};

// What the set holds afterwards. `present` is of no account when it is covered.
RelationLines RelationsAfter(RelationAction action, const RelationLines& present,
                             const RelationLines& added);

}  // namespace qm
