// QmBom: the dialog with the bill's table.
#include "export/bill/bom.h"

#include <algorithm>

#include "export/bill/bill_export.h"
#include "export/bill/bill_table.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/retrieve.h"
#include "frame/models/shown_model.h"
#include "frame/settings/notepad.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr char kKindRadio[] = "BomRadio";
constexpr char kDepthMenu[] = "LevelOption";
constexpr char kSummaryButton[] = "SumBom";
constexpr char kLevelsButton[] = "LevelBom";

DialogTable TableOf(const DialogView& dialog) {
  return {dialog, kBillTable};
}

// Nothing when the host does not tell.
std::optional<BillKind> ChosenKind(const DialogView& dialog) {
  const auto button = dialog.TryRadioValue(kKindRadio);
  if (button == kSummaryButton) return BillKind::kSummary;
  if (button == kLevelsButton) return BillKind::kLevels;
  return std::nullopt;
}

// 0 when the host does not tell.
int ChosenDepth(const DialogView& dialog) {
  const auto item = dialog.TryOptionValue(kDepthMenu);
  return item ? DepthOf(*item) : 0;
}

// Switches the columns to the chosen bill. The rows stay empty until the user loads them.
void PrepareChosenBill(const DialogView& dialog) {
  CommandLog log("QmUpdateBomIni");
  const auto kind = ChosenKind(dialog);
  if (!kind) {
    ShowMessage(kUnreadableField);
    return;
  }
  dialog.EnableOption(kDepthMenu, *kind == BillKind::kLevels);
  NoteLeftOut(SetBillColumns(TableOf(dialog), *kind));
}

void LoadBill(const DialogView& dialog) {
  CommandLog log("QmLoadBom");
  const auto assembly = CurrentAssembly();
  if (!assembly) {
    // The user has opened a part from the bill, say. The dialog is of no use to it, and its end
    // shows the assembly again.
    TableOf(dialog).DeleteAllRows();
    ShowShortMessage(kAssembliesOnly);
    dialog.Exit();
    return;
  }
  const auto kind = ChosenKind(dialog);
  int depth = 0;
  if (kind == BillKind::kLevels) depth = ChosenDepth(dialog);
  if (!kind || (kind == BillKind::kLevels && depth == 0)) {
    ShowMessage(kUnreadableField);
    return;
  }
  FillBill(TableOf(dialog), *assembly, *kind, depth);
}

void OpenSettings(const DialogView&) {
  OpenInNotepad(kBillFile);
}

// The picture area stays empty.
void DrawNothing(const DialogView&) {}

// Shows the model of the row that was double-clicked. Only its colour tells the model's type.
void ShowRowModel(const DialogView& dialog) {
  CommandLog log(kBillTable);
  dialog.KeepAboveActiveWindow();
  const DialogTable table = TableOf(dialog);
  const auto names = table.ColumnNames();
  const auto labels = table.ColumnLabels();
  const auto rows = table.SelectedRows();
  if (!names || !labels || !rows || rows->empty()) return LogOutcome("nothing shown");
  const auto column = static_cast<size_t>(std::ranges::find(*labels, kNameLabel) - labels->begin());
  if (column >= std::min(labels->size(), names->size())) return LogOutcome("nothing shown");
  const auto name = table.Label(rows->front(), (*names)[column]);
  const auto color = table.Color(rows->front(), (*names)[column]);
  // Without its colour an assembly would be taken for a part of the same name.
  if (!name || name->empty() || !color) {
    ShowMessage(kUnreadableField);
    return;
  }
  const ProMdlType type = *color == kAssemblyColor ? PRO_MDL_ASSEMBLY : PRO_MDL_PART;
  const ProMdl model = RetrieveModel(*name, type);
  if (model == nullptr) return LogOutcome("nothing shown");
  const ProError status = ProMdlDisplay(model);
  if (Ok(status)) return;
  LogFailure(model, "ProMdlDisplay", status);
  LogOutcome("nothing shown");
}

void Bind(const Dialog& dialog) {
  dialog.BindButton<&OpenSettings>("QmOpenBomIni");
  dialog.BindButton<&PrepareChosenBill>("QmUpdateBomIni");
  dialog.BindButton<&LoadBill>("QmLoadBom");
  dialog.BindButton<&ExportBill>("QmExportBom");
  dialog.BindRadio<&PrepareChosenBill>(kKindRadio);
  dialog.BindTable<&ShowRowModel>(kBillTable);
  dialog.BindCloseButton();
  dialog.BindClose();
}

ProError Prepare(const Dialog& dialog, const std::optional<CurrentModel>& current) {
  Bind(dialog);
  const long long left_out = SetBillColumns(TableOf(dialog), BillKind::kSummary);
  const auto assembly = AssemblyOf(current);
  if (!assembly) {
    ShowShortMessage(kAssembliesOnly);
    return PRO_TK_BAD_CONTEXT;
  }
  FillBill(TableOf(dialog), *assembly, BillKind::kSummary, 0, left_out);
  if (ChosenKind(dialog) == BillKind::kSummary) dialog.EnableOption(kDepthMenu, false);
  dialog.BindDrawingArea<&DrawNothing>("DrawingArea");
  return PRO_TK_NO_ERROR;
}

}  // namespace

ProError QmBom() {
  const ShownModel shown(CurrentModelItself());
  // The user may have looked at models of the bill when the dialog ends.
  return RunDialog(
      "QmBom", [&](const Dialog& dialog) { return Prepare(dialog, shown.model()); },
      [&] { shown.ShowAgain(); });
}

}  // namespace qm
