// Host functions of the model family.
#include "workbench/host/loans.h"
#include "workbench/session/model_file.h"

namespace wb {

namespace {

ProModelitem ModelItemOf(const Model& model) {
  return {static_cast<ProType>(model.id.kind), 0, model.handle};
}

// The answer for a model that may be missing.
ProError Answer(Model* model, ProMdl& place) {
  if (model == nullptr) return PRO_TK_E_NOT_FOUND;
  place = model->handle;
  return PRO_TK_NO_ERROR;
}

ModelKind KindArgument(const Call& call, ProMdlType type) {
  for (const ModelKindRow& row : kKindNames) {
    if (static_cast<int>(row.kind) == static_cast<int>(type)) return row.kind;
  }
  call.Fail("model type " + std::to_string(static_cast<int>(type)));
}

// Splits "C:\parts" as the host's record does: the drive apart from the path.
void FillPlace(const Call& call, const Model& model, ProMdldata& data) {
  const std::string folder = PathToUtf8(model.folder);
  const bool has_drive = folder.size() > 1 && folder[1] == ':';
  call.CopyText(data.device, PRO_NAME_SIZE, has_drive ? folder.substr(0, 2) : "");
  call.CopyText(data.path, PRO_PATH_SIZE, has_drive ? folder.substr(2) : folder);
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProMdlCurrentGet(ProMdl* model) {
  return Crossing("ProMdlCurrentGet", Out(model)).Run([&](Call& call) {
    ProMdl& place = call.Place(model, "model place");
    Model* const current = call.host.session.Current();
    if (current == nullptr) return PRO_TK_BAD_CONTEXT;
    place = current->handle;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProMdlTypeGet(ProMdl model, ProMdlType* type) {
  return Crossing("ProMdlTypeGet", model, Out(type)).Run([&](Call& call) {
    call.Place(type, "type place") = static_cast<ProMdlType>(call.ModelAt(model).id.kind);
    return PRO_TK_NO_ERROR;
  });
}

ProError ProMdlSubtypeGet(ProMdl model, ProMdlsubtype* subtype) {
  return Crossing("ProMdlSubtypeGet", model, Out(subtype)).Run([&](Call& call) {
    const Model& found = call.ModelAt(model);
    const bool part = found.id.kind == ModelKind::kPart;
    call.Place(subtype, "subtype place") = !part               ? PROMDLSTYPE_NONE
                                           : found.sheet_metal ? PROMDLSTYPE_PART_SHEETMETAL
                                                               : PROMDLSTYPE_PART_SOLID;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProMdlNameGet(ProMdl model, ProName name) {
  return Crossing("ProMdlNameGet", model, OutText(name, PRO_NAME_SIZE)).Run([&](Call& call) {
    call.CopyText(name, PRO_NAME_SIZE, call.ModelAt(model).id.name);
    return PRO_TK_NO_ERROR;
  });
}

ProError ProMdlDataGet(ProMdl model, ProMdldata* data) {
  return Crossing("ProMdlDataGet", model, Out(data)).Run([&](Call& call) {
    const Model& found = call.ModelAt(model);
    ProMdldata& record = call.Place(data, "record place");
    record = {};
    FillPlace(call, found, record);
    call.CopyText(record.name, PRO_NAME_SIZE, found.id.name);
    call.CopyText(record.type, PRO_TYPE_SIZE, KindExtension(found.id.kind));
    record.version = found.version;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProMdlToModelitem(ProMdl model, ProModelitem* item) {
  return Crossing("ProMdlToModelitem", model, Out(item)).Run([&](Call& call) {
    call.Place(item, "item place") = ModelItemOf(call.ModelAt(model));
    return PRO_TK_NO_ERROR;
  });
}

ProError ProModelitemMdlGet(ProModelitem* item, ProMdl* model) {
  return Crossing("ProModelitemMdlGet", item, Out(model)).Run([&](Call& call) {
    const ProModelitem& from = call.Place(item, "item");
    call.Place(model, "model place") = call.ModelAt(from.owner).handle;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProMdlRetrieve(ProFamilyName name, ProMdlType type, ProMdl* model) {
  return Crossing("ProMdlRetrieve", name, type, Out(model)).Run([&](Call& call) {
    const ModelName wanted{call.ModelNameText(name), KindArgument(call, type)};
    ProMdl& place = call.Place(model, "model place");
    try {
      return Answer(call.host.session.Retrieve(wanted), place);
    } catch (const ModelFileError& error) {
      call.host.file_problems.push_back(error.what());
      return PRO_TK_INVALID_FILE;
    }
  });
}

ProError ProMdlDisplay(ProMdl model) {
  return Crossing("ProMdlDisplay", model).Run([&](Call& call) {
    Model& shown = call.ModelAt(model);
    Session& session = call.host.session;
    Window* const own = session.FindWindowOf(shown);
    Window* const current = session.FindWindow(session.current_window());
    if (own == nullptr && current != nullptr) current->model = &shown;
    if (own == nullptr && current == nullptr)
      session.ActivateWindow(session.ShowInWindow(shown).id);
    return PRO_TK_NO_ERROR;
  });
}

ProError ProMdlIsSkeleton(ProMdl model, ProBoolean* is_skeleton) {
  return Crossing("ProMdlIsSkeleton", model, Out(is_skeleton)).Run([&](Call& call) {
    call.Place(is_skeleton, "answer place") =
        call.ModelAt(model).skeleton ? PRO_B_TRUE : PRO_B_FALSE;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProMfgAssemGet(ProMfg mfg, ProAssembly* assembly) {
  return Crossing("ProMfgAssemGet", mfg, Out(assembly)).Run([&](Call& call) {
    const Model& model = call.ModelAt(mfg);
    if (model.id.kind != ModelKind::kManufacturing) call.Fail("not a manufacturing model");
    return Answer(model.mfg_assembly_model, call.Place(assembly, "assembly place"));
  });
}
