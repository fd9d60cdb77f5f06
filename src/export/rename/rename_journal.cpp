// Writes the journal line by line, past every buffer of ours.
#include "export/rename/rename_journal.h"

#include "frame/messages/run_log.h"
#include "frame/text/fixed_line.h"
#include "frame/text/text.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr wchar_t kFile[] = L"\\QmRename.txt";
constexpr wchar_t kOldFile[] = L"\\QmRename.old.txt";
// Some twenty batches of 300 models; then a new file begins.
constexpr long long kMaxFileBytes = 1024LL * 1024;
constexpr std::string_view kLineEnd = "\r\n";

// Two hosts of one user write to it; appended lines do not overwrite each other.
HANDLE OpenToAppend(const std::wstring& path) {
  return ::CreateFileW(path.c_str(), FILE_APPEND_DATA | FILE_READ_ATTRIBUTES,
                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                       FILE_ATTRIBUTE_NORMAL | FILE_FLAG_WRITE_THROUGH, nullptr);
}

HANDLE Open(const std::wstring& folder) {
  const std::wstring path = folder + kFile;
  const HANDLE file = OpenToAppend(path);
  LARGE_INTEGER size = {};
  if (file == INVALID_HANDLE_VALUE || !::GetFileSizeEx(file, &size)) return file;
  if (size.QuadPart <= kMaxFileBytes) return file;
  ::CloseHandle(file);
  ::MoveFileExW(path.c_str(), (folder + kOldFile).c_str(), MOVEFILE_REPLACE_EXISTING);
  return OpenToAppend(path);
}

std::string Stamp() {
  SYSTEMTIME now;
  ::GetLocalTime(&now);
  FixedLine<32> stamp;
  stamp.AddNumber(now.wYear, 4) += "-";
  stamp.AddNumber(now.wMonth, 2) += "-";
  stamp.AddNumber(now.wDay, 2) += " ";
  stamp.AddNumber(now.wHour, 2) += ":";
  stamp.AddNumber(now.wMinute, 2) += ":";
  stamp.AddNumber(now.wSecond, 2);
  return std::string(stamp.text());
}

std::string TableLine(const RenameRow& row, const std::wstring& folder) {
  return ToUtf8(row.number + L"\t" + row.type + L"\t" + row.old_name + L" -> " + row.new_name +
                L"\t" + folder);
}

}  // namespace

RenameJournal::~RenameJournal() {
  if (file_ != INVALID_HANDLE_VALUE) ::CloseHandle(file_);
}

bool RenameJournal::Begin(const std::vector<RenameRow>& rows,
                          const std::vector<std::wstring>& folders) {
  const std::wstring folder = RunLogFolder();
  if (!folder.empty()) file_ = Open(folder);
  if (file_ == INVALID_HANDLE_VALUE) {
    LogEvent("there is no journal of the renaming: its file cannot be opened");
    return false;
  }
  path_ = folder + kFile;
  std::string text = Stamp();
  text.append("\tmodels to rename: ").append(std::to_string(rows.size())).append(kLineEnd);
  for (size_t i = 0; i < rows.size(); ++i)
    text.append(TableLine(rows[i], folders[i])).append(kLineEnd);
  Write(text);
  return true;
}

void RenameJournal::Mark(const RenameRow& row, const char* what, ProError status) noexcept {
  if (file_ == INVALID_HANDLE_VALUE) return;
  FixedLine<256> line;
  for (const wchar_t digit : row.number) {
    const char narrow = static_cast<char>(digit);
    line += std::string_view(&narrow, 1);
  }
  line += Ok(status) ? "\t" : "\tnot ";
  line += what;
  if (!Ok(status)) (line += ": ") += StatusName(status);
  line += kLineEnd;
  Write(line.text());
}

void RenameJournal::End(long long renamed, long long left) {
  if (file_ == INVALID_HANDLE_VALUE) return;
  Write("end: " + std::to_string(renamed) + " renamed, " + std::to_string(left) + " not\r\n\r\n");
}

void RenameJournal::Write(std::string_view text) noexcept {
  DWORD written = 0;
  const bool is_written =
      ::WriteFile(file_, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) != 0;
  if (is_written && written == text.size()) return;
  has_failed_ = true;
  LogEvent("a line of the journal could not be written");
}

}  // namespace qm
