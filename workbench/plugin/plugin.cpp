// Loads, starts, runs and stops the plug-in as the host does.
#include "workbench/plugin/plugin.h"

#include <stdexcept>
#include <system_error>

#include "workbench/base/windows_headers.h"
#include "workbench/host/call.h"
#include "workbench/plugin/macro_steps.h"
#include "workbench/plugin/plugin_entry.h"
#include "workbench/plugin/replace_macro.h"

namespace wb {
namespace {

constexpr char kInitialize[] = "user_initialize";
constexpr char kTerminate[] = "user_terminate";
using InitializeEntry = int (*)(int, char**, char*, char*, wchar_t*);
using TerminateEntry = void (*)();

HMODULE Load(const std::filesystem::path& dll) {
  const HMODULE module = ::LoadLibraryW(ToWide(PathToUtf8(dll)).c_str());
  if (module != nullptr) return module;
  const auto code = static_cast<int>(::GetLastError());
  throw std::runtime_error("cannot load the plug-in " + PathToUtf8(dll) + ": " +
                           std::system_category().message(code) + " (Windows error " +
                           std::to_string(code) + ")");
}

void* EntryOf(void* module, const char* name) {
  return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(module), name));
}

// What the plug-in has queued runs once the user could go on. What the host says then is a note.
void RunMacros(size_t mark) {
  Host& host = TheHost();
  for (const QueuedMacro& macro : host.events.Since<QueuedMacro>(mark)) {
    if (IsReplaceMacro(macro.text)) {
      const PlayedReplacement played = PlayReplaceMacro(macro.text, host.session);
      if (!played.unknown.empty()) {
        host.events.Add(Gap{"workbench: not modelled: " + played.unknown});
      }
      if (!played.refused.empty()) host.events.Add(Note{"macro stopped: " + played.refused});
      continue;
    }
    if (host.user != nullptr && host.user->LeavesMacro(macro.text)) continue;
    const std::string gap = PlayMacro(macro.text, host.session);
    if (!gap.empty()) host.events.Add(Gap{"workbench: not modelled: " + gap});
  }
}

int AskAccess(const Command& command) {
  int state = -1;
  const auto access = reinterpret_cast<uiCmdAccessFn>(command.access);
  const std::string what = "access rule of " + command.name;
  EnterPluginAndSettle(what, [&] { state = access(0); });
  if (state < ACCESS_REMOVE || state > ACCESS_AVAILABLE) {
    TheHost().ReportBreach(what, "answered " + std::to_string(state) + ", which is no state");
  }
  return state;
}

// Marks a command as running; the one it interrupts runs on afterwards.
class RunningCommand {
 public:
  explicit RunningCommand(const std::string& name) : before_(TheHost().running_command) {
    Host& host = TheHost();
    if (before_.empty()) {
      host.trace.Restart();
      host.accounts.Clear();
      host.command_began = host.events.Mark();
    }
    host.running_command = name;
  }
  ~RunningCommand() {
    TheHost().running_command = before_;
    TheHost().ControlIsBack();
  }
  RunningCommand(const RunningCommand&) = delete;
  RunningCommand& operator=(const RunningCommand&) = delete;

 private:
  std::string before_;
};

}  // namespace

Plugin::Plugin(const std::filesystem::path& dll) : dll_(dll) {
  ReportCrashes();
  module_ = Load(dll);
  InterceptImports(module_);
  for (const char* entry : {kInitialize, kTerminate}) {
    if (EntryOf(module_, entry) != nullptr) continue;
    ::FreeLibrary(static_cast<HMODULE>(module_));
    throw std::runtime_error("the plug-in " + PathToUtf8(dll) + " has no entry " + entry);
  }
}

Plugin::~Plugin() {
  if (started_) Stop();
  DropRegistrations();
  ::FreeLibrary(static_cast<HMODULE>(module_));
}

int Plugin::Start() {
  std::string path = ToAnsi(PathToUtf8(dll_));
  std::string version = TheHost().release;
  char build[] = "C000";
  char* arguments[] = {path.data(), nullptr};
  constexpr size_t kReasonSize = 80;
  wchar_t reason[kReasonSize] = {};
  int answer = PRO_TK_GENERAL_ERROR;
  const auto entry = reinterpret_cast<InitializeEntry>(EntryOf(module_, kInitialize));
  EnterPluginAndSettle(kInitialize,
                       [&] { answer = entry(1, arguments, version.data(), build, reason); });
  reason[kReasonSize - 1] = L'\0';
  refusal_ = FromWide(reason);
  started_ = answer == 0;
  if (!started_) DropRegistrations();
  return answer;
}

void Plugin::Stop() {
  started_ = false;
  const auto entry = reinterpret_cast<TerminateEntry>(EntryOf(module_, kTerminate));
  EnterPluginAndSettle(kTerminate, [&] { entry(); });
  for (const Timer& timer : TheHost().windows.timers) {
    if (timer.kill_failed) continue;
    TheHost().ReportBreach(kTerminate, "left timer " + std::to_string(timer.id) +
                                           " pending, which would call "
                                           "the plug-in after it has gone");
  }
  DropRegistrations();
}

void Plugin::DropRegistrations() {
  Host& host = TheHost();
  for (const Command& command : host.commands.commands) host.handles.End(command.handle);
  host.commands = Commands();
  host.windows.timers.clear();
}

int AskAccess(const std::string& command) {
  const Command* const found = TheHost().commands.Find(command);
  return found == nullptr ? -1 : AskAccess(*found);
}

CommandRun RunCommand(const std::string& command) {
  Host& host = TheHost();
  CommandRun run;
  const Command* const found = host.commands.Find(command);
  run.known = found != nullptr;
  if (!run.known) return run;
  const bool is_outermost = host.running_command.empty();
  const size_t events_before = host.events.Mark();
  const RunningCommand running(command);
  const long before = host.trace.calls();
  run.directory_before = run.directory_after = host.session.working_directory();
  run.available = AskAccess(*found) == ACCESS_AVAILABLE;
  if (!run.available) return run;
  run.status = PRO_TK_GENERAL_ERROR;
  const auto action = reinterpret_cast<uiCmdCmdActFn>(found->action);
  const auto id = static_cast<uiCmdCmdId>(found->handle);
  EnterPlugin(command, [&] { run.status = action(id, nullptr, nullptr); });
  run.left_out = host.accounts.Describe(before);
  ReportLeftPrograms(before);
  run.directory_after = host.session.working_directory();
  if (is_outermost) RunMacros(events_before);
  return run;
}

}  // namespace wb
