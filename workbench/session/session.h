// The models in session, their folder on disk, windows, and the selection buffer: what a CAD
// session knows, apart from the host functions that show it.
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "workbench/session/model.h"

namespace wb {

// The newest version of each model file in one folder, read once.
class FolderIndex {
 public:
  explicit FolderIndex(const std::filesystem::path& folder);
  // Empty path: no such model here.
  std::filesystem::path Newest(const ModelName& name) const;
  int NewestVersion(const ModelName& name) const;
  std::vector<ModelName> Models() const;
  // From here on this version is the newest of its model. False, and nothing changes, when there is
  // no such version here.
  bool Choose(const ModelName& name, int version);

 private:
  struct Entry {
    ModelName name;
    int version;
    std::filesystem::path file;
  };
  std::unordered_map<std::string, Entry> entries_;
};

// Ids count from 0, the base window; this one stands for none.
inline constexpr int kNoWindow = -1;
inline constexpr int kBaseWindow = 0;

struct Window {
  int id = 0;
  Model* model = nullptr;
};

// What the user has picked: an item, reached from an assembly by component ids.
struct PickedItem {
  int type = 0;  // host's item type
  int id = 0;
  Model* owner = nullptr;
  Model* root = nullptr;
  std::vector<int> path;
};

class Session {
 public:
  // Called for each model that enters or leaves, so that handles can be given out and ended.
  std::function<void(Model&)> on_enter;
  std::function<void(Model&)> on_leave;

  const std::filesystem::path& working_directory() const { return working_directory_; }
  // False when the folder does not exist.
  bool ChangeDirectory(const std::filesystem::path& folder);

  Model* Find(const ModelName& name);
  // Takes the model from session or from the working directory (newest version), with all models
  // under it; a component whose file is missing stays unresolved. Null: not found.
  // Throws ModelFileError for a file that cannot be read, and for files by which an assembly would
  // hold itself; none of these models is in session then.
  Model* Retrieve(const ModelName& name);
  // The same with the file of a full path, whose name says a version or means the newest. All
  // models under it come from its folder. Null also when the file is of another kind.
  Model* RetrieveFile(const std::filesystem::path& file, ModelKind kind);
  // A copy of the drawing that others are made of: of the working directory by its name, or of a
  // full path. No value when there is none. Throws ModelFileError.
  std::optional<Model> Template(const std::filesystem::path& file);
  // Takes over a model made in memory; resolves its components from session only.
  Model& Add(Model model);
  // A copy under another name of the same kind, whose first save goes into the working directory.
  Model& Copy(const Model& model, const std::string& name);
  // Links components to models in session, wherever that has become possible.
  void Resolve(Model& model);
  // The same, and what follows from it in a drawing: what has been left out of its views.
  void Complete(Model& model);
  void Erase(Model& model);
  // All that no window shows and no shown model needs, to any depth.
  void EraseNotDisplayed();
  // Writes a new version into the model's folder (the working directory for a new model).
  std::filesystem::path Save(Model& model);
  // As the user saves: with an assembly, the changed models that it holds, to any depth.
  void SaveWithHeld(Model& model);
  // Under another name of the same kind, in session; its users point at it as before, and have work
  // for their next save. The files are left alone.
  void Rename(Model& model, const std::string& name);
  const std::deque<std::unique_ptr<Model>>& models() const { return models_; }

  // The model of the current window; null when no window shows one.
  Model* Current() const;
  // The model of the component that the user has activated in the current model; without one the
  // current model.
  Model* Active() const;
  // Null: none is activated.
  void ActivateComponent(Model* model) {
    activated_ = model;
    activated_in_ = Current();
  }
  Window& ShowInWindow(Model& model);
  // The window goes, its model stays in session. The base window stays, empty; it is what remains
  // to be current and active.
  void CloseWindow(int id);
  // Makes these the windows; ids of windows that have gone are not given again.
  void PutWindows(std::vector<Window> windows) { windows_ = std::move(windows); }
  Window* FindWindow(int id);
  Window* FindWindowOf(const Model& model);
  // The user works in it; it is the current one as well.
  void ActivateWindow(int id) { current_window_ = active_window_ = id; }
  void SetCurrentWindow(int id) { current_window_ = id; }
  int current_window() const { return current_window_; }
  int active_window() const { return active_window_; }
  const std::vector<Window>& windows() const { return windows_; }

  // Folders in which nobody may write.
  void MakeReadOnly(const std::filesystem::path& folder) { read_only_.push_back(folder); }
  bool IsReadOnly(const std::filesystem::path& folder) const;

  std::vector<PickedItem> selection_buffer;

 private:
  Model* RetrieveTree(const ModelName& name, const FolderIndex& folder);
  void LoadTree(const ModelName& name, const FolderIndex& folder, std::vector<Model*>& loaded);
  void RefuseCycle(const std::vector<Model*>& loaded, const FolderIndex& folder);
  Model* Load(const ModelName& name, const FolderIndex& folder);
  Model& Enter(Model model);
  std::unordered_set<Model*> Displayed();
  void EraseAll(const std::unordered_set<Model*>& models);

  std::filesystem::path working_directory_;
  std::deque<std::unique_ptr<Model>> models_;
  std::unordered_map<std::string, Model*> by_name_;
  std::vector<Window> windows_;
  int current_window_ = kNoWindow;
  int active_window_ = kNoWindow;
  int next_window_ = 0;
  Model* activated_ = nullptr;
  Model* activated_in_ = nullptr;
  std::vector<std::filesystem::path> read_only_;
};

}  // namespace wb
