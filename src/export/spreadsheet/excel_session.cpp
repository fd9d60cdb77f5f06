// Start and end of the spreadsheet program.
#include "export/spreadsheet/excel_session.h"

#include "export/spreadsheet/excel_ids.h"
#include "frame/guard/shield.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"

namespace qm {
namespace {

constexpr wchar_t kProgram[] = L"Excel.Application";

// A step of the clean-up after a failure: another failure must not end the clean-up.
template <typename Step>
void Try(Step step) noexcept {
  try {
    step();
  } catch (...) {
    LogException("ending of the spreadsheet program");
  }
}

}  // namespace

std::optional<ExcelSession> ExcelSession::Start() {
  Dispatch application = Dispatch::Create(kProgram);
  if (!application) return std::nullopt;
  return ExcelSession(std::move(application));
}

ExcelSession::~ExcelSession() {
  if (!application_) return;
  if (workbook_) {
    Try([&] { Do([&] { workbook_.Put(excel::kSaved, Variant(true), ending_); }); });
  }
  Try([&] { application_.Call(excel::kQuit, {}, ending_); });
}

void ExcelSession::AddWorkbook() {
  workbook_ = application_.Get(excel::kWorkbooks).CallForObject(excel::kAdd);
}

void ExcelSession::OpenWorkbook(const std::wstring& path) {
  const Variant file(path);
  workbook_ = application_.Get(excel::kWorkbooks).CallForObject(excel::kOpen, {&file});
}

void ExcelSession::CloseWorkbook() {
  // Opening an older file may have changed it, and the program would ask whether to save that.
  const Variant saves(false);
  workbook_.Call(excel::kClose, {&saves});
  workbook_.reset();
}

void ExcelSession::Quit() {
  application_.Call(excel::kQuit);
  workbook_.reset();
  application_.reset();
}

void ShowExcelFailure(const std::wstring& outcome, const AutomationError& error) {
  LogEvent(error.what());
  ShowMessage(L"\t" + outcome + L"\t\n\t步骤：" + error.step() + L"\t\n\t原因：" + error.Reason() +
              L"\t");
}

}  // namespace qm
