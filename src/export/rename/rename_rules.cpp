// Texts and names of the renaming commands.
#include "export/rename/rename_rules.h"

#include <algorithm>

#include "frame/text/letter_case.h"

namespace qm {
namespace {

constexpr wchar_t kFullWidthComma = L'\uFF0C';
constexpr size_t kHeaderRows = 2;

// What makes a path, a pattern, an instance's name or no file name at all of a text.
constexpr std::wstring_view kForbidden = L"\\/:*?\"<>|";
constexpr wchar_t kFirstPrintable = L' ';

constexpr wchar_t kRefusal[] = L"无法执行重命名操作！\n新名称“";
constexpr wchar_t kTooLong[] = L"”长度大于32位，名称无效，请修改后再操作";
constexpr wchar_t kTaken[] = L"”在当前会话或工作目录中已存在，请修改后再试！";
constexpr wchar_t kIllegal[] = L"”非法，请修改后再试！";

std::wstring UpperCased(std::wstring_view text) {
  std::wstring upper(text);
  for (wchar_t& c : upper) {
    if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - L'a' + L'A');
  }
  return upper;
}

std::wstring Quoted(const wchar_t* before, std::wstring_view name, const wchar_t* after) {
  return before + std::wstring(name) + after;
}

}  // namespace

std::wstring NormalisedFilter(std::wstring_view list) {
  std::wstring filter(list.substr(0, list.find(L' ')));
  std::ranges::replace(filter, kFullWidthComma, L',');
  return filter;
}

PrefixFilter::PrefixFilter(std::wstring_view normalised) {
  const std::wstring list = UpperCased(normalised);
  for (size_t begin = 0; begin < list.size();) {
    const size_t end = std::min(list.find(L',', begin), list.size());
    if (end > begin) prefixes_.push_back(list.substr(begin, end - begin));
    begin = end + 1;
  }
}

bool PrefixFilter::Excludes(std::wstring_view model_name) const {
  const std::wstring name = UpperCased(model_name);
  return std::ranges::any_of(prefixes_,
                             [&](const std::wstring& prefix) { return name.starts_with(prefix); });
}

const wchar_t* TypeWord(ProMdlType type) {
  if (type == PRO_MDL_ASSEMBLY) return L"asm";
  return type == PRO_MDL_PART ? L"prt" : L"";
}

ProMdlType TypeOf(std::wstring_view word) {
  if (word == L"asm") return PRO_MDL_ASSEMBLY;
  return word == L"prt" ? PRO_MDL_PART : PRO_MDL_UNUSED;
}

std::wstring Trimmed(std::wstring_view name) {
  const size_t begin = name.find_first_not_of(L' ');
  if (begin == std::wstring_view::npos) return {};
  return std::wstring(name.substr(begin, name.find_last_not_of(L' ') + 1 - begin));
}

bool IsTooLong(std::wstring_view new_name) {
  return new_name.size() > kLongestTypedName;
}

bool CanBeName(std::wstring_view name) {
  const bool is_plain = std::ranges::all_of(name, [](wchar_t c) {
    return c >= kFirstPrintable && kForbidden.find(c) == std::wstring_view::npos;
  });
  return is_plain && !name.empty() && name.size() < PRO_NAME_SIZE;
}

NewName Judge(const RenameRow& row) {
  if (IsTooLong(row.new_name)) return NewName::kTooLong;
  if (row.new_name.empty() || row.new_name == row.old_name) return NewName::kUnchanged;
  const bool may_be_legal = TypeOf(row.type) != PRO_MDL_UNUSED && CanBeName(row.new_name);
  return may_be_legal ? NewName::kToBeTried : NewName::kIllegal;
}

bool AskedNames::Add(const RenameRow& row) {
  return names_.emplace(row.type, LowerCased(row.new_name)).second;
}

void MovedNames::Add(const RenameRow& renamed) {
  names_.emplace(renamed.type, LowerCased(renamed.old_name));
  names_.emplace(renamed.type, LowerCased(renamed.new_name));
}

bool MovedNames::HoldOldNameOf(const RenameRow& row) const {
  return names_.contains({row.type, LowerCased(row.old_name)});
}

std::wstring TooLongRefusal(std::wstring_view name) {
  return Quoted(kRefusal, name, kTooLong);
}

std::wstring TakenRefusal(std::wstring_view name) {
  return Quoted(kRefusal, name, kTaken);
}

std::wstring IllegalRefusal(std::wstring_view name) {
  return Quoted(kRefusal, name, kIllegal);
}

std::wstring TooLongAtRename(std::wstring_view name) {
  return Quoted(L"新名称“", name, kTooLong);
}

std::wstring TooLongInWorkbook(std::wstring_view name) {
  return Quoted(L"新名称 ", name, L" 长度大于32位，名称无效，请修改后再操作");
}

std::optional<std::wstring> RefusalAtRename(const std::vector<RenameRow>& rows) {
  AskedNames asked;
  for (const RenameRow& row : rows) {
    const NewName kind = Judge(row);
    if (kind == NewName::kTooLong) return TooLongAtRename(row.new_name);
    if (kind == NewName::kIllegal) return IllegalRefusal(row.new_name);
    if (kind == NewName::kToBeTried && !asked.Add(row)) return TakenRefusal(row.new_name);
  }
  return std::nullopt;
}

std::vector<RenameRow> RowsOfWorkbook(const std::vector<std::vector<std::wstring>>& sheet) {
  std::vector<RenameRow> rows;
  for (size_t i = kHeaderRows; i < sheet.size(); ++i) {
    const std::vector<std::wstring>& cells = sheet[i];
    if (cells.size() < kWorkbookColumns) continue;
    rows.push_back({cells[0], cells[1], cells[2], cells[3]});
  }
  return rows;
}

}  // namespace qm
