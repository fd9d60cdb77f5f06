// The look of the report page, on screen and printed, and the icons of model trees.
#include "workbench/report/report_text.h"

namespace wb {

// Texts are drawn in an "ink" on a "paper" and in nothing else: a test holds that each ink can be
// read on each paper. A "mark" and a "line" carry no text. Dialogs take their colours from here.
const char* const kReportCss = R"css(
:root { color-scheme: light dark;
  --ink: #1b1f24; --soft-ink: #55606c; --head-ink: #2f4a67; --link-ink: #1a5296;
  --good-ink: #145c35; --bad-ink: #97201a; --warn-ink: #5f4900;
  --paper: #ffffff; --card-paper: #fbfcfd; --bar-paper: #eef1f5; --grey-paper: #eceef1;
  --changed-paper: #fff0b3; --touched-paper: #e2eefb; --added-paper: #dcf3e4;
  --removed-paper: #fbdedb; --warn-paper: #fbf0cc; --pick-paper: #d5e5f7;
  --accent-mark: #1f6fc4; --dull-mark: #8d98a4; --tab-mark: #d9e2ec;
  --line: #d4d9df; --strong-line: #8a97a6; --bad-line: #c4342b; --shade: #14203238; }
@media (prefers-color-scheme: dark) { :root {
  --ink: #e6e9ed; --soft-ink: #b0bac4; --head-ink: #a5c8ea; --link-ink: #8bbcf5;
  --good-ink: #93dbb0; --bad-ink: #f7aaa3; --warn-ink: #ecd27a;
  --paper: #14181d; --card-paper: #1a1f26; --bar-paper: #252c35; --grey-paper: #2a3038;
  --changed-paper: #453b0f; --touched-paper: #1b3452; --added-paper: #17392a;
  --removed-paper: #4a2320; --warn-paper: #3f3510; --pick-paper: #24436a;
  --accent-mark: #5aa2ec; --dull-mark: #78838f; --tab-mark: #3b4754;
  --line: #363f4a; --strong-line: #66727f; --bad-line: #d8625a; --shade: #00000080; } }
body { margin: 0 auto; max-width: 1180px; padding: 24px 28px 60px; color: var(--ink);
  background: var(--paper); font: 14px/1.5 "Segoe UI", "Microsoft YaHei", "PingFang SC",
  "Noto Sans CJK SC", "Source Han Sans SC", sans-serif; }
h1 { font-size: 24px; margin: 0; }
h2 { font-size: 19px; margin: 0 0 4px; overflow-wrap: anywhere; }
h3 { font-size: 14px; margin: 20px 0 6px; color: var(--head-ink); }
h4 { font-size: 13px; margin: 0 0 4px; }
small, .more, .legend { color: var(--soft-ink); font-size: 12px; font-weight: normal; }
.more, .legend { margin: 4px 0; }
a { color: var(--link-ink); text-decoration: none; }
a:hover { text-decoration: underline; }
.t { white-space: pre-wrap; overflow-wrap: anywhere; }
.tab { display: inline-block; width: .5em; height: 1.1em; overflow: hidden; white-space: pre;
  vertical-align: -.2em; background: var(--tab-mark); border-radius: 2px; }
.none { color: var(--soft-ink); }
header { display: flex; flex-wrap: wrap; justify-content: space-between; align-items: center;
  gap: 8px 20px; padding-bottom: 14px; border-bottom: 2px solid var(--strong-line); }
.verdict { padding: 6px 16px; border-radius: 18px; font-weight: 600; white-space: nowrap;
  color: var(--good-ink); background: var(--added-paper); }
.verdict.failed { color: var(--bad-ink); background: var(--removed-paper); }
.verdict.nothing { color: var(--warn-ink); background: var(--warn-paper); }
dl { display: grid; grid-template-columns: max-content 1fr; gap: 2px 18px; margin: 14px 0; }
dt { color: var(--soft-ink); }
dd { margin: 0; }
.fails { margin: 14px 0; padding: 10px 16px; border: 1px solid var(--bad-line);
  border-left: 5px solid var(--bad-line); border-radius: 4px; background: var(--card-paper);
  color: var(--bad-ink); }
.fails h3 { margin: 0 0 4px; color: inherit; }
.fails ul { margin: 0; padding-left: 18px; }
.fails pre { margin: 4px 0; padding: 6px 10px; overflow-x: auto; color: var(--ink);
  background: var(--paper); border: 1px solid var(--line); border-radius: 3px; white-space: pre;
  font: 12px/1.45 Consolas, "DejaVu Sans Mono", "Noto Sans Mono CJK SC", monospace; }
.fails a { color: inherit; text-decoration: underline; }
.bad { color: var(--bad-ink); font-weight: 600; }
table.list { border-collapse: collapse; max-width: 100%; }
.list th, .list td { padding: 3px 12px 3px 8px; text-align: left; vertical-align: top;
  border-bottom: 1px solid var(--line); }
.list th { color: var(--soft-ink); font-weight: 600; font-size: 12px;
  border-bottom: 1px solid var(--strong-line); white-space: nowrap; }
.list .t { overflow-wrap: break-word; }
.list td.num { text-align: right; font-variant-numeric: tabular-nums; }
section { margin-top: 30px; padding: 16px 18px 18px; border: 1px solid var(--line);
  border-radius: 8px; background: var(--card-paper); }
section > p { margin: 0; color: var(--soft-ink); overflow-wrap: anywhere; }
.shown { display: flex; flex-wrap: wrap; gap: 20px; align-items: flex-start; }
.shown figure { margin: 0; max-width: 100%; }
.scene { display: block; max-width: 100%; border: 1px solid var(--line); border-radius: 4px; }
.scroll { overflow-x: auto; }
.shown .scroll { padding: 2px 2px 16px; }
.shown figcaption { color: var(--soft-ink); font-size: 12px; margin-bottom: 4px;
  overflow-wrap: anywhere; }
.box { display: inline-block; min-width: 220px; max-width: min(560px, 100%);
  border: 1px solid var(--strong-line); border-radius: 6px; background: var(--paper);
  box-shadow: 0 4px 14px var(--shade); overflow: hidden; }
.box-caption { display: flex; justify-content: space-between; gap: 2em; padding: 5px 10px;
  background: var(--bar-paper); border-bottom: 1px solid var(--line); }
.box-caption span:last-child { color: var(--soft-ink); }
.box-body { display: flex; gap: 12px; padding: 14px 16px; }
.box-body i { flex: none; width: 26px; height: 26px; border-radius: 50%; color: var(--link-ink);
  font: bold 17px/26px "Segoe UI", sans-serif; text-align: center;
  background: var(--touched-paper); border: 1px solid var(--accent-mark); }
.box-body i.warning { color: var(--warn-ink); background: var(--warn-paper);
  border-color: var(--dull-mark); }
.box-body i.error { color: var(--bad-ink); background: var(--removed-paper);
  border-color: var(--bad-line); }
.box-buttons { padding: 8px 12px; background: var(--grey-paper); text-align: right; }
.box-buttons span { display: inline-block; min-width: 58px; margin-left: 8px; padding: 2px 10px;
  text-align: center; border: 1px solid var(--strong-line); border-radius: 3px;
  background: var(--paper); }
.box-buttons .pressed { border-color: var(--accent-mark); background: var(--pick-paper);
  font-weight: 600; }
.notes, .clip { margin: 0; padding: 0; list-style: none; border: 1px solid var(--line);
  border-radius: 3px; background: var(--bar-paper); }
.notes li, .clip { padding: 3px 10px; }
.notes li + li { border-top: 1px solid var(--line); }
.sides { display: grid; grid-template-columns: minmax(0, 1fr) minmax(0, 1fr);
  max-height: 640px; overflow: auto; border: 1px solid var(--line); border-radius: 5px;
  background: var(--paper); }
.sides.one { grid-template-columns: minmax(0, 1fr); }
.sides > div { padding: 8px 10px; overflow-x: auto; }
.sides > div + div { border-left: 1px solid var(--line); }
.tree, .tree ul { list-style: none; margin: 0; padding: 0; }
.tree ul { margin-left: 9px; padding-left: 9px; border-left: 1px dotted var(--strong-line); }
.tree .row { white-space: nowrap; padding: 0 4px; border-radius: 3px; list-style: none;
  width: max-content; line-height: 21px; }
.tree summary { cursor: pointer; list-style: none; }
.tree summary::-webkit-details-marker { display: none; }
.tree summary::before { content: "▸"; display: inline-block; width: 12px; color: var(--soft-ink); }
.tree details[open] > summary::before { content: "▾"; }
.tree div.row { margin-left: 12px; }
.tree small { margin-left: 7px; }
.tree .gap { color: var(--soft-ink); font-style: italic; padding-left: 16px; }
.tree li.gap:has(> details) { padding-left: 4px; }
.tree .gap ul { color: var(--ink); font-style: normal; }
.i { width: 16px; height: 16px; vertical-align: -3px; margin-right: 5px; }
.tree .hid .n, .legend .hid { color: var(--soft-ink); font-style: italic; }
.tree .sup .n { text-decoration: line-through; }
.changed, mark { background: var(--changed-paper); color: inherit; border-radius: 3px;
  padding: 0 4px; }
.touched { background: var(--touched-paper); }
.added { background: var(--added-paper); }
.removed { background: var(--removed-paper); }
.fold { margin-top: 16px; }
.fold > summary { cursor: pointer; color: var(--head-ink); font-weight: 600; }
.fold > .tree, .fold > .scroll { margin: 6px 0 0 14px; }
.sheet { display: block; max-width: 100%; height: auto; margin-bottom: 10px; }
.book { border-collapse: collapse; background: var(--paper); font-size: 12px; }
.book th { padding: 1px 6px; background: var(--bar-paper); color: var(--soft-ink);
  border: 1px solid var(--line); font-weight: normal; text-align: center; }
.book td { padding: 1px 6px; border: 1px solid var(--line); white-space: pre; height: 1.4em;
  max-width: 240px; overflow: hidden; text-overflow: ellipsis; }
@media print { .sides { max-height: none; } section { break-inside: auto; }
  .box, .dlg { box-shadow: none; } }
@media (max-width: 700px) { body { padding: 14px 12px 40px; } section { padding: 12px 10px; }
  .sides { grid-template-columns: minmax(0, 1fr); max-height: 480px; }
  .sides > div + div { border-left: 0; border-top: 1px solid var(--line); }
  dl { grid-template-columns: minmax(0, 1fr); gap: 0; } dd { margin-bottom: 6px; }
  .fold > .tree, .fold > .scroll { margin-left: 0; } }
)css";

const char* const kReportIcons = R"svg(<svg width="0" height="0" style="position:absolute">
<symbol id="i-part" viewBox="0 0 16 16"><g stroke="#7a5a10" stroke-linejoin="round">
<path fill="#ffe9a8" d="M8 1.5 14 4.5 8 7.5 2 4.5z"/><path fill="#f2c14e" d="M2 4.5 8 7.5V14.5L2 11.5z"/>
<path fill="#d99f21" d="M14 4.5 8 7.5V14.5l6-3z"/></g></symbol>
<symbol id="i-assembly" viewBox="0 0 16 16"><g stroke="#7a5a10" stroke-width=".8"
 stroke-linejoin="round"><path fill="#ffe9a8" d="M8 .8 11.5 2.4 8 4 4.5 2.4z"/>
<path fill="#f2c14e" d="M4.5 2.4 8 4V8L4.5 6.4z"/><path fill="#d99f21" d="M11.5 2.4 8 4V8l3.5-1.6z"/>
<path fill="#d3e6fa" d="M4.3 7.3 7.8 8.9 4.3 10.5.8 8.9z"/>
<path fill="#7fb2e5" d="M.8 8.9 4.3 10.5V14.8L.8 13.2z"/><path fill="#4f8fcf" d="M7.8 8.9 4.3 10.5v4.3l3.5-1.6z"/>
<path fill="#d6f0dc" d="M11.7 7.3 15.2 8.9 11.7 10.5 8.2 8.9z"/>
<path fill="#8ccf9b" d="M8.2 8.9 11.7 10.5V14.8L8.2 13.2z"/>
<path fill="#58ab6c" d="M15.2 8.9 11.7 10.5v4.3l3.5-1.6z"/></g></symbol>
<symbol id="i-sheetmetal" viewBox="0 0 16 16"><g stroke="#48586a" stroke-linejoin="round">
<path fill="#dfe6ee" d="M1.5 10.5 6 13.5 14.5 9.5 10 6.5z"/>
<path fill="#a9b8c8" d="M10 6.5 14.5 9.5V4.5L10 1.5z"/></g></symbol>
<symbol id="i-skeleton" viewBox="0 0 16 16"><g fill="none" stroke="#2f7f86" stroke-width="1.3">
<path d="M3 13 8 8.5 13 12M8 8.5V2"/></g><g fill="#fff" stroke="#2f7f86">
<circle cx="3" cy="13" r="1.6"/><circle cx="13" cy="12" r="1.6"/><circle cx="8" cy="2.5" r="1.6"/>
<circle cx="8" cy="8.5" r="1.6"/></g></symbol>
<symbol id="i-drawing" viewBox="0 0 16 16"><path fill="#fff" stroke="#48586a" d="M1.5 3h13v10h-13z"/>
<path fill="none" stroke="#48586a" d="M9 13v-3h5.5M4 6h5M4 8h3"/></symbol>
<symbol id="i-manufacturing" viewBox="0 0 16 16"><g stroke="#48586a" stroke-linejoin="round">
<path fill="#a9b8c8" d="M6 1.5h4v6H6z"/><path fill="#dfe6ee" d="M6 7.5h4L8 10.5z"/>
<path fill="#f2c14e" d="M1.5 11.5h13v3h-13z"/></g></symbol></svg>
)svg";

}  // namespace wb
