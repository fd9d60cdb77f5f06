// Typed parameter values: conversion by type, and what is refused.
#include "params/param_value_rules.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdlib>

#include "frame/text/number_rules.h"

namespace qm {
namespace {

const std::wstring kBadBoolean = L"布尔类型参数值只可为'YES'或'NO',请重新输入!";

std::wstring RefusalOf(const ValueOrRefusal& value) {
  const auto* const refusal = std::get_if<Refusal>(&value);
  return refusal != nullptr ? refusal->message : L"";
}

template <typename T>
T ValueOf(const ValueOrRefusal& value) {
  return std::get<T>(std::get<ParamValue>(value));
}

TEST(ParamValue, IntegersAreTheLeadingDigits) {
  const struct {
    const wchar_t* text;
    int value;
  } cases[] = {
      {L"  \t-7mm", -7},
      {L"abc", 0},
      {L"- 3", 0},
      {L"2147483648", INT_MAX},
      {L"-2147483649", INT_MIN},
      {L"\u3000-１2３mm", -123},  // full-width digits
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ValueOf<int>(ValueToAdd(L"整数", c.text)), c.value) << (&c - cases);
#if defined(_WIN32)
    EXPECT_EQ(LeadingInteger(c.text), _wtoi(c.text)) << "C library, " << (&c - cases);
#endif
  }
}

TEST(ParamValue, RealNumbersAreTheLongestLeadingNumber) {
  const struct {
    const wchar_t* text;
    double value;
  } cases[] = {
      {L" -.5x", -0.5}, {L"1e+2", 100.0},          {L"1d2", 100.0}, {L"3,5", 3.0},
      {L"inf", 0.0},    {L"\u3000\u20032.5", 2.5}, {L"１２", 0.0},  // plain digits only
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ValueOf<double>(ValueToAdd(L"实数", c.text)), c.value) << (&c - cases);
#if defined(_WIN32)
    EXPECT_EQ(LeadingReal(c.text), _wtof(c.text)) << "C library, " << (&c - cases);
#endif
  }
}

TEST(ParamValue, RealNumbersBeyondTheRangeAreInfiniteAndRefused) {
  for (const wchar_t* text : {L"1e309", L"1e99999999999999999999", L"0.001e400"}) {
    EXPECT_EQ(LeadingReal(text), HUGE_VAL);
    EXPECT_NE(RefusalOf(ValueToAdd(L"实数", text)), L"");
    EXPECT_NE(RefusalOf(ValueToUpdate(L"实数", text)), L"");
  }
  EXPECT_EQ(LeadingReal(L"-1e309"), -HUGE_VAL);
}

TEST(ParamValue, AddTakesYesInAnyCaseButNoOnlyInCapitals) {
  for (const wchar_t* yes : {L"YES", L"yes", L"yEs"}) {
    EXPECT_TRUE(ValueOf<bool>(ValueToAdd(L"是/否", yes)));
  }
  EXPECT_FALSE(ValueOf<bool>(ValueToAdd(L"是/否", L"NO")));
  for (const wchar_t* bad : {L"no", L"No", L"nO", L" YES", L"YES ", L"NO ", L"1", L"是", L"YE"}) {
    EXPECT_EQ(RefusalOf(ValueToAdd(L"是/否", bad)), kBadBoolean);
  }
}

// The longest text that is taken: params.qms.
TEST(ParamValue, StringsAreKeptAsTyped) {
  EXPECT_EQ(ValueOf<std::wstring>(ValueToAdd(L"字符串", L" a b ")), L" a b ");
  EXPECT_NE(RefusalOf(ValueToUpdate(L"字符串", std::wstring(81, L'长'))), L"");
}

TEST(ParamValue, TypesOutsideTheMenuAreRefused) {
  for (const wchar_t* type : {L"", L"整", L"整数 ", L"Integer", L"是", L"字符串x"}) {
    EXPECT_EQ(RefusalOf(ValueToAdd(type, L"1")), L"请选择参数类型：整数、实数、字符串或是/否！");
    EXPECT_NE(RefusalOf(ValueToUpdate(type, L"1")), L"");
  }
}

}  // namespace
}  // namespace qm
