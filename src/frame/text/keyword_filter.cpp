// Splitting and matching of exclusion keywords.
#include "frame/text/keyword_filter.h"

#include <algorithm>

#include "frame/text/letter_case.h"
#include "frame/text/list_rules.h"

namespace qm {

// Every name begins with the empty text, so an empty piece (a doubled or leading comma) taken as a
// keyword would silently exclude every model: it is no keyword, and the list has none.
KeywordFilter::KeywordFilter(std::wstring_view list) : keywords_(SplitAtCommas(LowerCased(list))) {}

bool KeywordFilter::Excludes(std::wstring_view model_name) const {
  if (keywords_.empty()) return false;
  const std::wstring name = LowerCased(model_name);
  return std::any_of(keywords_.begin(), keywords_.end(),
                     [&](const std::wstring& keyword) { return name.starts_with(keyword); });
}

}  // namespace qm
