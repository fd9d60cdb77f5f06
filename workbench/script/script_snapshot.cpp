// Keeps and puts back sessions and folders.
#include "workbench/script/script_snapshot.h"

#include <fstream>
#include <ranges>
#include <set>
#include <unordered_set>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/script/script_windows.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> AllBelow(const fs::path& folder) {
  std::vector<fs::path> paths;
  std::error_code error;
  for (const auto& item : fs::recursive_directory_iterator(folder, error)) {
    if (item.is_directory()) paths.push_back(item.path() / "");
    if (item.is_regular_file()) paths.push_back(item.path());
  }
  return paths;
}

// Entries of settings are written through at once.
std::string Content(const fs::path& file) {
  return ReadFileBytes(file).value_or("");
}

// Windows keeps what it has read of a settings file.
void WriteBack(const fs::path& file, const std::string& content) {
  if (file.extension() == ".ini") FlushProfile(file);
  fs::create_directories(file.parent_path());
  if (!IsFolder(file)) std::ofstream(file, std::ios::binary | std::ios::trunc) << content;
}

void Remove(const fs::path& path) {
  std::error_code error;
  fs::remove(IsFolder(path) ? path.parent_path() : path, error);
}

std::vector<bool> ResolvedLinks(Model& model) {
  std::vector<bool> resolved;
  ForEachLink(model, [&](const ModelLink& link) { resolved.push_back(link.model != nullptr); });
  return resolved;
}

// The whole of `held`, but under the handle that the model has now.
void PutBack(const Model& held, const std::vector<bool>& resolved, Session& session) {
  Model& model = *session.Find(held.id);
  void* const handle = model.handle;
  model = held;
  model.handle = handle;
  auto was_resolved = resolved.begin();
  ForEachLink(model, [&](ModelLink& link) {
    link.model = *was_resolved++ ? session.Find(link.name) : nullptr;
  });
}

}  // namespace

FileContents FilesWithContents(const fs::path& folder) {
  FileContents files;
  for (const fs::path& path : AllBelow(folder)) {
    files[path] = IsFolder(path) ? "" : Content(path);
  }
  return files;
}

FolderContents ContentsOf(const std::vector<fs::path>& folders) {
  FolderContents contents;
  for (const fs::path& folder : folders) contents.push_back(FilesWithContents(folder));
  return contents;
}

FolderSnapshot::FolderSnapshot(fs::path folder)
    : folder_(std::move(folder)), files_(FilesWithContents(folder_)) {}

std::vector<std::pair<std::string, std::string>> FolderSnapshot::Differences() const {
  return DifferencesOf(FilesWithContents(folder_));
}

std::vector<std::pair<std::string, std::string>> FolderSnapshot::DifferencesOf(
    const FileContents& now) const {
  std::vector<std::pair<std::string, std::string>> differences;
  for (const auto& [file, content] : now) {
    const auto held = files_.find(file);
    if (held == files_.end()) {
      differences.emplace_back(PathToUtf8(file), "new");
    } else if (content != held->second) {
      differences.emplace_back(PathToUtf8(file), "changed");
    }
  }
  for (const auto& [file, content] : files_) {
    if (!now.contains(file)) differences.emplace_back(PathToUtf8(file), "deleted");
  }
  return differences;
}

bool FolderSnapshot::Restore(const FileContents& now) const {
  const auto differences = DifferencesOf(now);
  // What lies in a new folder stands behind it.
  for (const auto& [name, what] : std::views::reverse(differences)) {
    if (what == "new") Remove(PathFromUtf8(name));
  }
  for (const auto& [name, what] : differences) {
    const fs::path file = PathFromUtf8(name);
    if (what != "new") WriteBack(file, files_.at(file));
  }
  return !differences.empty();
}

SessionSnapshot::SessionSnapshot(const Host& host, const std::vector<fs::path>& folders)
    : folder_paths_(folders),
      current_window_(host.session.current_window()),
      active_window_(host.session.active_window()),
      working_directory_(host.session.working_directory()),
      current_folder_(fs::current_path()),
      clipboard_(ClipboardText().value_or("")),
      options_(host.options) {
  for (const auto& model : host.session.models()) {
    models_.push_back({*model, ResolvedLinks(*model)});
  }
  for (const PickedItem& pick : host.session.selection_buffer) {
    buffer_.push_back({pick, pick.owner->id, pick.root->id});
  }
  for (const Window& window : host.session.windows()) {
    windows_.push_back({window.id, window.model != nullptr ? window.model->id : ModelName(),
                        window.model != nullptr});
  }
  const Model* const active = host.session.Active();
  if (active != host.session.Current()) activated_ = active->id;
  for (const fs::path& folder : folders) folders_.emplace_back(folder);
}

void SessionSnapshot::RestoreModels(Session& session) const {
  std::unordered_set<std::string> held_names;
  for (const HeldModel& held : models_) held_names.insert(held.model.id.Text());
  std::vector<Model*> newcomers;
  for (const auto& model : session.models()) {
    if (!held_names.contains(model->id.Text())) newcomers.push_back(model.get());
  }
  for (Model* const model : newcomers) session.Erase(*model);
  for (const HeldModel& held : models_) {
    if (session.Find(held.model.id) == nullptr) session.Add(held.model);
  }
  for (const HeldModel& held : models_) PutBack(held.model, held.resolved, session);
}

void SessionSnapshot::RestoreWindows(Session& session) const {
  std::vector<Window> windows;
  for (const HeldWindow& held : windows_) {
    windows.push_back({held.id, held.shows_model ? session.Find(held.model) : nullptr});
  }
  session.PutWindows(std::move(windows));
  session.ActivateWindow(active_window_);
  session.SetCurrentWindow(current_window_);
  session.ActivateComponent(activated_ ? session.Find(*activated_) : nullptr);
}

void SessionSnapshot::Restore(Host& host) const {
  Restore(host, ContentsOf(folder_paths_));
}

bool SessionSnapshot::Restore(Host& host, const FolderContents& now) const {
  RestoreModels(host.session);
  RestoreWindows(host.session);
  host.session.selection_buffer.clear();
  for (const HeldPick& held : buffer_) {
    PickedItem pick = held.pick;
    pick.owner = host.session.Find(held.owner);
    pick.root = host.session.Find(held.root);
    host.session.selection_buffer.push_back(pick);
  }
  host.session.ChangeDirectory(working_directory_);
  fs::current_path(current_folder_);
  host.options = options_;
  if (ClipboardText().value_or("") != clipboard_) SetClipboardText(clipboard_);
  bool has_touched = false;
  for (size_t i = 0; i < folders_.size(); ++i) has_touched |= folders_[i].Restore(now[i]);
  return has_touched;
}

}  // namespace wb
