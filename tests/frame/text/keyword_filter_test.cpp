// Exclusion keywords as users type them, against names as models have them.
#include "frame/text/keyword_filter.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

struct Case {
  const wchar_t* list;
  const wchar_t* name;
  bool excluded;
};

TEST(KeywordFilter, ExcludesNamesThatBeginWithAKeyword) {
  const Case cases[] = {
      {L"gb，iso", L"GB_BOLT", true},   // full-width comma
      {L"gb，iso", L"BOLT_GB", false},  // inside the name
      {L"GB", L"gb_bolt", true},
      {L"gb,", L"PUMP", false},  // trailing empty piece
      {L",", L"PUMP", false},
      {L"gb,,iso", L"PUMP", false},  // an empty piece excludes nothing
      {L"gb,，iso", L"iso1", true},
      {L"gb, iso", L"ISO4762", false},  // the blank belongs to the keyword
      {L"gb_bolt_long", L"GB", false},  // longer than the name
      {L"标准件", L"标准件_螺栓", true},
      {L"Ø", L"ø20_PIN", true},
      {L"деталь", L"ДЕТАЛЬ-1", true},
      {L"ＧＢ", L"ｇｂ70", true},  // full-width letters
      {L"gb", L"ＧＢ70", false},
      {L"ǆ", L"ǅEP", true},
      {L"Ș", L"șurub", true},  // with the comma below, behind the first two blocks of Latin letters
  };
  for (const Case& c : cases) {
    EXPECT_EQ(KeywordFilter(c.list).Excludes(c.name), c.excluded)
        << "case " << (&c - cases) << " of the table";
  }
}

}  // namespace
}  // namespace qm
