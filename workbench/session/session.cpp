// Session of models over a folder of versioned model files.
#include "workbench/session/session.h"

#include <algorithm>
#include <stdexcept>

#include "workbench/base/text.h"
#include "workbench/session/drawing_views.h"
#include "workbench/session/model_cycle.h"
#include "workbench/session/model_file.h"
#include "workbench/session/renaming.h"

namespace wb {
namespace {

std::string Key(const ModelName& name) {
  return FoldCase(name.Text());
}

}  // namespace

FolderIndex::FolderIndex(const std::filesystem::path& folder) {
  std::error_code error;
  for (const auto& item : std::filesystem::directory_iterator(folder, error)) {
    const std::string text = PathToUtf8(item.path().filename());
    auto name = ParseFileName(text);
    // A file without a version, as other programs copy it, is older than all that have one.
    if (const auto plain = name ? std::nullopt : ParseModelName(text)) name = {*plain, 0};
    if (!name) continue;
    auto [at, fresh] =
        entries_.try_emplace(Key(name->model), Entry{name->model, name->version, item.path()});
    if (!fresh && at->second.version < name->version) {
      at->second = {name->model, name->version, item.path()};
    }
  }
}

std::filesystem::path FolderIndex::Newest(const ModelName& name) const {
  const auto found = entries_.find(Key(name));
  return found == entries_.end() ? std::filesystem::path() : found->second.file;
}

int FolderIndex::NewestVersion(const ModelName& name) const {
  const auto found = entries_.find(Key(name));
  return found == entries_.end() ? 0 : found->second.version;
}

std::vector<ModelName> FolderIndex::Models() const {
  std::vector<ModelName> names;
  for (const auto& [key, entry] : entries_) names.push_back(entry.name);
  std::sort(names.begin(), names.end(),
            [](const ModelName& a, const ModelName& b) { return Key(a) < Key(b); });
  return names;
}

bool FolderIndex::Choose(const ModelName& name, int version) {
  const auto found = entries_.find(Key(name));
  if (found == entries_.end()) return false;
  const std::string newest = PathToUtf8(found->second.file);
  const std::filesystem::path file =
      PathFromUtf8(newest.substr(0, newest.rfind('.') + 1) + std::to_string(version));
  if (!std::filesystem::exists(file)) return false;
  found->second.version = version;
  found->second.file = file;
  return true;
}

bool Session::ChangeDirectory(const std::filesystem::path& folder) {
  std::error_code error;
  if (!std::filesystem::is_directory(folder, error)) return false;
  // With or without a closing separator it is the same folder.
  const bool closed = !folder.has_filename() && folder.has_relative_path();
  working_directory_ = closed ? folder.parent_path() : folder;
  return true;
}

Model* Session::Find(const ModelName& name) {
  const auto found = by_name_.find(Key(name));
  return found == by_name_.end() ? nullptr : found->second;
}

Model* Session::Retrieve(const ModelName& name) {
  if (Model* present = Find(name)) return present;
  return RetrieveTree(name, FolderIndex(working_directory_));
}

Model* Session::RetrieveFile(const std::filesystem::path& file, ModelKind kind) {
  const std::string text = PathToUtf8(file.filename());
  const auto versioned = ParseFileName(text);
  const auto name = versioned ? versioned->model : ParseModelName(text);
  if (!name || name->kind != kind) return nullptr;
  if (Model* const present = Find(*name)) return present;
  FolderIndex folder(file.parent_path());
  if (versioned && !folder.Choose(*name, versioned->version)) return nullptr;
  return RetrieveTree(*name, folder);
}

Model* Session::RetrieveTree(const ModelName& name, const FolderIndex& folder) {
  std::vector<Model*> loaded;
  try {
    LoadTree(name, folder, loaded);
    RefuseCycle(loaded, folder);
  } catch (const ModelFileError&) {
    for (Model* const model : loaded) Erase(*model);
    throw;
  }
  for (Model* const model : loaded) Complete(*model);
  return loaded.empty() ? nullptr : loaded.front();
}

// The model and those under it. Those that were loaded before a failure are in `loaded` too.
void Session::LoadTree(const ModelName& name, const FolderIndex& folder,
                       std::vector<Model*>& loaded) {
  std::vector<Model*> pending;
  const auto load = [&](const ModelName& wanted) {
    Model* const found = Load(wanted, folder);
    if (found == nullptr) return;
    loaded.push_back(found);
    pending.push_back(found);
  };
  load(name);
  while (!pending.empty()) {
    Model* const model = pending.back();
    pending.pop_back();
    ForEachLink(*model, [&](const ModelLink& link) {
      if (Find(link.name) == nullptr) load(link.name);
    });
    Resolve(*model);
  }
}

std::optional<Model> Session::Template(const std::filesystem::path& file) {
  const std::filesystem::path full = working_directory_ / file;
  const std::string text = PathToUtf8(full.filename());
  const auto versioned = ParseFileName(text);
  const auto name = versioned ? versioned->model : ParseModelName(text);
  if (!name || name->kind != ModelKind::kDrawing) return std::nullopt;
  const Model* const present = Find(*name);
  const bool is_it = present != nullptr && !versioned && present->folder == full.parent_path();
  if (is_it) return *present;
  FolderIndex folder(full.parent_path());
  if (versioned && !folder.Choose(*name, versioned->version)) return std::nullopt;
  const std::filesystem::path newest = folder.Newest(*name);
  return newest.empty() ? std::nullopt : std::optional(ReadModelFile(newest));
}

// Models that were in session before hold none of the `loaded` ones, so a new cycle is all of
// these.
void Session::RefuseCycle(const std::vector<Model*>& loaded, const FolderIndex& folder) {
  const std::vector<const Model*> cycle = FindCycle({loaded.begin(), loaded.end()});
  if (cycle.empty() || std::ranges::find(loaded, cycle.back()) == loaded.end()) return;
  const std::filesystem::path file = folder.Newest(cycle[cycle.size() - 2]->id);
  const ModelName under = cycle.back()->id;
  const std::string why = under.Text() + " would hold itself: " + CycleText(cycle);
  RefuseModelUnder(file, under, why);
}

Model* Session::Load(const ModelName& name, const FolderIndex& folder) {
  const std::filesystem::path file = folder.Newest(name);
  if (file.empty()) return nullptr;
  return &Enter(ReadModelFile(file));
}

Model& Session::Add(Model model) {
  Model& added = Enter(std::move(model));
  Complete(added);
  return added;
}

Model& Session::Enter(Model model) {
  models_.push_back(std::make_unique<Model>(std::move(model)));
  Model& added = *models_.back();
  by_name_[Key(added.id)] = &added;
  if (on_enter) on_enter(added);
  Resolve(added);
  return added;
}

void Session::Resolve(Model& model) {
  ForEachLink(model, [this](ModelLink& link) {
    if (link.model == nullptr) link.model = Find(link.name);
  });
}

void Session::Complete(Model& model) {
  Resolve(model);
  if (DrawingContent* const drawing = model.As<DrawingContent>()) CompleteViews(*drawing);
}

bool Session::IsReadOnly(const std::filesystem::path& folder) const {
  std::error_code error;
  return std::ranges::any_of(read_only_, [&](const std::filesystem::path& closed) {
    return std::filesystem::equivalent(closed, folder, error);
  });
}

Model& Session::Copy(const Model& model, const std::string& name) {
  Model copy = model;
  copy.id.name = name;
  copy.handle = nullptr;
  copy.folder = working_directory_;
  copy.version = 0;
  copy.modified = true;
  return Add(std::move(copy));
}

void Session::Erase(Model& model) {
  EraseAll({&model});
}

void Session::EraseAll(const std::unordered_set<Model*>& models) {
  for (const auto& other : models_) {
    ForEachLink(*other, [&](ModelLink& link) {
      if (models.contains(link.model)) link.model = nullptr;
    });
  }
  for (Window& window : windows_) {
    if (models.contains(window.model)) window.model = nullptr;
  }
  std::erase_if(selection_buffer, [&](const PickedItem& item) {
    return models.contains(item.owner) || models.contains(item.root);
  });
  if (models.contains(activated_) || models.contains(activated_in_)) activated_ = nullptr;
  for (Model* const model : models) {
    if (on_leave) on_leave(*model);
    by_name_.erase(Key(model->id));
  }
  std::erase_if(models_, [&](const auto& held) { return models.contains(held.get()); });
}

std::unordered_set<Model*> Session::Displayed() {
  std::unordered_set<Model*> displayed;
  std::vector<Model*> ahead;
  const auto need = [&](Model* model) {
    if (model != nullptr && displayed.insert(model).second) ahead.push_back(model);
  };
  for (const Window& window : windows_) need(window.model);
  while (!ahead.empty()) {
    Model& model = *ahead.back();
    ahead.pop_back();
    ForEachLink(model, [&](const ModelLink& link) { need(link.model); });
    const DrawingContent* const drawing = model.As<DrawingContent>();
    if (drawing == nullptr) continue;
    for (const Sheet& sheet : drawing->sheets) {
      const std::string name = sheet.format.substr(0, sheet.format.rfind('.'));
      if (!name.empty()) need(Find({name, ModelKind::kFormat}));
    }
  }
  return displayed;
}

void Session::EraseNotDisplayed() {
  const std::unordered_set<Model*> displayed = Displayed();
  std::unordered_set<Model*> others;
  for (const auto& model : models_) {
    if (!displayed.contains(model.get())) others.insert(model.get());
  }
  EraseAll(others);
}

void Session::Rename(Model& model, const std::string& name) {
  const ModelName before = model.id;
  by_name_.erase(Key(before));
  model.id.name = name;
  model.modified = true;
  by_name_[Key(model.id)] = &model;
  for (const auto& user : models_) {
    if (TakeNewName(*user, before, model)) user->modified = true;
  }
}

std::filesystem::path Session::Save(Model& model) {
  if (model.folder.empty()) model.folder = working_directory_;
  model.version = FolderIndex(model.folder).NewestVersion(model.id) + 1;
  const std::filesystem::path file =
      model.folder / PathFromUtf8(model.id.Text() + "." + std::to_string(model.version));
  WriteModelFile(model, file);
  model.modified = false;
  return file;
}

void Session::SaveWithHeld(Model& model) {
  std::unordered_set<Model*> met = {&model};
  std::vector<Model*> ahead = {&model};
  while (!ahead.empty()) {
    Model& next = *ahead.back();
    ahead.pop_back();
    if (next.id.kind == ModelKind::kAssembly) {
      ForEachLink(next, [&](const ModelLink& link) {
        if (link.model != nullptr && met.insert(link.model).second) ahead.push_back(link.model);
      });
    }
    if (&next == &model || next.modified) Save(next);
  }
}

Model* Session::Current() const {
  for (const Window& window : windows_) {
    if (window.id == current_window_) return window.model;
  }
  return nullptr;
}

Model* Session::Active() const {
  const bool counts = activated_ != nullptr && activated_in_ == Current();
  return counts ? activated_ : Current();
}

Window& Session::ShowInWindow(Model& model) {
  if (Window* shown = FindWindowOf(model)) return *shown;
  windows_.push_back({next_window_++, &model});
  return windows_.back();
}

void Session::CloseWindow(int id) {
  std::erase_if(windows_,
                [&](const Window& window) { return window.id == id && window.id != kBaseWindow; });
  Window* const base = FindWindow(kBaseWindow);
  if (id == kBaseWindow && base != nullptr) base->model = nullptr;
  const int remaining = base != nullptr ? kBaseWindow : kNoWindow;
  if (current_window_ == id) current_window_ = remaining;
  if (active_window_ == id) active_window_ = remaining;
}

Window* Session::FindWindow(int id) {
  for (Window& window : windows_) {
    if (window.id == id) return &window;
  }
  return nullptr;
}

Window* Session::FindWindowOf(const Model& model) {
  for (Window& window : windows_) {
    if (window.model == &model) return &window;
  }
  return nullptr;
}

}  // namespace wb
