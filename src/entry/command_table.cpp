// The command table itself, checked at compile time, and the registered function of each row.
#include "entry/command_table.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "assembly/components/backup.h"
#include "assembly/components/box.h"
#include "assembly/components/mdl_count.h"
#include "assembly/components/remove_cons.h"
#include "assembly/components/sim_rep.h"
#include "assembly/create/clone_and_replace.h"
#include "assembly/create/clone_comp.h"
#include "assembly/create/merge.h"
#include "assembly/create/merge_to.h"
#include "assembly/create/new_asm.h"
#include "assembly/create/new_part.h"
#include "assembly/create/new_smt.h"
#include "display/batch_color.h"
#include "display/clear_all_color.h"
#include "display/hide_reverse.h"
#include "display/isolate.h"
#include "display/normal_view.h"
#include "display/show_all_comp.h"
#include "display/surf_transparent.h"
#include "display/transparent.h"
#include "drawing/change/dim_modify.h"
#include "drawing/change/drw_scale_check.h"
#include "drawing/change/frm_replace.h"
#include "drawing/change/same_scale.h"
#include "drawing/change/single_dim.h"
#include "drawing/change/update_main_view_scale.h"
#include "drawing/change/update_sheet_scale.h"
#include "drawing/create/new_draw.h"
#include "drawing/create/new_drw.h"
#include "drawing/create/twe_views.h"
#include "export/bill/bom.h"
#include "export/components/ex_igs.h"
#include "export/components/ex_sat.h"
#include "export/components/ex_stp.h"
#include "export/drawings/export.h"
#include "export/drawings/export_dwg.h"
#include "export/drawings/export_pdf.h"
#include "export/drawings/export_stp.h"
#include "export/rename/mdl_rename.h"
#include "export/rename/rename.h"
#include "frame/commands/about_qm.h"
#include "frame/commands/box_sel.h"
#include "frame/commands/box_sel_sur.h"
#include "frame/commands/config.h"
#include "frame/commands/for_test.h"
#include "frame/commands/mdl_name_copy.h"
#include "frame/commands/open_dir.h"
#include "frame/commands/qq_group.h"
#include "frame/commands/set_directory.h"
#include "frame/commands/version.h"
#include "frame/guard/shield.h"
#include "params/assign/set_bend_table.h"
#include "params/assign/set_mat.h"
#include "params/assign/set_unit.h"
#include "params/params.h"
#include "params/relations.h"

