// Lists and retrieves the drawings of a folder.
#include "frame/folders/folder_drawings.h"

#include <unordered_set>

#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/retrieve.h"
#include "frame/text/fixed_text.h"
#include "frame/text/letter_case.h"
#include "frame/text/text.h"
#include "toolkit/owners.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr size_t kProgressStep = 20;

// The host adds to both arrays, which it may move.
ProError AddFiles(std::wstring filter, HostArray<ProPath>* files, HostArray<ProPath>* folders) {
  ProPath* file_array = files->release();
  ProPath* folder_array = folders->release();
  const ProError status =
      ProFilesList(nullptr, filter.data(), PRO_FILE_LIST_LATEST, &file_array, &folder_array);
  files->reset(file_array);
  folders->reset(folder_array);
  return status;
}

}  // namespace

std::vector<std::wstring> FilesOfFolder(std::wstring filter) {
  HostArray<ProPath> files;
  HostArray<ProPath> folders;
  if (!Ok(files.Allocate()) || !Ok(folders.Allocate())) return {};
  const ProError status = AddFiles(std::move(filter), &files, &folders);
  if (!Ok(status)) {
    // Some hosts answer so where no file fits.
    if (status != PRO_TK_E_NOT_FOUND) LogFailure(nullptr, "ProFilesList", status);
    return {};
  }
  std::vector<std::wstring> paths;
  const int count = files.size();
  for (int i = 0; i < count; ++i) paths.emplace_back(FixedText(files[i]));
  return paths;
}

std::optional<FileParts> PartsOfPath(const std::wstring& path) {
  ProPath full = {};
  wchar_t folder[PRO_PATH_SIZE] = {};
  wchar_t name[PRO_PATH_SIZE] = {};
  wchar_t extension[PRO_PATH_SIZE] = {};
  int version = 0;
  ProError status = PRO_TK_LINE_TOO_LONG;
  if (FillFixedText(path, full)) {
    status = ProFilenameParse(full, folder, name, extension, &version);
  }
  if (Ok(status) && !FixedText(name).empty()) {
    return FileParts{std::wstring(FixedText(name)), std::wstring(FixedText(extension))};
  }
  LogFailure("ProFilenameParse of " + ToUtf8(path) + " answered " + StatusName(status));
  return std::nullopt;
}

std::wstring NameInPath(const std::wstring& path) {
  auto parts = PartsOfPath(path);
  return parts ? std::move(parts->name) : std::wstring();
}

std::vector<std::wstring> DrawingsOfFolder() {
  std::vector<std::wstring> names;
  std::unordered_set<std::wstring> seen;
  for (const std::wstring& path : FilesOfFolder(L"*.drw")) {
    std::wstring name = NameInPath(path);
    if (!name.empty() && seen.insert(LowerCased(name)).second) names.push_back(std::move(name));
  }
  if (names.empty()) ShowShortMessage(kNoDrawings);
  return names;
}

void ForEachDrawing(const std::vector<std::wstring>& names,
                    const std::function<void(ProDrawing drawing, const std::wstring& name)>& work) {
  for (size_t done = 0; done < names.size(); ++done) {
    if (done > 0 && done % kProgressStep == 0) {
      const std::wstring progress = std::to_wstring(done) + L" / " + std::to_wstring(names.size());
      DisplayNote("Drawings done: %0w", progress.c_str());
    }
    if (ProMdl drawing = RetrieveModel(names[done], PRO_MDL_DRAWING)) work(drawing, names[done]);
  }
  LogCount("drawings", static_cast<long long>(names.size()));
}

}  // namespace qm
