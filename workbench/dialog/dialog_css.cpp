// The look of drawn dialogs: a plain desktop dialog, legible in a report and when printed.
#include "workbench/dialog/dialog_html.h"

namespace wb {

const char* const kDialogCss = R"css(
.dlg { display: inline-block; min-width: 240px; border: 1px solid var(--strong-line);
  border-radius: 6px; background: var(--bar-paper); color: var(--ink);
  box-shadow: 0 4px 14px var(--shade);
  font: 13px/1.4 "Segoe UI", "Microsoft YaHei UI", "Noto Sans CJK SC", sans-serif; }
.dlg-title { display: flex; justify-content: space-between; gap: 2em; padding: 6px 10px;
  background: var(--paper); border-bottom: 1px solid var(--line); border-radius: 6px 6px 0 0; }
.dlg-title b { font-weight: normal; color: var(--soft-ink); }
.dlg-body { padding: 10px; }
.dlg-grid { display: grid; gap: 7px 9px; align-items: center; }
.dlg-group { margin: 0; padding: 6px 10px 10px; border: 1px solid var(--line); border-radius: 4px;
  min-width: 0; height: 100%; box-sizing: border-box; }
.dlg-group legend { padding: 0 5px; color: var(--head-ink); }
.dlg-label { white-space: nowrap; }
.dlg-field { box-sizing: border-box; min-height: 24px; padding: 2px 6px; background: var(--paper);
  border: 1px solid var(--strong-line); border-radius: 3px; white-space: pre; overflow: hidden; }
.dlg-area { white-space: pre-wrap; }
.dlg-option { display: flex; justify-content: space-between; align-items: center; gap: 8px; }
.dlg-option b { border: 4px solid transparent; border-top-color: var(--dull-mark);
  margin-top: 4px; }
.dlg-button { padding: 3px 14px; text-align: center; white-space: nowrap;
  background: var(--card-paper); border: 1px solid var(--strong-line); border-radius: 3px;
  min-height: 18px; max-width: 150px; margin-left: auto; }
.dlg-default { border-color: var(--accent-mark); box-shadow: inset 0 0 0 1px var(--accent-mark); }
.dlg-radios.dlg-row { display: flex; gap: 14px; }
.dlg-radios > div, .dlg-check { white-space: nowrap; }
.dlg-radios i, .dlg-check i { display: inline-block; box-sizing: border-box; width: 13px;
  height: 13px; margin-right: 6px; vertical-align: -2px; background: var(--paper);
  border: 1px solid var(--strong-line); border-radius: 50%; }
.dlg-radios .dlg-on i { border: 4px solid var(--accent-mark); }
.dlg-check i { border-radius: 3px; }
.dlg-check.dlg-on i { background: var(--accent-mark); border-color: var(--accent-mark);
  position: relative; }
.dlg-check.dlg-on i::after { content: ""; position: absolute; left: 3px; top: 0; width: 3px;
  height: 7px; border: solid var(--paper); border-width: 0 2px 2px 0; transform: rotate(40deg); }
.dlg-list, .dlg-sheet { background: var(--paper); border: 1px solid var(--strong-line);
  border-radius: 3px; }
.dlg-list > div { padding: 1px 6px; }
.dlg-list > .dlg-on, .dlg-sheet tr.dlg-on td { background: var(--pick-paper);
  box-shadow: inset 0 1px 0 var(--accent-mark), inset 0 -1px 0 var(--accent-mark); }
.dlg-sheet table { border-collapse: collapse; width: 100%; font: inherit; }
.dlg-sheet th, .dlg-sheet td { padding: 2px 7px; border: 1px solid var(--line); text-align: left;
  white-space: nowrap; height: 1.4em; }
.dlg-sheet th { background: var(--grey-paper); font-weight: 600; }
.dlg-sheet p { margin: 4px 7px; color: var(--soft-ink); }
.dlg-tabs { display: flex; gap: 2px; margin-top: 6px; }
.dlg-tabs span { padding: 3px 12px; border: 1px solid var(--line); border-bottom: 0;
  color: var(--soft-ink); border-radius: 4px 4px 0 0; background: var(--grey-paper); }
.dlg-tabs .dlg-on { background: var(--paper); color: var(--ink); }
.dlg-page { padding: 10px; border: 1px solid var(--line); background: var(--card-paper);
  margin-bottom: 8px; }
.dlg-drawing { outline: 1px dashed var(--strong-line); outline-offset: -1px;
  background: var(--paper); max-width: 100%; }
.dlg-rule { border: 0; border-top: 1px solid var(--line); width: 100%; margin: 2px 0; }
.dlg-off { color: var(--soft-ink); background-color: var(--grey-paper); }
.dlg-radios.dlg-off, .dlg-check.dlg-off, .dlg-label.dlg-off { background: none; }
.dlg-off.dlg-radios .dlg-on i { border-color: var(--dull-mark); }
.dlg-off.dlg-check.dlg-on i { background: var(--dull-mark); border-color: var(--dull-mark); }
)css";

}  // namespace wb
