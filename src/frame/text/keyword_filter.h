// Exclusion keywords: the user's comma-separated list of name beginnings, such as "gb,iso", that
// keep standard parts out of a batch.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qm {

class KeywordFilter {
 public:
  // Splits the list as typed at "," and at the full-width "，". Blanks belong to a keyword.
  explicit KeywordFilter(std::wstring_view list);

  // True when the name begins with a keyword, whatever the case of either; a keyword further
  // inside the name does not count.
  bool Excludes(std::wstring_view model_name) const;

 private:
  std::vector<std::wstring> keywords_;  // lower case
};

}  // namespace qm
