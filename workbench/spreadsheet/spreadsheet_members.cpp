// The program, its workbooks and sheets, and the look-up of all members.
#include "workbench/spreadsheet/spreadsheet_members.h"

#include <algorithm>

#include "workbench/host/call.h"
#include "workbench/workbook/xlsx_file.h"

namespace wb {
namespace {

void GiveWorkbooks(const Invocation& invocation) {
  invocation.Give(ObjectKind::kWorkbooks, invocation.Place());
}

void GiveWorkbook(const Invocation& invocation, Workbook workbook) {
  auto book = std::make_shared<OpenWorkbook>();
  book->book = std::move(workbook);
  ObjectPlace place = invocation.Place();
  place.program->workbooks.push_back(book);
  place.program->active = book;
  place.book = std::move(book);
  invocation.Give(ObjectKind::kWorkbook, std::move(place));
}

void AddWorkbook(const Invocation& invocation) {
  if (!invocation.IsMissing(0)) throw NotModelled{"a workbook from a template"};
  GiveWorkbook(invocation, NewWorkbook());
}

// The program has a current folder of its own.
std::filesystem::path FullPath(const Invocation& invocation) {
  const std::filesystem::path path = PathFromUtf8(invocation.Text(0));
  if (!path.is_absolute()) {
    throw WrongCall{E_INVALIDARG, "a file without its folder: \"" + invocation.Text(0) + "\""};
  }
  return path;
}

void OpenBook(const Invocation& invocation) {
  const std::filesystem::path path = FullPath(invocation);
  Workbook book;
  try {
    book = ReadXlsx(path);
  } catch (const XlsxError& error) {
    throw ProgramError{error.what()};
  }
  GiveWorkbook(invocation, std::move(book));
}

void GiveActiveSheet(const Invocation& invocation) {
  ObjectPlace place = invocation.Place();
  if (place.book == nullptr) place.book = place.program->active;
  if (place.book == nullptr) throw ProgramError{"no workbook is open"};
  place.sheet = place.book->book.active_sheet;
  invocation.Give(ObjectKind::kWorksheet, std::move(place));
}

// Nothing is ever shown, whatever is asked for.
void TakeFlag(const Invocation& invocation) {
  invocation.Flag(0);
}

// A program that was busy only for a while should have been asked again.
void CheckNothingAsked(const SpreadsheetServer& server, const OpenWorkbook& book, const char* by) {
  const bool still_busy = book.closing_rejected && server.orders().busy > 0;
  if (!book.open || book.saved || book.closing_failed || still_busy) return;
  server.host().ReportBreach("Excel",
                             std::string(by) + " asks the user whether to save the workbook");
}

void Quit(const Invocation& invocation) {
  SpreadsheetProgram& program = *invocation.Place().program;
  for (const auto& book : program.workbooks) CheckNothingAsked(invocation.server, *book, "Quit");
  program.running = false;
}

void SaveCopyAs(const Invocation& invocation) {
  try {
    WriteXlsx(invocation.Place().book->book, FullPath(invocation));
  } catch (const XlsxError& error) {
    throw ProgramError{error.what()};
  }
}

void PutSaved(const Invocation& invocation) {
  invocation.Place().book->saved = invocation.Flag(0);
}

void CloseBook(const Invocation& invocation) {
  const std::shared_ptr<OpenWorkbook>& book = invocation.Place().book;
  if (!invocation.IsMissing(0)) {
    if (invocation.Flag(0)) throw NotModelled{"a workbook saved when it is closed"};
    book->saved = true;
  }
  CheckNothingAsked(invocation.server, *book, "Close");
  book->open = false;
  SpreadsheetProgram& program = *invocation.Place().program;
  std::erase(program.workbooks, book);
  program.active = program.workbooks.empty() ? nullptr : program.workbooks.back();
}

void GiveSheets(const Invocation& invocation) {
  invocation.Give(ObjectKind::kSheets, invocation.Place());
}

void GiveSheet(const Invocation& invocation) {
  const int number = invocation.Number(0);
  ObjectPlace place = invocation.Place();
  if (number < 1 || number > static_cast<int>(place.book->book.sheets.size())) {
    throw ProgramError{"there is no sheet " + std::to_string(number)};
  }
  place.sheet = static_cast<size_t>(number - 1);
  invocation.Give(ObjectKind::kWorksheet, std::move(place));
}

using K = ObjectKind;

// clang-format off
constexpr SpreadsheetMember kMembers[] = {
    {K::kApplication, 0x23C, kGet,  0, 0, "Excel.Application.Workbooks",      &GiveWorkbooks},
    {K::kApplication, 0x133, kGet,  0, 0, "Excel.Application.ActiveSheet",    &GiveActiveSheet},
    {K::kApplication, 0x22E, kPut,  1, 1, "Excel.Application.Visible=",       &TakeFlag},
    {K::kApplication, 0x4BA, kPut,  1, 1, "Excel.Application.UserControl=",   &TakeFlag},
    {K::kApplication, 0x12E, kCall, 0, 0, "Excel.Application.Quit",           &Quit},
    {K::kWorkbooks,   0xB5,  kCall, 0, 1, "Excel.Workbooks.Add",              &AddWorkbook},
    {K::kWorkbooks,   0x783, kCall, 1, 1, "Excel.Workbooks.Open",             &OpenBook},
    {K::kWorkbook,    0x1E5, kGet,  0, 0, "Excel.Workbook.Sheets",            &GiveSheets},
    {K::kWorkbook,    0x1EE, kGet,  0, 0, "Excel.Workbook.Worksheets",        &GiveSheets},
    {K::kWorkbook,    0x133, kGet,  0, 0, "Excel.Workbook.ActiveSheet",       &GiveActiveSheet},
    {K::kWorkbook,    0xAF,  kCall, 1, 1, "Excel.Workbook.SaveCopyAs",        &SaveCopyAs},
    {K::kWorkbook,    0x12A, kPut,  1, 1, "Excel.Workbook.Saved=",            &PutSaved},
    {K::kWorkbook,    0x115, kCall, 0, 1, "Excel.Workbook.Close",             &CloseBook},
    {K::kSheets,      0xAA,  kGet,  1, 1, "Excel.Sheets.Item",                &GiveSheet},
};
// clang-format on

template <typename Fits>
const SpreadsheetMember* FindAmong(std::span<const SpreadsheetMember> members, Fits fits) {
  const auto found = std::find_if(members.begin(), members.end(), fits);
  return found == members.end() ? nullptr : &*found;
}

template <typename Fits>
const SpreadsheetMember* FindFitting(Fits fits) {
  const SpreadsheetMember* const found = FindAmong(kMembers, fits);
  return found != nullptr ? found : FindAmong(RangeMembers(), fits);
}

}  // namespace

bool IsSpreadsheetMember(std::string_view name) {
  return FindFitting([&](const SpreadsheetMember& member) { return member.name == name; }) !=
         nullptr;
}

const SpreadsheetMember* FindMember(ObjectKind kind, DISPID id, WORD call_kind) {
  return FindFitting([&](const SpreadsheetMember& member) {
    return member.kind == kind && member.id == id && member.call_kind == call_kind;
  });
}

const SpreadsheetMember* FindMember(ObjectKind kind, DISPID id) {
  return FindFitting(
      [&](const SpreadsheetMember& member) { return member.kind == kind && member.id == id; });
}

}  // namespace wb
