// Makes, saves and removes the scratch part.
#include "export/rename/rename_scratch.h"

#include <windows.h>

#include "frame/messages/run_log.h"
#include "frame/models/host_name.h"
#include "frame/text/letter_case.h"
#include "toolkit/model.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// A virus scanner may hold a new file a little longer.
constexpr int kDeleteAttempts = 20;
constexpr DWORD kPauseMs = 100;

std::wstring WorkingFolder() {
  ProPath path = {};
  if (!Ok(ProDirectoryCurrentGet(path))) return {};
  std::wstring folder(FixedText(path));
  while (folder.ends_with(L'\\') || folder.ends_with(L'/')) folder.pop_back();
  return folder;
}

// Nobody else's file has this name, and it goes with its handle, whatever becomes of the process.
bool IsWritable(const std::wstring& folder) {
  const std::wstring path =
      folder + L"\\quillmax-" + std::to_wstring(::GetCurrentProcessId()) + L".tmp";
  const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  ::CloseHandle(file);
  return true;
}

bool IsNumber(std::wstring_view text) {
  return !text.empty() && text.find_first_not_of(L"0123456789") == std::wstring_view::npos;
}

constexpr wchar_t kPart[] = L"prt";

// The files of a model in a folder, found without memory of its own once it is made.
class ModelFiles {
 public:
  ModelFiles(const std::wstring& folder, const std::wstring& model, const std::wstring& type)
      : file_(model + L"." + type), folder_(folder + L"\\"), pattern_(folder_ + file_ + L"*") {
    folder_.reserve(folder_.size() + MAX_PATH);
  }

  // Whether "model.type" or a version of it lies there.
  bool AnyVersion() const {
    bool any = false;
    ForEach([&](std::wstring_view rest) { any |= IsVersion(rest); });
    return any;
  }

  // The same, or any other "model.type.*"; also when that cannot be told.
  bool Any() const {
    bool any = false;
    const bool told =
        ForEach([&](std::wstring_view rest) { any |= rest.empty() || rest[0] == L'.'; });
    return any || !told;
  }

  // Deletes "model.type" and its versions.
  void Delete() noexcept {
    const size_t length = folder_.size();
    ForEach([&](std::wstring_view rest) {
      if (!IsVersion(rest)) return;
      folder_.append(file_).append(rest);
      if (!DeleteOne()) LogEvent("a scratch part's file could not be deleted");
      folder_.resize(length);
    });
  }

 private:
  static bool IsVersion(std::wstring_view rest) {
    return rest.empty() || (rest[0] == L'.' && IsNumber(rest.substr(1)));
  }

  // `use(what follows "model.type" in the file's name)`. False when the folder cannot be read.
  template <typename Use>
  bool ForEach(Use use) const {
    WIN32_FIND_DATAW found = {};
    const HANDLE search = ::FindFirstFileW(pattern_.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return ::GetLastError() == ERROR_FILE_NOT_FOUND;
    do {
      const std::wstring_view name = found.cFileName;
      // A short name of eight characters may have fitted in place of the real one.
      if (name.size() < file_.size() || !EqualIgnoringCase(name.substr(0, file_.size()), file_)) {
        continue;
      }
      use(name.substr(file_.size()));
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
    return true;
  }

  bool DeleteOne() const {
    for (int attempt = 0; attempt < kDeleteAttempts; ++attempt) {
      if (::DeleteFileW(folder_.c_str())) return true;
      if (::GetLastError() == ERROR_FILE_NOT_FOUND) return true;
      ::Sleep(kPauseMs);
    }
    return false;
  }

  std::wstring file_;
  std::wstring folder_;
  const std::wstring pattern_;
};

// A part that is in session and on disk for as long as this lives. No file of its name was there
// before, so that all that are there in the end are its own.
class ScratchPart {
 public:
  ScratchPart(ModelFiles files, HostName name) : files_(std::move(files)) {
    ProSolid part = nullptr;
    const ProError status = ProSolidCreate(name.name, PRO_PART, &part);
    if (Ok(status)) part_ = part;
  }
  ScratchPart(const ScratchPart&) = delete;
  ScratchPart& operator=(const ScratchPart&) = delete;
  ~ScratchPart() {
    if (part_ == nullptr) return;
    const ProError status = ProMdlErase(part_);
    if (!Ok(status)) LogEvent("a scratch part could not be erased");
    files_.Delete();
  }

  bool is_made() const { return part_ != nullptr; }
  void Save() const {
    const ProError status = ProMdlSave(part_);
    if (!Ok(status)) LogEvent("a scratch part could not be saved");
  }

 private:
  ModelFiles files_;
  ProMdl part_ = nullptr;
};

bool IsPartThere(std::wstring_view name) {
  auto host_name = RetrievalName::From(name);
  ProMdl part = nullptr;
  return host_name && Ok(ProMdlRetrieve(host_name->name, PRO_MDL_PART, &part));
}

bool IsTaken(const std::wstring& name, ModelFiles files) {
  const auto host_name = HostName::From(name);
  if (!host_name) return false;
  const ScratchPart part(std::move(files), *host_name);
  if (!part.is_made()) return false;
  part.Save();
  return IsPartThere(name);
}

}  // namespace

NameTrial::NameTrial(LegalNames& legal)
    : legal_(legal),
      directory_(WorkingFolder()),
      may_try_(!directory_.empty() && IsWritable(directory_)) {
  if (may_try_ || directory_.empty()) return;
  LogEvent("new names are not tried: nobody may write in the working directory");
}

bool NameTrial::HasFiles(const std::wstring& name, const std::wstring& type) const {
  return !directory_.empty() && ModelFiles(directory_, name, type).AnyVersion();
}

bool NameTrial::IsLegal(const std::wstring& name) {
  if (!may_try_ || legal_.contains(LowerCased(name))) return true;
  ModelFiles files(directory_, name, kPart);
  if (files.Any()) return true;
  if (!IsTaken(name, std::move(files))) return false;
  legal_.insert(LowerCased(name));
  return true;
}

}  // namespace qm
