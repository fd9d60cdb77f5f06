// QmExSat: like QmExStp, by a number that the host's maker gives the format and that only the user
// can look up. A wrong one is told by the first file that does not come to be.
#include "export/components/ex_sat.h"

#include <utility>

#include "export/components/component_export.h"
#include "export/components/component_file_rules.h"
#include "export/files/export_folder.h"
#include "frame/guard/visit.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/settings/config.h"
#include "frame/text/list_rules.h"
#include "toolkit/export_3d.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

constexpr wchar_t kNoType[] = L"\t尚未配置SAT导出类型，请先在配置文件中填写\t";
constexpr wchar_t kWrongType[] = L"\tSAT导出失败，请检查QmConfig.ini中的导出类型\t";

// An answer that ends the visit at the first surface.
constexpr ProError kFound = PRO_TK_E_FOUND;

// A model without surfaces gives no file for reasons of its own.
bool HasSurfaces(ProMdl model) {
  return VisitSurfaces(model, [](ProSurface) { return kFound; }) == kFound;
}

class SatWriter {
 public:
  explicit SatWriter(int type) : type_(type) {}

  ProError Write(ProMdl model, ProPath file) {
    if (!shape_) {
      const ProError status = Begin();
      if (!Ok(status)) return status;
    }
    return ProIntf3DFileWrite(static_cast<ProSolid>(model), type_, file,
                              PRO_OUTPUT_ASSEMBLY_SINGLE_FILE, nullptr, shape_.get(), nullptr,
                              nullptr);
  }

  // Only the first model that has surfaces decides.
  const wchar_t* Objection(ProMdl model, bool is_there) {
    if (is_decided_ || !HasSurfaces(model)) return nullptr;
    is_decided_ = true;
    return is_there ? nullptr : kWrongType;
  }

 private:
  // Solids, and quilts of models that are no solid. Kept when it is whole, for all files.
  ProError Begin() {
    BrepRepresentation shape;
    ProError status = ProOutputBrepRepresentationAlloc(shape.put());
    if (!Ok(status) || !shape) return Ok(status) ? PRO_TK_OUT_OF_MEMORY : status;
    status = ProOutputBrepRepresentationFlagsSet(shape.get(), PRO_B_FALSE, PRO_B_FALSE, PRO_B_TRUE,
                                                 PRO_B_TRUE);
    if (Ok(status)) shape_ = std::move(shape);
    return status;
  }

  int type_;
  BrepRepresentation shape_;
  bool is_decided_ = false;
};

}  // namespace

ProError QmExSat() {
  const auto components = OpenComponents();
  if (!components) return PRO_TK_E_NOT_FOUND;
  const std::wstring setting =
      WithoutBlanks(ReadSetting(L"QmExSatType", kValueKey, ConfigPath(kConfigFile)));
  if (setting.empty()) {
    ShowMessage(kNoType);
    return PRO_TK_E_NOT_FOUND;
  }
  const auto folder = AskFolder(L"请选择SAT文件导出位置");
  if (!folder) {
    LogOutcome("nothing exported, no folder");
    return PRO_TK_USER_ABORT;
  }
  const auto type = FormatNumber(setting);
  if (!type) {
    ShowMessage(kWrongType);
    return PRO_TK_BAD_INPUTS;
  }
  SatWriter writer(*type);
  const ComponentFormat format = {
      L".sat", L"\tSAT导出已完成\t",
      [&](ProMdl model, ProPath file) { return writer.Write(model, file); },
      [&](ProMdl model, bool is_there) { return writer.Objection(model, is_there); }};
  return ExportAllComponents(*components, *folder, format);
}

}  // namespace qm
