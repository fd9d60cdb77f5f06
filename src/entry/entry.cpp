// The two entries that the host calls: start and stop of the plug-in.
#include <windows.h>

#include <algorithm>
#include <iterator>

#include "entry/registration.h"
#include "entry/restore_directory.h"
#include "entry/save_directory.h"
#include "frame/guard/host_binding.h"
#include "frame/guard/host_release.h"
#include "frame/guard/reserve.h"
#include "frame/guard/shield.h"
#include "frame/messages/run_log.h"
#include "frame/text/version.h"
#include "toolkit/status.h"

extern "C" int user_initialize(int argc, char* argv[], char* version, char* build,
                               wchar_t errbuf[80]);
extern "C" void user_terminate();

#define QM_FULL_NAME QM_PRODUCT_NAME " " QM_VERSION_TEXT " build " QM_BUILD_ID

namespace qm {
namespace {

// Code of an unloaded module must never be called, and each unloading would cost the process one of
// its few thread-local slots: once started, the plug-in stays.
void PinModule() {
  HMODULE module = nullptr;
  ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(&user_initialize), &module);
}

ProError Start() {
  PinModule();
  ReportMissingFunctions();
  LogEvent("start of " QM_FULL_NAME);
  RegisterCommands();
  StartDirectoryRestore();
  RegisterPopup();
  return PRO_TK_NO_ERROR;
}

constexpr wchar_t kNoMemory[] = L"羽石工具箱未能启动：内存不足，请关闭其他程序后重试。";
constexpr std::size_t kErrorBufferSize = 80;
static_assert(std::size(kNoMemory) <= kErrorBufferSize);

// Half a menu would look like the whole one: the host takes what is registered away, and shows its
// user the reason.
int RefuseForMemory(wchar_t* error_buffer) {
  StopDirectoryRestore();
  LogEvent("start refused: no memory");
  if (error_buffer != nullptr) std::ranges::copy(kNoMemory, error_buffer);
  return PRO_TK_OUT_OF_MEMORY;
}

constexpr wchar_t kForeignHost[] =
    L"羽石工具箱未能启动：在宿主程序中找不到任何接口函数，请检查插件与宿主的版本是否一致。";
static_assert(std::size(kForeignHost) <= kErrorBufferSize);

// The host shows its user the reason.
int RefuseForeignHost(wchar_t* error_buffer) {
  LogEvent("start refused: the process offers no function of the host");
  if (error_buffer != nullptr) std::ranges::copy(kForeignHost, error_buffer);
  return PRO_TK_GENERAL_ERROR;
}

void Stop() {
  StopDirectoryRestore();
  SaveWorkingDirectory();
  LogEvent("stop of " QM_FULL_NAME);
}

}  // namespace
}  // namespace qm

extern "C" int user_initialize(int, char*[], char* version, char*, wchar_t errbuf[80]) {
  qm::KeepHostRelease(version);
  const bool has_memory = qm::PrepareExceptions();
  // Nothing of a start would work, and nobody would learn why: the message area is the host's.
  if (has_memory && qm::IsForeignHost()) return qm::RefuseForeignHost(errbuf);
  const bool started = has_memory && qm::Ok(qm::Shielded<&qm::Start>::Call());
  return started ? PRO_TK_NO_ERROR : qm::RefuseForMemory(errbuf);
}

extern "C" void user_terminate() {
  qm::Shielded<&qm::Stop>::Call();
}
