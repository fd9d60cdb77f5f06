// A run of the spreadsheet program for one import or export: started invisibly for it alone and
// ended with it, whatever happens between.
#pragma once

#include <optional>

#include "export/spreadsheet/dispatch.h"

namespace qm {

class ExcelSession {
 public:
  // Nothing when the program cannot be started.
  static std::optional<ExcelSession> Start();

  ExcelSession(ExcelSession&&) = default;
  // Ends the program without a question about unsaved work, if it still runs.
  ~ExcelSession();

  // Does `work` with the program. One that stays busy for the whole patience of a call is not
  // waited for as long again at its end.
  template <typename Work>
  auto Do(Work work) {
    try {
      return work();
    } catch (const AutomationError& error) {
      if (error.is_busy()) ending_ = Patience::kShort;
      throw;
    }
  }

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
  Patience ending_ = Patience::kFull;
};

// Tells the user what became of it, at which step the program failed, and why.
void ShowExcelFailure(const std::wstring& outcome, const AutomationError& error);

}  // namespace qm
