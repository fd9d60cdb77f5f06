// A run of the spreadsheet program for one import or export: started invisibly for it alone and
// ended with it, whatever happens between.
#pragma once

#include <functional>
#include <optional>

#include "export/spreadsheet/dispatch.h"

namespace qm {

class ExcelSession {
 public:
  // Nothing when the program cannot be started.
  static std::optional<ExcelSession> Start();

  ExcelSession(ExcelSession&&) = default;
  // Ends the program, if it still runs.
  ~ExcelSession() { End(Patience::kFull); }

  const Dispatch& application() const { return application_; }
  const Dispatch& workbook() const { return workbook_; }

  // Throw AutomationError, as do all calls on the objects.
  void AddWorkbook();
  void OpenWorkbook(const std::wstring& path);
  void CloseWorkbook(Patience patience = Patience::kFull);
  // Ends the program.
  void Quit();

  // Ends the program, if it still runs, on the way out after a failure: without a question about
  // unsaved work. False when it refuses to end.
  bool End(Patience patience) noexcept;

 private:
  explicit ExcelSession(Dispatch application) : application_(std::move(application)) {}

  // Declared in this order, so that the workbook is released first.
  Dispatch application_;
  Dispatch workbook_;
};

// What came of a run of the program.
struct ExcelRun {
  bool is_started = false;
  std::optional<AutomationError> failure;
  bool is_ended = true;
};

// Starts the program, does `work` with it and ends it, whatever happens between. One that stays
// busy for the whole patience of a call is not waited for as long again at its end.
ExcelRun RunExcel(const std::function<void(ExcelSession&)>& work);

// Tells the user what became of it, at which step the program failed, and why.
void ShowExcelFailure(const std::wstring& outcome, const AutomationError& error);

// Tells the user when the program did not end: nobody sees it otherwise.
void TellWhetherEnded(const ExcelRun& run);

}  // namespace qm
