// SetMat: reads a material file that the user picks into each part and makes the material the
// part's current one.
#include "params/assign/set_mat.h"

#include <algorithm>
#include <iterator>

#include "frame/folders/working_directory.h"
#include "frame/messages/run_log.h"
#include "params/assign/part_file.h"
#include "toolkit/properties.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr PartFileQuestion kQuestion = {L"pro_material_dir", L"请选择材料", L"*.mtl,*.mat"};
constexpr PartKind kParts = {ComponentKind::kParts, L"当前模型中没有零件", L"未找到子零件", nullptr,
                             nullptr};

// A part that has a material of this name keeps it and makes it the current one: whatever the host
// answers to the reading, what counts is whether the material can be had.
bool Assign(ProMdl part, HostName name) {
  const ProError read = ProMaterialfileRead(part, name.name);
  if (!Ok(read) && read != PRO_TK_E_FOUND) LogFailure(part, "ProMaterialfileRead", read);
  ProMaterial material = {};
  std::copy(std::begin(name.name), std::end(name.name), material.matl_name);
  material.part = part;
  const ProError status = ProMaterialCurrentSet(&material);
  if (!Ok(status)) LogFailure(part, "ProMaterialCurrentSet", status);
  return Ok(status);
}

}  // namespace

ProError SetMat() {
  const auto file = AskPartFile(kQuestion);
  if (!file) return PRO_TK_USER_ABORT;
  // Materials are read by name: those of another folder would be other ones.
  WorkingDirectory directory;
  const ProError entered = directory.Enter(file->folder);
  if (!Ok(entered)) {
    LogOutcome("nothing done, the material's folder cannot be entered");
    return entered;
  }
  const auto choice =
      ForEachPart(kParts, [&](ProMdl part, bool) { return Assign(part, file->name); });
  directory.Return();
  TellEnd(choice, L"\t材料设置完成\t");
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
