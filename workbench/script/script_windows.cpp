// Windows' side of scripts.
#include "workbench/script/script_windows.h"

#include <cstdio>
#include <cstring>
#include <vector>

#include "workbench/base/temporary_place.h"
#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/base/windows_headers.h"

namespace wb {
namespace {

std::wstring WideText(const std::optional<std::string>& text) {
  return text ? ToWide(*text) : std::wstring();
}

// Room for any setting that a script looks at; the plug-in itself reads far less.
constexpr DWORD kProfileBuffer = 32 * 1024;

class OpenClipboardScope {
 public:
  explicit OpenClipboardScope(HWND owner = nullptr) : open_(::OpenClipboard(owner) != 0) {}
  ~OpenClipboardScope() {
    if (open_) ::CloseClipboard();
  }
  OpenClipboardScope(const OpenClipboardScope&) = delete;
  OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;
  bool open() const { return open_; }

 private:
  bool open_;
};

}  // namespace

bool WriteProfile(const std::filesystem::path& file, const std::string& section,
                  const std::string& key, const std::optional<std::string>& text) {
  const std::wstring wide = WideText(text);
  return ::WritePrivateProfileStringW(ToWide(section).c_str(), ToWide(key).c_str(),
                                      text ? wide.c_str() : nullptr, file.wstring().c_str()) != 0;
}

std::optional<std::string> ReadProfile(const std::filesystem::path& file,
                                       const std::string& section, const std::string& key) {
  constexpr wchar_t kMissing[] = L"\x1";
  std::vector<wchar_t> buffer(kProfileBuffer);
  const DWORD length =
      ::GetPrivateProfileStringW(ToWide(section).c_str(), ToWide(key).c_str(), kMissing,
                                 buffer.data(), kProfileBuffer, file.wstring().c_str());
  const std::wstring text(buffer.data(), length);
  if (text == kMissing) return std::nullopt;
  return FromWide(text);
}

std::vector<std::string> ProfileSections(const std::filesystem::path& file) {
  std::vector<wchar_t> buffer(kProfileBuffer);
  ::GetPrivateProfileSectionNamesW(buffer.data(), kProfileBuffer, file.wstring().c_str());
  std::vector<std::string> names;
  for (const wchar_t* name = buffer.data(); *name != L'\0'; name += std::wcslen(name) + 1) {
    names.push_back(FromWide(name));
  }
  return names;
}

void FlushProfile(const std::filesystem::path& file) {
  ::WritePrivateProfileStringW(nullptr, nullptr, nullptr, file.wstring().c_str());
}

std::optional<std::string> ClipboardText() {
  const OpenClipboardScope clipboard;
  if (!clipboard.open()) return std::nullopt;
  const HANDLE data = ::GetClipboardData(CF_UNICODETEXT);
  if (data == nullptr) return std::nullopt;
  const auto* const text = static_cast<const wchar_t*>(::GlobalLock(data));
  if (text == nullptr) return std::nullopt;
  std::string found = FromWide(text);
  ::GlobalUnlock(data);
  return found;
}

bool SetClipboardText(const std::string& text) {
  const OpenClipboardScope clipboard;
  if (!clipboard.open() || !::EmptyClipboard()) return false;
  const std::wstring wide = ToWide(text);
  const size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
  if (memory == nullptr) return false;
  std::memcpy(::GlobalLock(memory), wide.c_str(), bytes);
  ::GlobalUnlock(memory);
  return ::SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
}

struct ClipboardHolder::Thread {
  HANDLE thread = nullptr;
  HANDLE held = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
  HANDLE let_go = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);

  static DWORD WINAPI Hold(void* data) {
    auto* const self = static_cast<Thread*>(data);
    // Only a window keeps the clipboard from others.
    const HWND window = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                          nullptr, nullptr);
    {
      const OpenClipboardScope clipboard(window);
      ::SetEvent(self->held);
      ::WaitForSingleObject(self->let_go, INFINITE);
    }
    ::DestroyWindow(window);
    return 0;
  }
};

ClipboardHolder::ClipboardHolder() : thread_(std::make_unique<Thread>()) {
  thread_->thread = ::CreateThread(nullptr, 0, &Thread::Hold, thread_.get(), 0, nullptr);
  ::WaitForSingleObject(thread_->held, INFINITE);
}

ClipboardHolder::~ClipboardHolder() {
  ::SetEvent(thread_->let_go);
  ::WaitForSingleObject(thread_->thread, INFINITE);
  for (const HANDLE handle : {thread_->thread, thread_->held, thread_->let_go}) {
    ::CloseHandle(handle);
  }
}

FileHolder::FileHolder(const std::filesystem::path& file)
    : file_(::CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                          FILE_ATTRIBUTE_NORMAL, nullptr)) {}

FileHolder::~FileHolder() {
  if (holds()) ::CloseHandle(file_);
}

bool FileHolder::holds() const {
  return file_ != INVALID_HANDLE_VALUE;
}

namespace {

// A file that a started program writes its output into; gone when this is. What the program starts
// in its turn may keep the file open beyond that, so each has a name of its own.
class OutputFile {
 public:
  OutputFile() {
    static int count = 0;
    path_ = TemporaryPlace() / ("workbench output " + std::to_string(::GetCurrentProcessId()) +
                                " " + std::to_string(++count) + ".txt");
    SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
    handle_ = ::CreateFileW(path_.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                            &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  }
  ~OutputFile() {
    Close();
    std::error_code error;
    std::filesystem::remove(path_, error);
  }
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  HANDLE handle() const { return handle_; }
  std::string Content() {
    Close();
    return ReadFileBytes(path_).value_or("");
  }

 private:
  void Close() {
    if (handle_ != INVALID_HANDLE_VALUE) ::CloseHandle(handle_);
    handle_ = INVALID_HANDLE_VALUE;
  }

  std::filesystem::path path_;
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

// A busy machine refuses a program for a moment (a file of its own still held, no room for one more
// process); what is refused this often is refused.
constexpr int kStartAttempts = 5;
constexpr DWORD kStartPause = 500;

bool Start(const std::wstring& command, STARTUPINFOW& startup, PROCESS_INFORMATION& process) {
  for (int attempt = 1; attempt <= kStartAttempts; ++attempt) {
    std::wstring writable = command;
    if (::CreateProcessW(nullptr, writable.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                         &startup, &process)) {
      return true;
    }
    std::fprintf(stderr, "attempt %d to start a program: Windows error %lu\n", attempt,
                 ::GetLastError());
    ::Sleep(kStartPause);
  }
  return false;
}

}  // namespace

std::optional<std::string> OutputOf(const std::filesystem::path& program,
                                    const std::vector<std::string>& arguments) {
  std::wstring command = L"\"" + program.wstring() + L"\"";
  for (const std::string& argument : arguments) command += L" \"" + ToWide(argument) + L"\"";
  OutputFile output;
  if (output.handle() == INVALID_HANDLE_VALUE) {
    std::fprintf(stderr, "no file for a program's output: Windows error %lu\n", ::GetLastError());
    return std::nullopt;
  }
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = startup.hStdError = output.handle();
  PROCESS_INFORMATION process{};
  if (!Start(command, startup, process)) return std::nullopt;
  ::WaitForSingleObject(process.hProcess, INFINITE);
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
  return output.Content();
}

unsigned ClipboardNumber() {
  return ::GetClipboardSequenceNumber();
}

unsigned AnsiCodePage() {
  return ::GetACP();
}

unsigned ProcessId() {
  return ::GetCurrentProcessId();
}

}  // namespace wb
