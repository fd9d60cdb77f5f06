// The look of the report page, on screen and printed, and the icons of model trees.
#include "workbench/report/report_text.h"

namespace wb {

const char* const kReportCss = R"css(
body { margin: 0 auto; max-width: 1180px; padding: 24px 28px 60px; color: #1b1f24;
  background: #fff; font: 14px/1.5 "Segoe UI", "Microsoft YaHei", "PingFang SC",
  "Noto Sans CJK SC", "Source Han Sans SC", sans-serif; }
h1 { font-size: 24px; margin: 0; }
h2 { font-size: 19px; margin: 0 0 4px; }
h3 { font-size: 14px; margin: 20px 0 6px; color: #34506e; }
h4 { font-size: 13px; margin: 0 0 4px; }
small, .more, .legend { color: #6b7683; font-size: 12px; font-weight: normal; }
.more, .legend { margin: 4px 0; }
a { color: #1f5fa8; text-decoration: none; }
a:hover { text-decoration: underline; }
.t { white-space: pre-wrap; overflow-wrap: anywhere; }
.tab { display: inline-block; width: .5em; height: 1.1em; overflow: hidden; white-space: pre;
  vertical-align: -.2em; background: #d9e2ec; border-radius: 2px; }
.none { color: #9aa3ad; }
header { display: flex; justify-content: space-between; align-items: center; gap: 20px;
  padding-bottom: 14px; border-bottom: 2px solid #34506e; }
.verdict { padding: 6px 16px; border-radius: 18px; font-weight: 600; white-space: nowrap;
  color: #17633a; background: #dcf3e4; }
.verdict.failed { color: #97201a; background: #fbdedb; }
.verdict.nothing { color: #6b5300; background: #fbf0cc; }
dl { display: grid; grid-template-columns: max-content 1fr; gap: 2px 18px; margin: 14px 0; }
dt { color: #6b7683; }
dd { margin: 0; }
.fails { margin: 14px 0; padding: 10px 16px; border: 1px solid #e5a19b; border-left: 5px solid #c4342b;
  border-radius: 4px; background: #fdf1f0; color: #861b15; }
.fails h3 { margin: 0 0 4px; color: inherit; }
.fails ul { margin: 0; padding-left: 18px; }
.fails a { color: inherit; text-decoration: underline; }
.bad { color: #b3261e; font-weight: 600; }
table.list { border-collapse: collapse; max-width: 100%; }
.list th, .list td { padding: 3px 12px 3px 8px; text-align: left; vertical-align: top;
  border-bottom: 1px solid #e3e7eb; }
.list th { color: #6b7683; font-weight: 600; font-size: 12px; border-bottom: 1px solid #b9c3ce; }
.list td.num { text-align: right; font-variant-numeric: tabular-nums; }
.list tr.skip td { color: #6b7683; }
section { margin-top: 30px; padding: 16px 18px 18px; border: 1px solid #d4d9df;
  border-radius: 8px; background: #fbfcfd; }
section > p { margin: 0; color: #6b7683; }
.shown { display: flex; flex-wrap: wrap; gap: 20px; align-items: flex-start; }
.shown figure { margin: 0; max-width: 100%; }
.scroll { overflow-x: auto; padding: 2px 2px 16px; }
.shown figcaption { color: #6b7683; font-size: 12px; margin-bottom: 4px; }
.box { display: inline-block; min-width: 220px; max-width: 560px; border: 1px solid #8a97a6;
  border-radius: 6px; background: #fff; box-shadow: 0 4px 14px rgba(20, 30, 50, .22);
  overflow: hidden; }
.box-caption { display: flex; justify-content: space-between; gap: 2em; padding: 5px 10px;
  background: #eef1f5; border-bottom: 1px solid #d4d9df; }
.box-caption span:last-child { color: #6b7683; }
.box-body { display: flex; gap: 12px; padding: 14px 16px; }
.box-body i { flex: none; width: 26px; height: 26px; border-radius: 50%; color: #fff;
  font: bold 17px/26px "Segoe UI", sans-serif; text-align: center; background: #1f6fc4; }
.box-body i.warning { background: #d98a00; }
.box-body i.error { background: #c4342b; }
.box-buttons { padding: 8px 12px; background: #f3f4f6; text-align: right; }
.box-buttons span { display: inline-block; min-width: 58px; margin-left: 8px; padding: 2px 10px;
  text-align: center; border: 1px solid #a9b2bd; border-radius: 3px; background: #fff; }
.box-buttons .pressed { border-color: #1f6fc4; background: #dbe9f8; font-weight: 600; }
.notes { margin: 0; padding: 0; list-style: none; border: 1px solid #b9c3ce; border-radius: 3px;
  background: #eef1f5; }
.notes li { padding: 3px 10px; border-top: 1px solid #d4d9df; }
.notes li:first-child { border-top: 0; }
.sides { display: grid; grid-template-columns: minmax(0, 1fr) minmax(0, 1fr);
  max-height: 640px; overflow: auto; border: 1px solid #dde1e6; border-radius: 5px;
  background: #fff; }
.sides > div { padding: 8px 10px; overflow-x: auto; }
.sides > div + div { border-left: 1px solid #dde1e6; }
.tree, .tree ul { list-style: none; margin: 0; padding: 0; }
.tree ul { margin-left: 9px; padding-left: 9px; border-left: 1px dotted #b9c3ce; }
.tree .row { white-space: nowrap; padding: 0 4px; border-radius: 3px; list-style: none;
  width: max-content; line-height: 21px; }
.tree summary { cursor: pointer; list-style: none; }
.tree summary::-webkit-details-marker { display: none; }
.tree summary::before { content: "▸"; display: inline-block; width: 12px; color: #6b7683; }
.tree details[open] > summary::before { content: "▾"; }
.tree div.row { margin-left: 12px; }
.tree small { margin-left: 7px; }
.tree .gap { color: #6b7683; font-style: italic; padding-left: 16px; }
.tree li.gap:has(> details) { padding-left: 4px; }
.tree .gap ul { color: #1b1f24; font-style: normal; }
.i { width: 16px; height: 16px; vertical-align: -3px; margin-right: 5px; }
.tree .hid, .legend .hid { color: #a3abb4; }
.tree .hid .i { opacity: .35; }
.tree .sup .n { text-decoration: line-through; }
.changed, mark { background: #fff0b3; color: inherit; border-radius: 3px; padding: 0 4px; }
.touched { background: #e2eefb; }
.added { background: #dcf3e4; }
.removed { background: #fbdedb; }
.fold { margin-top: 16px; }
.fold > summary { cursor: pointer; color: #34506e; font-weight: 600; }
.fold > .tree, .fold > table { margin: 6px 0 0 14px; }
.sheet-box text { font: 11px "Segoe UI", "Microsoft YaHei", "Noto Sans CJK SC", sans-serif; }
@media print { .sides { max-height: none; } section { break-inside: auto; } .box, .dlg { box-shadow: none; } }
@media (max-width: 700px) { .sides { grid-template-columns: 1fr; } }
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
