// The look of drawn dialogs: a plain desktop dialog, legible in a report and when printed.
#include "workbench/dialog/dialog_html.h"

namespace wb {

const char* const kDialogCss = R"css(
.dlg { display: inline-block; min-width: 240px; border: 1px solid #8a97a6; border-radius: 6px;
  background: #f3f4f6; color: #1b1f24; box-shadow: 0 4px 14px rgba(20, 30, 50, .22);
  font: 13px/1.4 "Segoe UI", "Microsoft YaHei UI", "Noto Sans CJK SC", sans-serif; }
.dlg-title { display: flex; justify-content: space-between; gap: 2em; padding: 6px 10px;
  background: #fff; border-bottom: 1px solid #d4d9df; border-radius: 6px 6px 0 0; }
.dlg-title b { font-weight: normal; color: #6b7683; }
.dlg-body { padding: 10px; }
.dlg-grid { display: grid; gap: 7px 9px; align-items: center; }
.dlg-group { margin: 0; padding: 6px 10px 10px; border: 1px solid #c6ccd4; border-radius: 4px;
  min-width: 0; height: 100%; box-sizing: border-box; }
.dlg-group legend { padding: 0 5px; color: #34506e; }
.dlg-label { white-space: nowrap; }
.dlg-field { box-sizing: border-box; min-height: 24px; padding: 2px 6px; background: #fff;
  border: 1px solid #a9b2bd; border-radius: 3px; white-space: pre; overflow: hidden; }
.dlg-area { white-space: pre-wrap; }
.dlg-option { display: flex; justify-content: space-between; align-items: center; gap: 8px; }
.dlg-option b { border: 4px solid transparent; border-top-color: #55606d; margin-top: 4px; }
.dlg-button { padding: 3px 14px; text-align: center; white-space: nowrap; background: #fdfdfe;
  border: 1px solid #a9b2bd; border-radius: 3px; min-height: 18px; max-width: 150px;
  margin-left: auto; }
.dlg-default { border-color: #1f6fc4; box-shadow: inset 0 0 0 1px #1f6fc4; }
.dlg-radios.dlg-row { display: flex; gap: 14px; }
.dlg-radios > div, .dlg-check { white-space: nowrap; }
.dlg-radios i, .dlg-check i { display: inline-block; box-sizing: border-box; width: 13px;
  height: 13px; margin-right: 6px; vertical-align: -2px; background: #fff;
  border: 1px solid #6b7683; border-radius: 50%; }
.dlg-radios .dlg-on i { border: 4px solid #1f6fc4; }
.dlg-check i { border-radius: 3px; }
.dlg-check.dlg-on i { background: #1f6fc4; border-color: #1f6fc4; position: relative; }
.dlg-check.dlg-on i::after { content: ""; position: absolute; left: 3px; top: 0; width: 3px;
  height: 7px; border: solid #fff; border-width: 0 2px 2px 0; transform: rotate(40deg); }
.dlg-list, .dlg-sheet { background: #fff; border: 1px solid #a9b2bd; border-radius: 3px; }
.dlg-list > div { padding: 1px 6px; }
.dlg-list > .dlg-on, .dlg-sheet tr.dlg-on td { box-shadow: inset 0 0 0 99px rgba(31,111,196,.18); }
.dlg-sheet table { border-collapse: collapse; width: 100%; font: inherit; }
.dlg-sheet th, .dlg-sheet td { padding: 2px 7px; border: 1px solid #dde1e6; text-align: left;
  white-space: nowrap; height: 1.4em; }
.dlg-sheet th { background: #e9ecf0; font-weight: 600; }
.dlg-sheet p { margin: 4px 7px; color: #6b7683; }
.dlg-tabs { display: flex; gap: 2px; margin-top: 6px; }
.dlg-tabs span { padding: 3px 12px; border: 1px solid #c6ccd4; border-bottom: 0; color: #6b7683;
  border-radius: 4px 4px 0 0; background: #e7eaee; }
.dlg-tabs .dlg-on { background: #fff; color: #1b1f24; }
.dlg-page { padding: 10px; border: 1px solid #c6ccd4; background: #fafbfc; margin-bottom: 8px; }
.dlg-drawing { border: 1px dashed #a9b2bd; background: #fff; max-width: 100%; }
.dlg-rule { border: 0; border-top: 1px solid #c6ccd4; width: 100%; margin: 2px 0; }
.dlg-off { color: #9aa3ad; background-color: #eceef1; }
.dlg-radios.dlg-off, .dlg-check.dlg-off, .dlg-label.dlg-off { background: none; }
.dlg-off.dlg-radios .dlg-on i { border-color: #b3bac2; }
.dlg-off.dlg-check.dlg-on i { background: #b3bac2; border-color: #b3bac2; }
)css";

}  // namespace wb
