// Host functions for files: the list of a folder, and the parts of a path.
#include <map>

#include "workbench/host/arguments.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

// Whether a name fits a pattern with stars, without case.
bool Fits(std::string_view name, std::string_view pattern) {
  const size_t star = pattern.find('*');
  if (star == pattern.npos) return name == pattern;
  if (!name.starts_with(pattern.substr(0, star))) return false;
  name.remove_prefix(star);
  pattern.remove_prefix(star + 1);
  for (size_t skipped = 0; skipped <= name.size(); ++skipped) {
    if (Fits(name.substr(skipped), pattern)) return true;
  }
  return false;
}

bool FitsAny(const std::string& name, std::string_view patterns) {
  while (!patterns.empty()) {
    const size_t comma = std::min(patterns.find(','), patterns.size());
    if (Fits(FoldCase(name), FoldCase(patterns.substr(0, comma)))) return true;
    patterns.remove_prefix(std::min(comma + 1, patterns.size()));
  }
  return false;
}

bool IsNumber(std::string_view text) {
  return !text.empty() && text.size() < 6 && text.find_first_not_of("0123456789") == text.npos;
}

// A file's name apart from its version: "bolt.prt.3" is "bolt.prt" and 3.
struct VersionedFile {
  explicit VersionedFile(std::string file_name) : name(std::move(file_name)) {
    const size_t dot = name.rfind('.');
    const bool versioned = dot != name.npos && IsNumber(std::string_view(name).substr(dot + 1)) &&
                           name.find('.') != dot;
    if (!versioned) return;
    version = std::stoi(name.substr(dot + 1));
    name.erase(dot);
  }
  std::string name;
  int version = 0;
};

// The files of a folder that fit, by name and version.
using FoundFiles = std::map<std::pair<std::string, int>, fs::path>;
FoundFiles FilesIn(const fs::path& folder, const std::string& filter) {
  FoundFiles found;
  std::error_code error;
  for (const auto& item : fs::directory_iterator(folder, error)) {
    const VersionedFile file(PathToUtf8(item.path().filename()));
    if (!item.is_regular_file() || !FitsAny(file.name, filter)) continue;
    found[{FoldCase(file.name), file.version}] = item.path();
  }
  return found;
}

std::vector<fs::path> PathsOf(const FoundFiles& found, bool latest_alone) {
  std::vector<fs::path> paths;
  for (auto file = found.begin(); file != found.end(); ++file) {
    const auto next = std::next(file);
    const bool is_latest = next == found.end() || next->first.first != file->first.first;
    if (is_latest || !latest_alone) paths.push_back(file->second);
  }
  return paths;
}

std::vector<fs::path> FoldersIn(const fs::path& folder) {
  std::vector<fs::path> folders;
  std::error_code error;
  for (const auto& item : fs::directory_iterator(folder, error)) {
    if (item.is_directory()) folders.push_back(item.path());
  }
  std::ranges::sort(folders);
  return folders;
}

// An array of paths that the plug-in has made, to be added to.
struct PathsIn : RecordIn<ProPath*> {
  PathsIn(ProPath** paths, const char* name) : RecordIn(paths, name) {}
  ProPath*& Look(const Call& call) const {
    ProPath*& held = RecordIn::Look(call);
    ArrayIn(held, what).Look(call);
    return held;
  }
};

void AddPaths(const Call& call, ProPath*& array, const std::vector<fs::path>& paths) {
  for (const fs::path& path : paths) {
    ProPath text{};
    call.CopyText(text, PRO_PATH_SIZE, PathToUtf8(path));
    array = static_cast<ProPath*>(AddToArray(call, array, PRO_VALUE_UNUSED, 1, text));
  }
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProFilesList(wchar_t* folder, wchar_t* filter, ProFileListOpt option, ProPath** files,
                      ProPath** folders) {
  return Crossing(__func__, OptionalTextIn{{folder, PRO_PATH_SIZE, "folder"}},
                  TextIn{filter, PRO_PATH_SIZE, "filter"}, option, PathsIn(files, "files"),
                  PathsIn(folders, "folders"))
      .Run([](const Call& call, const std::string& where, const std::string& patterns,
              ProFileListOpt wanted, ProPath*& file_place, ProPath*& folder_place) {
        if (wanted != PRO_FILE_LIST_ALL && wanted != PRO_FILE_LIST_LATEST) {
          throw NotModelled{"file list option " + std::to_string(static_cast<int>(wanted))};
        }
        const fs::path at = call.host.session.working_directory() / PathFromUtf8(where);
        const Habits& habits = call.host.habits;
        const bool latest_alone = wanted == PRO_FILE_LIST_LATEST && !habits.file_list_repeats_names;
        const std::vector<fs::path> found = PathsOf(FilesIn(at, patterns), latest_alone);
        AddPaths(call, file_place, found);
        AddPaths(call, folder_place, FoldersIn(at));
        return found.empty() && habits.empty_file_list_fails ? PRO_TK_E_NOT_FOUND : PRO_TK_NO_ERROR;
      });
}

ProError ProFilenameParse(ProPath full, wchar_t* folder, wchar_t* name, wchar_t* extension,
                          int* version) {
  return Crossing(__func__, TextIn{full, PRO_PATH_SIZE, "path"}, OutText{folder, PRO_PATH_SIZE},
                  OutText{name, PRO_PATH_SIZE}, OutText{extension, PRO_PATH_SIZE},
                  Out(version, "version place"))
      .Run([](const std::string& path, TextPlace folder_place, TextPlace name_place,
              TextPlace extension_place, int& version_place) {
        const size_t end = path.find_last_of("\\/:") + 1;  // 0 for a name alone
        const VersionedFile file(path.substr(end));
        const size_t dot = file.name.rfind('.');
        folder_place = path.substr(0, end);
        name_place = file.name.substr(0, dot);
        extension_place = dot == file.name.npos ? "" : file.name.substr(dot + 1);
        version_place = file.version;
      });
}
