// Start and end of the spreadsheet program.
#include "export/spreadsheet/excel_session.h"

#include "export/spreadsheet/excel_ids.h"
#include "frame/guard/shield.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"

namespace qm {
namespace {

constexpr wchar_t kProgram[] = L"Excel.Application";
constexpr wchar_t kNotEnded[] = L"\tExcel没有退出，请在任务管理器中结束该进程。\t";

enum class StepResult { kDone, kFailed, kBusy, kGone };

// A step of the clean-up after a failure: another failure must not end the clean-up.
template <typename Step>
StepResult Try(Step step) noexcept {
  try {
    step();
    return StepResult::kDone;
  } catch (const AutomationError& error) {
    LogException("ending of the spreadsheet program");
    if (error.is_gone()) return StepResult::kGone;
    return error.is_busy() ? StepResult::kBusy : StepResult::kFailed;
  } catch (...) {
    LogException("ending of the spreadsheet program");
    return StepResult::kFailed;
  }
}

}  // namespace

std::optional<ExcelSession> ExcelSession::Start() {
  Dispatch application = Dispatch::Create(kProgram);
  if (!application) return std::nullopt;
  return ExcelSession(std::move(application));
}

bool ExcelSession::End(Patience patience) noexcept {
  if (!application_) return true;
  StepResult result = StepResult::kDone;
  if (workbook_) {
    // What would not be closed is at least not asked about.
    result = Try([&] { CloseWorkbook(patience); });
    if (result == StepResult::kBusy) patience = Patience::kShort;
    if (result == StepResult::kFailed) {
      Try([&] { workbook_.Put(excel::kSaved, Variant(true), patience); });
    }
  }
  result = Try([&] { application_.Call(excel::kQuit, {}, patience); });
  workbook_.reset();
  application_.reset();
  return result == StepResult::kDone || result == StepResult::kGone;
}

void ExcelSession::AddWorkbook() {
  workbook_ = application_.Get(excel::kWorkbooks).CallForObject(excel::kAdd);
}

void ExcelSession::OpenWorkbook(const std::wstring& path) {
  const Variant file(path);
  workbook_ = application_.Get(excel::kWorkbooks).CallForObject(excel::kOpen, {&file});
}

void ExcelSession::CloseWorkbook(Patience patience) {
  // Without saving: opening an older file may have changed it, and the program would ask.
  const Variant saves(false);
  workbook_.Call(excel::kClose, {&saves}, patience);
  workbook_.reset();
}

void ExcelSession::Quit() {
  application_.Call(excel::kQuit);
  workbook_.reset();
  application_.reset();
}

ExcelRun RunExcel(const std::function<void(ExcelSession&)>& work) {
  ExcelRun run;
  std::optional<ExcelSession> excel = ExcelSession::Start();
  run.is_started = excel.has_value();
  if (!excel) return run;
  try {
    work(*excel);
  } catch (const AutomationError& error) {
    run.failure = error;
  } catch (...) {
    run.is_ended = excel->End(Patience::kShort);
    TellWhetherEnded(run);
    throw;
  }
  const bool is_busy = run.failure && run.failure->is_busy();
  run.is_ended = excel->End(is_busy ? Patience::kShort : Patience::kFull);
  return run;
}

void ShowExcelFailure(const std::wstring& outcome, const AutomationError& error) {
  LogEvent(error.what());
  ShowMessage(L"\t" + outcome + L"\t\n\t步骤：" + error.step() + L"\t\n\t原因：" + error.Reason() +
              L"\t");
}

void TellWhetherEnded(const ExcelRun& run) {
  if (!run.is_ended) ShowMessage(kNotEnded);
}

}  // namespace qm
