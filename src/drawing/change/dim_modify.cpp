// QmDimModify: each button of the palette acts at once, on the preselected dimensions or on those
// that the user then picks one by one.
#include "drawing/change/dim_modify.h"

#include <string>

#include "drawing/change/dim_modify_rules.h"
#include "drawing/change/dimension_change.h"
#include "frame/dialogs/dialog.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/preselection.h"
#include "toolkit/drawing.h"
#include "toolkit/model.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr char kDialog[] = "QmDimModify";

struct TypedField {
  const char* panel;
  const wchar_t* missing;
};
constexpr TypedField kQuantity = {"numInput", L"\t请先输入数量\t"};
constexpr TypedField kDepth = {"depthInput", L"\t请先输入钻孔深度\t"};

// What the user typed for the button, empty for one that wants nothing. Nothing, after a message,
// when there is nothing to work with.
std::optional<std::wstring> TypedText(const DialogView& dialog, DimChange change) {
  if (!WantsTyping(change)) return std::wstring();
  const TypedField& field = change == DimChange::kQuantity ? kQuantity : kDepth;
  auto text = dialog.TryInputValue(field.panel);
  if (text && !text->empty()) return text;
  ShowMessage(text ? field.missing : kUnreadableField);
  return std::nullopt;
}

// The drawing and its sheet that a button works on.
struct Place {
  ProDrawing drawing = nullptr;
  int sheet = 0;
};

// Nothing but a dimension is changed.
void ChangeOn(const Place& place, const DimensionChange& change, ProSelection selection) {
  auto item = ItemOf(selection);
  if (!item || item->type != PRO_DIMENSION) return;
  change.Apply(*item);
  ProDwgSheetRegenerate(place.drawing, place.sheet);
}

void ChangeSelected(const Place& place, const DimensionChange& change,
                    const Preselected& selected) {
  for (int i = 0; i < selected.size(); ++i) ChangeOn(place, change, selected[i]);
}

// Until the user cancels.
void ChangePicked(const Place& place, const DimensionChange& change) {
  while (true) {
    ProSelection* picked = nullptr;
    int count = 0;
    const ProError status =
        ProSelect("dimension", 1, nullptr, nullptr, nullptr, nullptr, &picked, &count);
    if (!Ok(status) || count < 1 || picked == nullptr) return;
    ChangeOn(place, change, picked[0]);
  }
}

ProError Change(const DialogView& dialog, const DimButton& button) {
  Place place;
  ProError status = ProMdlCurrentGet(&place.drawing);
  if (!Ok(status) || place.drawing == nullptr) return PRO_TK_E_NOT_FOUND;
  status = ProDrawingCurrentSheetGet(place.drawing, &place.sheet);
  if (!Ok(status)) return status;
  if (place.sheet < kFirstSheet) return PRO_TK_GENERAL_ERROR;
  const auto typed = TypedText(dialog, button.change);
  if (!typed) return PRO_TK_GENERAL_ERROR;
  const DimensionChange change(button, *typed);
  if (const auto selected = ReadPreselection()) {
    ChangeSelected(place, change, *selected);
  } else {
    ChangePicked(place, change);
  }
  // The next button would change what the user takes for let go.
  return ClearsSelection(button.change) ? ProSelbufferClear() : PRO_TK_NO_ERROR;
}

void Press(const DialogView& dialog, const DimButton& button) {
  CommandLog log("QmDimModify");
  LogEvent(std::string("QmDimModify/") + button.button);
  log.set_status(Change(dialog, button));
}

}  // namespace

ProError QmDimModify() {
  return RunDialog(kDialog, [](const Dialog& dialog) {
    for (const DimButton& button : DimButtons()) dialog.BindButton<&Press>(button.button, button);
    dialog.BindClose();
    return PRO_TK_NO_ERROR;
  });
}

}  // namespace qm
