// What becomes of an exception, and the run of a command.
#include "frame/guard/shield.h"

#include <exception>

#include "frame/guard/busy.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/text/fixed_line.h"

namespace qm {
namespace {

constexpr wchar_t kStoppedText[] = L"\t命令执行中发生内部错误，操作已停止。\t";
constexpr wchar_t kBusyText[] = L"\t另一个命令尚未结束，请先完成或关闭它。\t";

}  // namespace

void LogException(const char* where) noexcept {
  try {
    try {
      throw;
    } catch (const std::exception& error) {
      // Memory may be what has run out.
      FixedLine<512> line;
      line += "internal error in ";
      line += where;
      line += ": ";
      line += error.what();
      LogEvent(line.text());
    }
  } catch (...) {
    LogEvent("internal error");
  }
}

void ReportException(const char* where) noexcept {
  LogException(where);
  ShowMessage(kStoppedText);
}

int RunCommand(const char* name, ProError (*action)()) noexcept {
  const BusyScope busy;
  if (!busy.taken()) {
    // In a line of its own: the box is not what came of the command that runs.
    CommandLog refused(name);
    refused.set_status(PRO_TK_E_IN_USE);
    ShowMessage(kBusyText);
    return PRO_TK_E_IN_USE;
  }
  CommandLog log(name);
  ProError status = PRO_TK_GENERAL_ERROR;
  try {
    status = action();
  } catch (...) {
    ReportException(name);
  }
  log.set_status(status);
  return status;
}

}  // namespace qm
