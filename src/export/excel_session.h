// A run of the spreadsheet program for one import or export: started invisibly for it alone and
// ended with it, whatever happens between.
#pragma once

#include <optional>

#include "export/dispatch.h"

namespace qm {

class ExcelSession {
 public:
  // Nothing when the program cannot be started.
  static std::optional<ExcelSession> Start();

  ExcelSession(ExcelSession&&) = default;
  // Ends the program without a question about unsaved work, if it still runs.
  ~ExcelSession();

  const Dispatch& application() const { return application_; }
  const Dispatch& workbook() const { return workbook_; }

  // Throw AutomationError, as do all calls on the objects.
  void AddWorkbook();
  void OpenWorkbook(const std::wstring& path);
  void CloseWorkbook();
  // Ends the program.
  void Quit();

 private:
  explicit ExcelSession(Dispatch application) : application_(std::move(application)) {}

  // Declared in this order, so that the workbook is released first.
  Dispatch application_;
  Dispatch workbook_;
};

// Tells the user at which step of `activity` the program failed, and why.
void ShowExcelFailure(const wchar_t* activity, const AutomationError& error);

}  // namespace qm
