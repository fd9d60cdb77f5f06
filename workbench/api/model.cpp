// Host functions of the model family.
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

// Erased models count until the host has control again.
bool IsTaken(const Call& call, const ModelName& name) {
  const auto is_it = [&](const ModelName& leaving) {
    return EqualFolded(leaving.Text(), name.Text());
  };
  return call.host.session.Find(name) != nullptr || std::ranges::any_of(call.host.leaving, is_it);
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
  const bool is_free = !IsTaken(call, after) && !HasModelFile(folder, after) &&
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
      .Run([](const Model& from, TextPlace place) {
        if (from.version == 0) return PRO_TK_E_NOT_FOUND;
        place = OriginOf(from);
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
        if (IsTaken(call, id)) return PRO_TK_E_FOUND;
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