namespace qm {
namespace {

using enum AccessRule;

// The help key of BatchColor and the icons of BatchColor and AboutQm do not follow from the names:
// menu texts and icon files are keyed by them.
// clang-format off
constexpr CommandRow kCommandTable[] = {
//   name                     help key                      icon                         action            access rule           designated
    {"QmOpenDir",             "QmOpenDir_Help",             "QmOpenDir.png",             &QmOpenDir,      kAlways,             true},
    {"QmBackup",              "QmBackup_Help",              "QmBackup.png",              &QmBackup,       kAssemblyMode,       true},
    {"NewPart",               "NewPart_Help",               "NewPart.png",               &NewPart,        kAssemblyMode,       true},
    {"NewAsm",                "NewAsm_Help",                "NewAsm.png",                &NewAsm,         kAssemblyMode,       true},
    {"NewSmt",                "NewSmt_Help",                "NewSmt.png",                &NewSmt,         kAssemblyMode,       true},
    {"BatchColor",            "Color_Help",                 "RandomColor.png",           &BatchColor,      kSolidMode,          true},
    {"QmClearAllColor",       "QmClearAllColor_Help",       "QmClearAllColor.png",       &QmClearAllColor, kSolidMode,          true},
    {"QmBoxSelSur",           "QmBoxSelSur_Help",           "QmBoxSelSur.png",           &QmBoxSelSur,    kSolidMode,          true},
    {"QmTransparent",         "QmTransparent_Help",         "QmTransparent.png",         &QmTransparent,   kSolidMode,          true},
    {"SurfTransparent",       "SurfTransparent_Help",       "SurfTransparent.png",       &SurfTransparent, kSolidMode,          true},
    {"BoxSel",                "BoxSel_Help",                "BoxSel.png",                &BoxSel,         kAssemblyMode,       true},
    {"SetMat",                "SetMat_Help",                "SetMat.png",                &SetMat,         kPartOrAssemblyMode, true},
    {"SetBendTable",          "SetBendTable_Help",          "SetBendTable.png",          &SetBendTable,   kPartOrAssemblyMode, true},
    {"SameScale",             "SameScale_Help",             "SameScale.png",             &SameScale,      kDrawingMode,        true},
    {"QmIsolate",             "QmIsolate_Help",             "QmIsolate.png",             &QmIsolate,      kAssemblyMode,       true},
    {"QmHideReverse",         "QmHideReverse_Help",         "QmHideReverse.png",         &QmHideReverse,  kAssemblyMode,       true},
    {"QmShowAllComp",         "QmShowAllComp_Help",         "QmShowAllComp.png",         &QmShowAllComp,  kAssemblyMode,       true},
    {"QmNormalView",          "QmNormalView_Help",          "QmNormalView.png",          &QmNormalView,   kAlways,             true},
    {"QmParams",              "QmParams_Help",              "QmParams.png",              &QmParams,       kAssemblyMode,       true},
    {"QmRelations",           "QmRelations_Help",           "QmRelations.png",           &QmRelations,    kAssemblyMode,       true},
    {"SetUnit",               "SetUnit_Help",               "SetUnit.png",               &SetUnit,        kPartOrAssemblyMode, true},
    {"CloneComp",             "CloneComp_Help",             "CloneComp.png",             &CloneComp,      kAssemblyMode,       true},
    {"CloneAndReplace",       "CloneAndReplace_Help",       "CloneAndReplace.png",       &CloneAndReplace, kAssemblyMode,       true},
    {"QmMerge",               "QmMerge_Help",               "QmMerge.png",               &QmMerge,        kAssemblyMode,       true},
    {"QmMergeTo",             "QmMergeTo_Help",             "QmMergeTo.png",             &QmMergeTo,      kAssemblyMode,       true},
    {"TweViews",              "TweViews_Help",              "TweViews.png",              &TweViews,       kSolidMode,          true},
    {"NewDraw",               "NewDraw_Help",               "NewDraw.png",               &NewDraw,        kSolidMode,          true},
    {"QmExStp",               "QmExStp_Help",               "QmExStp.png",               &QmExStp,       kAssemblyMode,       true},
    {"QmExIgs",               "QmExIgs_Help",               "QmExIgs.png",               &QmExIgs,       kAssemblyMode,       true},
    {"QmExSat",               "QmExSat_Help",               "QmExSat.png",               &QmExSat,       kAssemblyMode,       true},
    {"QmBom",                 "QmBom_Help",                 "QmBom.png",                 &QmBom,          kAssemblyMode,       true},
    {"QmRename",              "QmRename_Help",              "QmRename.png",              &QmRename,       kAssemblyMode,       true},
    {"QmRemoveCons",          "QmRemoveCons_Help",          "QmRemoveCons.png",          &QmRemoveCons,   kAssemblyMode,       true},
    {"QmExport",              "QmExport_Help",              "QmExport.png",              &QmExport,       kAlways,             true},
    {"QmMdlCount",            "QmMdlCount_Help",            "QmMdlCount.png",            &QmMdlCount,     kAssemblyMode,       true},
    {"QmNewDrw",              "QmNewDrw_Help",              "QmNewDrw.png",              &QmNewDrw,       kAssemblyMode,       true},
    {"QmDimModify",           "QmDimModify_Help",           "QmDimModify.png",           &QmDimModify,    kDrawingMode,        true},
    {"QmFrmReplace",          "QmFrmReplace_Help",          "QmFrmReplace.png",          &QmFrmReplace,   kAlways,             true},
    {"QmDrwScaleCheck",       "QmDrwScaleCheck_Help",       "QmDrwScaleCheck.png",       &QmDrwScaleCheck, kAlways,             true},
    {"QmSimRep",              "QmSimRep_Help",              "QmSimRep.png",              &QmSimRep,       kAssemblyMode,       true},
    {"QmBox",                 "QmBox_Help",                 "QmBox.png",                 &QmBox,          kAssemblyMode,       true},
    {"QmExportDwg",           "QmExportDwg_Help",           "QmExportDwg.png",           &QmExportDwg,    kDrawingMode,        true},
    {"QmExportPdf",           "QmExportPdf_Help",           "QmExportPdf.png",           &QmExportPdf,    kDrawingMode,        true},
    {"QmMdlNameCopy",         "QmMdlNameCopy_Help",         "QmMdlNameCopy.png",         &QmMdlNameCopy,  kAssemblyMode,       true},
    {"QmMdlRename",           "QmMdlRename_Help",           "QmMdlRename.png",           &QmMdlRename,    kAssemblyMode,       true},
    {"QmExportStp",           "QmExportStp_Help",           "QmExportStp.png",           &QmExportStp,    kSolidMode,          true},
    {"QmUpdateSheetScale",    "QmUpdateSheetScale_Help",    "QmUpdateSheetScale.png",    &QmUpdateSheetScale, kDrawingMode,        true},
    {"QmUpdateMainViewScale", "QmUpdateMainViewScale_Help", "QmUpdateMainViewScale.png", &QmUpdateMainViewScale, kDrawingMode,        true},
    {"QmSingleDim",           "QmSingleDim_Help",           "QmSingleDim.png",           &QmSingleDim,    kDrawingMode,        true},
    {"QmSetDirectory",        "QmSetDirectory_Help",        "QmSetDirectory.png",        &QmSetDirectory, kAlways,             true},
    {"QmConfig",              "QmConfig_Help",              "QmConfig.png",              &QmConfig,       kAlways,             true},
    {"ForTest",               "ForTest_Help",               "ForTest.png",               &ForTest,        kAlways,             true},
    {"QmQQGroup",             "QmQQGroup_Help",             "QmQQGroup.png",             &QmQQGroup,      kAlways,             false},
    {"QmVersion",             "QmVersion_Help",             "QmVersion.png",             &QmVersion,      kAlways,             false},
    {"AboutQm",               "AboutQm_Help",               "AboutQuillmax.png",         &AboutQm,        kAlways,             false},
};
// clang-format on

constexpr std::size_t kCommandCount = std::size(kCommandTable);
static_assert(kCommandCount == 55);

constexpr bool NamesAreUnique() {
  for (std::size_t i = 0; i < kCommandCount; ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (std::string_view(kCommandTable[i].name) == kCommandTable[j].name) return false;
    }
  }
  return true;
}
static_assert(NamesAreUnique());

constexpr bool RowsAreFilled() {
  return std::ranges::all_of(kCommandTable, [](const CommandRow& row) {
    return row.action != nullptr && std::string_view(row.help).ends_with("_Help") &&
           std::string_view(row.icon).ends_with(".png");
  });
}
static_assert(RowsAreFilled());

template <std::size_t Row>
int RunRow(uiCmdCmdId, uiCmdValue*, void*) noexcept {
  return RunCommand(kCommandTable[Row].name, kCommandTable[Row].action);
}

template <std::size_t... Rows>
constexpr std::array<uiCmdCmdActFn, sizeof...(Rows)> FunctionsOf(std::index_sequence<Rows...>) {
  return {&RunRow<Rows>...};
}

constexpr auto kCommandFunctions = FunctionsOf(std::make_index_sequence<kCommandCount>());

}  // namespace

std::span<const CommandRow> CommandTable() {
  return kCommandTable;
}

uiCmdCmdActFn CommandFunction(std::size_t row) {
  return kCommandFunctions[row];
}

std::size_t CommandRowOf(std::string_view name) {
  const auto* const row = std::ranges::find(
      kCommandTable, name, [](const CommandRow& r) { return std::string_view(r.name); });
  return static_cast<std::size_t>(row - std::begin(kCommandTable));
}

}  // namespace qm
