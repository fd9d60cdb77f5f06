// Splitting and matching of exclusion keywords.
#include "frame/text/keyword_filter.h"

#include <algorithm>

#include "frame/text/letter_case.h"

namespace qm {
namespace {

constexpr wchar_t kFullWidthComma = 0xFF0C;

}  // namespace

KeywordFilter::KeywordFilter(std::wstring_view list) {
  std::wstring rest = LowerCased(list);
  std::replace(rest.begin(), rest.end(), kFullWidthComma, L',');
  for (size_t begin = 0; begin < rest.size();) {
    const size_t end = std::min(rest.find(L',', begin), rest.size());
    // Every name begins with the empty text, so an empty piece (a doubled or leading comma) taken
    // as a keyword would silently exclude every model: it is no keyword.
    if (end > begin) keywords_.push_back(rest.substr(begin, end - begin));
    begin = end + 1;
  }
}

bool KeywordFilter::Excludes(std::wstring_view model_name) const {
  if (keywords_.empty()) return false;
  const std::wstring name = LowerCased(model_name);
  return std::any_of(keywords_.begin(), keywords_.end(),
                     [&](const std::wstring& keyword) { return name.starts_with(keyword); });
}

}  // namespace qm
