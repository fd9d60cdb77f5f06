// What scripts set and look up in Windows itself: settings files, the clipboard, the code page.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace wb {

// No text: the entry is removed, or missing.
bool WriteProfile(const std::filesystem::path& file, const std::string& section,
                  const std::string& key, const std::optional<std::string>& text);
std::optional<std::string> ReadProfile(const std::filesystem::path& file,
                                       const std::string& section, const std::string& key);
// Windows keeps settings files in memory; call this before a file is read or written directly.
// In the order of the file.
std::vector<std::string> ProfileSections(const std::filesystem::path& file);
void FlushProfile(const std::filesystem::path& file);

// No text: the clipboard holds none, or cannot be opened.
std::optional<std::string> ClipboardText();
bool SetClipboardText(const std::string& text);

// Keeps the clipboard open in another thread, so that nobody else gets it.
class ClipboardHolder {
 public:
  ClipboardHolder();
  ~ClipboardHolder();
  ClipboardHolder(const ClipboardHolder&) = delete;
  ClipboardHolder& operator=(const ClipboardHolder&) = delete;

 private:
  struct Thread;
  std::unique_ptr<Thread> thread_;
};

// Keeps a file open, so that nobody else can open it.
class FileHolder {
 public:
  explicit FileHolder(const std::filesystem::path& file);
  ~FileHolder();
  FileHolder(const FileHolder&) = delete;
  FileHolder& operator=(const FileHolder&) = delete;

  bool holds() const;

 private:
  void* file_;
};

// Runs a program to its end and gives what it printed; no text when it cannot be started.
// Arguments are quoted by blanks only, so they must hold no quotes.
std::optional<std::string> OutputOf(const std::filesystem::path& program,
                                    const std::vector<std::string>& arguments);

// Changes with everything that is put into the clipboard.
unsigned ClipboardNumber();

// A path as the user's own machine writes it: where Windows programs run on another system, that
// system's. Relative paths stay.
std::string OwnPath(const std::filesystem::path& path);
// The same for the path inside a text, "notepad.exe C:\\a.ini", if there is one.
std::string WithOwnPath(const std::string& text);

// Another one after everything that is put into the clipboard.
unsigned ClipboardNumber();

unsigned AnsiCodePage();
unsigned ProcessId();

}  // namespace wb
