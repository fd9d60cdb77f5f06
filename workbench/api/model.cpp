// Host functions of the model family.
#include <unordered_set>

#include "workbench/api/model_record.h"
#include "workbench/host/arguments.h"
#include "workbench/session/model_file.h"
#include "workbench/session/renaming.h"

namespace wb {

namespace {

ProModelitem ModelItemOf(const Model& model) {
  return {static_cast<ProType>(model.id.kind), 0, model.handle};
}

bool IsSkeleton(const Model& model) {
  const SolidContent* const solid = model.As<SolidContent>();
  return solid != nullptr && solid->skeleton;
}

// The answer for a model that may be missing.
ProError Answer(const Model* model, ProMdl& place) {
  if (model == nullptr) return PRO_TK_E_NOT_FOUND;
  place = model->handle;
  return PRO_TK_NO_ERROR;
}

// What a model is retrieved by: its name, or the full path of its file in the same place.
struct RetrievalNameIn {
  const wchar_t* name;
  std::string Describe() const { return DescribeArgument(name); }
  std::string Look(const Call& call) const {
    const std::string text = call.Text(name, PRO_PATH_SIZE, "model path");
    if (IsPath(text)) return text;
    if (text.find('<') == std::string::npos) return call.ModelNameText(name);
    return call.Text(name, PRO_FAMILY_NAME_SIZE, "name of an instance");
  }
  static bool IsPath(const std::string& text) { return text.find_first_of("\\/:") != text.npos; }
};

struct KindIn {
  ProMdlType type;
  std::string Describe() const { return DescribeArgument(type); }
  ModelKind Look(const Call& call) const {
    for (const ModelKindRow& row : kKindNames) {
      if (static_cast<int>(row.kind) == static_cast<int>(type)) return row.kind;
    }
    call.Fail("model type " + std::to_string(static_cast<int>(type)));
  }
};

// Subtypes of the workbench's own, which the plug-in must not know.
constexpr int kSubtypeOfNoPart = 0;
constexpr int kSubtypeOfSolidPart = 3;

ProMdlsubtype SubtypeOf(const Model& model) {
  if (model.id.kind != ModelKind::kPart) return static_cast<ProMdlsubtype>(kSubtypeOfNoPart);
  return model.solid().sheet_metal ? PROMDLSTYPE_PART_SHEETMETAL
                                   : static_cast<ProMdlsubtype>(kSubtypeOfSolidPart);
}

// A format of the folder that the configuration names.
Model* FormatOfFolders(const Call& call, const std::string& name) {
  const auto folders = call.host.options.find("pro_format_dir");
  if (folders == call.host.options.end()) return nullptr;
  for (const std::string& folder : folders->second) {
    const std::filesystem::path file = PathFromUtf8(folder) / PathFromUtf8(name + ".frm");
    if (Model* const format = call.host.session.RetrieveFile(file, ModelKind::kFormat)) {
      return format;
    }
  }
  return nullptr;
}

std::filesystem::path FolderOf(const Call& call, const Model& model) {
  return model.folder.empty() ? call.host.session.working_directory() : model.folder;
}

// Where the next version goes.
std::filesystem::path SaveFolder(const Call& call, const Model& model) {
  const auto option = call.host.options.find("override_store_back");
  const bool overrides =
      option != call.host.options.end() && option->second == std::vector<std::string>{"yes"};
  return overrides ? call.host.session.working_directory() : FolderOf(call, model);
}

ProError Rename(const Call& call, Model& model, const std::string& name) {
  const ModelName after{name, model.id.kind};
  const std::filesystem::path folder = FolderOf(call, model);
  if (!IsLegalModelName(name)) return PRO_TK_INVALID_NAME;
  const bool is_free = !call.host.IsTaken(after) && !HasModelFile(folder, after) &&
                       !HasModelFile(call.host.session.working_directory(), after);
  if (!is_free) return PRO_TK_E_FOUND;
  if (call.host.session.IsReadOnly(folder)) return PRO_TK_NO_PERMISSION;
  if (call.host.habits.rename_leaves_files) {
    model.version = 0;
  } else {
    RenameModelFiles(folder, model.id, after);
  }
  call.host.session.Rename(model, name);
  return PRO_TK_NO_ERROR;
}

// In session, and on disk unless the host waits for a save.
ProError Copy(const Call& call, const Model& source, const std::string& name, ProMdl& place) {
  Session& session = call.host.session;
  const ModelName wanted{name, source.id.kind};
  if (!IsLegalModelName(name)) return PRO_TK_INVALID_NAME;
  if (call.host.IsTaken(wanted) || HasModelFile(session.working_directory(), wanted)) {
    return PRO_TK_E_FOUND;
  }
  if (session.IsReadOnly(session.working_directory())) return PRO_TK_NO_PERMISSION;
  Model& copy = session.Copy(source, name);
  try {
    if (!call.host.habits.copy_stays_in_session) session.Save(copy);
  } catch (const ModelFileError&) {
    session.Erase(copy);
    throw;
  }
  place = copy.handle;
  return PRO_TK_NO_ERROR;
}

ProError LoadFile(const Call& call, const std::filesystem::path& file, ProMdlType type,
                  ProMdl& place) {
  const std::string text = PathToUtf8(file.filename());
  const auto versioned = ParseFileName(text);
  const auto name = versioned ? versioned->model : ParseModelName(text);
  if (!name) return PRO_TK_E_NOT_FOUND;
  const bool is_of_type = type == PRO_MDL_UNUSED || static_cast<int>(name->kind) == type;
  if (!is_of_type) return PRO_TK_INVALID_TYPE;
  return Answer(call.host.session.RetrieveFile(file, name->kind), place);
}

// The model, and with an assembly all that it uses, each once.
std::vector<const Model*> BackedUpWith(const Call& call, Model& model) {
  std::vector<const Model*> models = {&model};
  if (model.id.kind != ModelKind::kAssembly || call.host.habits.backup_leaves_what_is_used) {
    return models;
  }
  std::unordered_set<const Model*> met = {&model};
  std::vector<Model*> pending = {&model};
  while (!pending.empty()) {
    Model* const at = pending.back();
    pending.pop_back();
    ForEachLink(*at, [&](const ModelLink& link) {
      if (link.model == nullptr || !met.insert(link.model).second) return;
      models.push_back(link.model);
      pending.push_back(link.model);
    });
  }
  return models;
}

// Next versions in the folder; the session's models know nothing of them.
void WriteBackups(const std::vector<const Model*>& models, const std::filesystem::path& folder) {
  const FolderIndex index(folder);
  for (const Model* const model : models) {
    const int version = index.NewestVersion(model->id) + 1;
    WriteModelFile(*model, folder / PathFromUtf8(model->id.Text() + "." + std::to_string(version)));
  }
}

ProError BackUp(const Call& call, Model& model, const ProMdldata& record) {
  const ModelRecordText target = ReadRecord(call, record);
  if (!EqualFolded(target.name, model.id.name)) call.Fail("the record is that of another model");
  const std::filesystem::path folder =
      call.host.session.working_directory() / PathFromUtf8(target.folder);
  std::error_code error;
  if (!std::filesystem::is_directory(folder, error)) return PRO_TK_INVALID_DIR;
  if (call.host.session.IsReadOnly(folder)) return PRO_TK_NO_PERMISSION;
  try {
    WriteBackups(BackedUpWith(call, model), folder);
    return PRO_TK_NO_ERROR;
  } catch (const ModelFileError& problem) {
    call.host.events.Add(FileProblem{problem.what()});
    return PRO_TK_CANT_WRITE;
  }
}

bool IsUsed(Session& session, const Model& model) {
  bool is_used = false;
  for (const auto& user : session.models()) {
    ForEachLink(*user, [&](const ModelLink& link) { is_used = is_used || link.model == &model; });
  }
  return is_used;
}

// The file of a model that has one.
std::string OriginOf(const Model& model) {
  return PathToUtf8(model.folder /
                    PathFromUtf8(model.id.Text() + "." + std::to_string(model.version)));
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProMdlCurrentGet(ProMdl* model) {
  return Crossing(__func__, Out(model, "model place")).Run([](const Call& call, ProMdl& place) {
    const Model* const current = call.host.session.Current();
    if (current == nullptr) return PRO_TK_BAD_CONTEXT;
    place = current->handle;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProMdlActiveGet(ProMdl* model) {
  return Crossing(__func__, Out(model, "model place")).Run([](const Call& call, ProMdl& place) {
    const Model* const active = call.host.session.Active();
    if (active == nullptr) return PRO_TK_BAD_CONTEXT;
    place = active->handle;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProMdlTypeGet(ProMdl model, ProMdlType* type) {
  return Crossing(__func__, ModelIn{model}, Out(type, "type place"))
      .Run([](const Model& from, ProMdlType& place) {
        place = static_cast<ProMdlType>(from.id.kind);
      });
}

ProError ProMdlSubtypeGet(ProMdl model, ProMdlsubtype* subtype) {
  return Crossing(__func__, ModelIn{model}, Out(subtype, "subtype place"))
      .Run([](const Model& from, ProMdlsubtype& place) { place = SubtypeOf(from); });
}

ProError ProMdlNameGet(ProMdl model, ProName name) {
  return Crossing(__func__, ModelIn{model}, OutText{name, PRO_NAME_SIZE})
      .Run([](const Model& from, TextPlace place) { place = from.id.name; });
}

ProError ProMdlDataGet(ProMdl model, ProMdldata* data) {
  return Crossing(__func__, ModelIn{model}, Out(data, "record place"))
      .Run([](const Call& call, const Model& from, ProMdldata& record) {
        FillRecord(call, from, record);
      });
}

ProError ProMdlOriginGet(ProMdl model, ProPath origin) {
  return Crossing(__func__, ModelIn{model}, OutText{origin, PRO_PATH_SIZE})
      .Run([](const Call& call, const Model& from, TextPlace place) {
        if (from.version == 0) return PRO_TK_E_NOT_FOUND;
        const bool has_no_version = call.host.habits.origin_has_no_version;
        place = has_no_version ? PathToUtf8(from.folder / PathFromUtf8(from.id.Text()))
                               : OriginOf(from);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProMdlToModelitem(ProMdl model, ProModelitem* item) {
  return Crossing(__func__, ModelIn{model}, Out(item, "item place"))
      .Run([](const Model& from, ProModelitem& place) { place = ModelItemOf(from); });
}

ProError ProModelitemMdlGet(ProModelitem* item, ProMdl* model) {
  return Crossing(__func__, RecordIn(item, "item"), Out(model, "model place"))
      .Run([](const Call& call, const ProModelitem& from, ProMdl& place) {
        place = call.ModelAt(from.owner).handle;
      });
}

ProError ProMdlRetrieve(ProFamilyName name, ProMdlType type, ProMdl* model) {
  return Crossing(__func__, RetrievalNameIn{name}, KindIn{type}, Out(model, "model place"))
      .Run([](const Call& call, const std::string& wanted, ModelKind kind, ProMdl& place) {
        Session& session = call.host.session;
        if (wanted.find('<') != std::string::npos) throw NotModelled{"an instance of a family"};
        try {
          Model* const found = RetrievalNameIn::IsPath(wanted)
                                   ? session.RetrieveFile(PathFromUtf8(wanted), kind)
                                   : session.Retrieve({wanted, kind});
          const bool try_formats = found == nullptr && kind == ModelKind::kFormat;
          return Answer(try_formats ? FormatOfFolders(call, wanted) : found, place);
        } catch (const ModelFileError& error) {
          call.host.events.Add(FileProblem{error.what()});
          return PRO_TK_INVALID_FILE;
        }
      });
}

ProError ProMdlLoad(ProPath path, ProMdlType type, ProBoolean ask_for_representation,
                    ProMdl* model) {
  return Crossing(__func__, PathIn{path, "model path"}, type, ask_for_representation,
                  Out(model, "model place"))
      .Run([](const Call& call, const std::filesystem::path& file, ProMdlType kind, ProBoolean ask,
              ProMdl& place) {
        if (ask != PRO_B_FALSE) throw NotModelled{"a question about representations"};
        try {
          return LoadFile(call, file, kind, place);
        } catch (const ModelFileError& error) {
          call.host.events.Add(FileProblem{error.what()});
          return PRO_TK_INVALID_FILE;
        }
      });
}

ProError ProMdlCopy(ProMdl model, ProName new_name, ProMdl* copy) {
  return Crossing(__func__, ModelIn{model}, ModelNameIn{new_name}, Out(copy, "copy place"))
      .Run([](const Call& call, const Model& source, const std::string& name, ProMdl& place) {
        try {
          return Copy(call, source, name, place);
        } catch (const ModelFileError& error) {
          call.host.events.Add(FileProblem{error.what()});
          return PRO_TK_CANT_WRITE;
        }
      });
}

ProError ProMdlDisplay(ProMdl model) {
  return Crossing(__func__, ModelIn{model}).Run([](const Call& call, Model& shown) {
    Session& session = call.host.session;
    Window* const current = session.FindWindow(session.current_window());
    if (session.FindWindowOf(shown) != nullptr) return;
    if (current != nullptr) {
      current->model = &shown;
    } else {
      session.ActivateWindow(session.ShowInWindow(shown).id);
    }
  });
}

ProError ProMdlWindowGet(ProMdl model, int* window) {
  return Crossing(__func__, ModelIn{model}, Out(window, "window place"))
      .Run([](const Call& call, const Model& shown, int& place) {
        const Window* const found = call.host.session.FindWindowOf(shown);
        if (found == nullptr) return PRO_TK_E_NOT_FOUND;
        place = found->id;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProMdlSave(ProMdl model) {
  return Crossing(__func__, ModelIn{model}).Run([](const Call& call, Model& saved) {
    Session& session = call.host.session;
    const bool has_work = saved.modified || saved.version == 0;
    if (!has_work) return PRO_TK_NO_ERROR;
    const std::filesystem::path folder = SaveFolder(call, saved);
    if (session.IsReadOnly(folder)) return PRO_TK_NO_PERMISSION;
    try {
      saved.folder = folder;
      session.Save(saved);
      return PRO_TK_NO_ERROR;
    } catch (const ModelFileError& error) {
      call.host.events.Add(FileProblem{error.what()});
      return PRO_TK_CANT_WRITE;
    }
  });
}

ProError ProMdlBackup(ProMdl model, ProMdldata* target) {
  return Crossing(__func__, ModelIn{model}, RecordIn(target, "record")).Run(&BackUp);
}

ProError ProMdlRename(ProMdl model, ProName new_name) {
  return Crossing(__func__, ModelIn{model}, ModelNameIn{new_name})
      .Run([](const Call& call, Model& renamed, const std::string& name) {
        try {
          return Rename(call, renamed, name);
        } catch (const ModelFileError& error) {
          call.host.events.Add(FileProblem{error.what()});
          return PRO_TK_CANT_WRITE;
        }
      });
}

ProError ProMdlErase(ProMdl model) {
  return Crossing(__func__, ModelIn{model}).Run([](const Call& call, Model& erased) {
    if (IsUsed(call.host.session, erased)) throw NotModelled{"erasing a model that others use"};
    if (call.host.habits.erasing_acts_at_the_end) call.host.leaving.push_back(erased.id);
    call.host.session.Erase(erased);
  });
}

ProError ProSolidCreate(ProName name, ProType type, ProSolid* solid) {
  return Crossing(__func__, ModelNameIn{name}, type, Out(solid, "solid place"))
      .Run([](const Call& call, const std::string& wanted, ProType kind, ProSolid& place) {
        if (kind != PRO_PART && kind != PRO_ASSEMBLY) call.Fail("neither a part nor an assembly");
        const ModelName id{wanted, static_cast<ModelKind>(kind)};
        if (!IsLegalModelName(wanted)) return PRO_TK_INVALID_NAME;
        if (call.host.IsTaken(id)) return PRO_TK_E_FOUND;
        Model& made = call.host.session.Add(Model(id));
        made.modified = true;
        place = made.handle;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProMdlEraseNotDisplayed() {
  return Crossing(__func__).Run([](const Call& call) { call.host.session.EraseNotDisplayed(); });
}

ProError ProMdlIsSkeleton(ProMdl model, ProBoolean* is_skeleton) {
  return Crossing(__func__, ModelIn{model}, Out(is_skeleton, "answer place"))
      .Run([](const Model& from, ProBoolean& place) {
        place = IsSkeleton(from) ? PRO_B_TRUE : PRO_B_FALSE;
      });
}

ProError ProMfgAssemGet(ProMfg mfg, ProAssembly* assembly) {
  return Crossing(__func__, ManufacturingIn(mfg), Out(assembly, "assembly place"))
      .Run([](const ManufacturingContent& from, ProAssembly& place) {
        return Answer(from.assembly ? from.assembly->model : nullptr, place);
      });
}
