// Conversion of the typed parameter value by its type.
#include "params/param_value_rules.h"

#include "frame/text/letter_case.h"
#include "frame/text/number_rules.h"

namespace qm {
namespace {

constexpr wchar_t kEmptyName[] = L"请输入参数名称！";
constexpr wchar_t kLongName[] = L"参数名称不能超过31个字符，请重新输入！";
constexpr wchar_t kLongText[] = L"字符串参数值不能超过80个字符，请重新输入！";
constexpr wchar_t kUnknownType[] = L"请选择参数类型：整数、实数、字符串或是/否！";
constexpr wchar_t kHugeReal[] = L"实数参数值超出范围，请重新输入！";
constexpr wchar_t kNoBoolean[] = L"布尔类型参数值不能为空,请输入'YES'或'NO'!";
constexpr wchar_t kBadBoolean[] = L"布尔类型参数值只可为'YES'或'NO',请重新输入!";

ValueOrRefusal IntegerValue(std::wstring_view text) {
  return ParamValue(LeadingInteger(text));
}

ValueOrRefusal RealValue(std::wstring_view text) {
  const double value = LeadingReal(text);
  if (value - value != 0.0) return Refusal{kHugeReal};  // infinite: no model can hold it
  return ParamValue(value);
}

ValueOrRefusal StringValue(std::wstring_view text) {
  if (text.size() > kMaxParamTextLength) return Refusal{kLongText};
  return ParamValue(std::wstring(text));
}

// "YES" counts in any case but "NO" only in capitals; users' habits and macros rely on it.
ValueOrRefusal BooleanToAdd(std::wstring_view text) {
  if (text.empty()) return Refusal{kNoBoolean};
  if (EqualIgnoringCase(text, L"YES")) return ParamValue(true);
  if (text == L"NO") return ParamValue(false);
  return Refusal{kBadBoolean};
}

// An update sets a yes/no parameter to yes whatever was typed; kept on purpose.
ValueOrRefusal BooleanToUpdate(std::wstring_view) {
  return ParamValue(true);
}

using Conversion = ValueOrRefusal (*)(std::wstring_view text);
struct TypeRow {
  std::wstring_view name;
  Conversion to_add;
  Conversion to_update;
};
constexpr TypeRow kTypes[] = {
    {L"整数", IntegerValue, IntegerValue},
    {L"实数", RealValue, RealValue},
    {L"字符串", StringValue, StringValue},
    {L"是/否", BooleanToAdd, BooleanToUpdate},
};

const TypeRow* FindType(std::wstring_view name) {
  for (const TypeRow& row : kTypes) {
    if (row.name == name) return &row;
  }
  return nullptr;
}

}  // namespace

const wchar_t* ParamNameRefusal(std::wstring_view name) {
  if (name.empty()) return kEmptyName;
  if (name.size() > kMaxParamNameLength) return kLongName;
  return nullptr;
}

ValueOrRefusal ValueToAdd(std::wstring_view type, std::wstring_view text) {
  const TypeRow* const row = FindType(type);
  return row != nullptr ? row->to_add(text) : Refusal{kUnknownType};
}

ValueOrRefusal ValueToUpdate(std::wstring_view type, std::wstring_view text) {
  const TypeRow* const row = FindType(type);
  return row != nullptr ? row->to_update(text) : Refusal{kUnknownType};
}

}  // namespace qm
