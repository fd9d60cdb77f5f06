#!/usr/bin/env bash
# Builds the plug-in and the workbench and runs the demo on a copy of its assembly. Prints what the
# commands changed and where the report lies, and little else unless something fails.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/environment.sh"
out=$build/demo
log=$out/demo.log

# Ends with what went wrong, the end of the log that tells more, and its place.
stop() {
  echo "demo: $1" >&2
  tail -n 40 "$2" | tr -d '\r' >&2
  echo "demo: $1 (all of it: $2)" >&2
  exit 1
}

build_programs() {
  "$here/setup.sh"
  [ -e "$cross/workbench.exe" ] || echo "Building the plug-in and the workbench, some minutes ..."
  mkdir -p "$build"
  QUILLMAX_TARGETS='quillmax workbench' "$here/build.sh" >"$build/build.log" 2>&1 ||
    stop "the build failed" "$build/build.log"
  prepare_locale
  prepare_wine
}

run_script() {
  rm -rf "$out"
  mkdir -p "$out"
  cd "$root"
  run_windows "$cross/workbench.exe" run demo/demo.qms --install "$tree" --out "$out" \
    --report "$out/report.html" --trace "$out/trace.txt" >"$log" 2>&1 || true
  # Wine garbles some exit codes; the closing line tells.
  closing=$(tr -d '\r' <"$log" | grep -E '^[0-9]+ passed, [0-9]+ failed$' | tail -n 1) ||
    stop "the run ended without its closing line" "$log"
  case $closing in
    "0 passed, 0 failed") stop "the run checked nothing" "$log" ;;
    *" passed, 0 failed") ;;
    *) stop "the run failed: $closing" "$log" ;;
  esac
}

# What the plug-in did, by its own calls of the host.
print_changes() {
  awk '
    # The word of the line that follows `text`.
    function word_after(text,   rest) {
      rest = substr($0, index($0, text) + length(text))
      sub(/[,) ].*/, "", rest)
      return rest
    }
    function add_part(   model) {
      model = word_after(" of part ")
      tried[model] = 1
      if (/ = no_error$/) added++
      if (/ = found$/) there = there " " model
      split($0, quoted, "\"")
      name = quoted[2]
    }

    # "== demo.qms:21: run QmParams with"
    /^== / { command = $4; next }
    { item = substr($0, index($0, "(")) }
    command == "QmParams" && / ProMdlNameGet\(part / { met[++count] = word_after("part ") }
    command == "QmParams" && / ProParameterCreate\(/ { add_part() }
    command == "QmExport" && / (Pro2dExport|ProPDFExport)\(/ && / = no_error$/ { exported++ }
    command == "QmRename" && / ProMdlRename\(/ && / = no_error$/ {
      if (/ProMdlRename\(drawing /) drawings++; else models++
    }
    command == "QmIsolate" && / ProAsmcomppathMdlGet\(/ { branch = word_after("-> assembly ") }
    command == "QmIsolate" && / ProModelitemHide\(/ && !hidden[item]++ { hidden_count++ }
    command == "QmIsolate" && / ProModelitemUnhide\(/ && hidden[item] { hidden[item] = 0; shown++ }

    command == "TweViews" && / ProDrawingFromTmpltCreate\(/ {
      split($0, quoted, "\"")
      drawn = drawn " " quoted[2]
    }
    command == "TweViews" && /(General|Projected)viewCreate\(.* = no_error$/ { views++ }
    command == "QmDrwScaleCheck" && / ProMdlRetrieve\(/ { checked++ }
    command == "QmUpdateMainViewScale" && / ProDrawingViewScaleSet\(/ { mended = word_after("(drawing ") }
    command == "QmFrmReplace" && / ProDrawingFormatAdd\(.* = no_error$/ {
      framed = framed " " word_after("(drawing ")
      frame = word_after(" format ")
    }
    command == "QmDimModify" && / ProDimension(Text|Tolerance)Set\(.* = no_error$/ { dimensions++ }

    END {
      if (count == 0 || hidden_count == 0 || views == 0 || framed == "") exit 1
      for (i = 1; i <= count; ++i) if (!(met[i] in tried)) { excluded++; names = names " " met[i] }
      printf "QmParams   added %s to %d models\n", name, added
      printf "           %d excluded:%s\n", excluded, names
      if (there != "") printf "           there already:%s\n", there
      printf "QmIsolate  shows %s with its %d parts; %d parts hidden\n", branch, shown, hidden_count - shown
      printf "TweViews   made%s, %d views in all\n", drawn, views
      printf "Drawings   %d checked for their scales, %s mended; frame %s on%s;\n", checked, mended, frame, framed
      printf "           %d changes of dimensions\n", dimensions
      printf "QmExport   wrote %d PDF and DXF files\n", exported
      printf "QmRename   renamed %d models and %d drawings from new_names.xlsx\n", models, drawings
    }' "$out/trace.txt"
}

# The workbooks that the bills were exported to lie on the scripted user's desktop.
collect_workbooks() {
  local kind
  for kind in summary levels; do
    mv "$out"/demo-*/desktop/$kind.xlsx "$out/" || stop "the $kind bill is missing" "$log"
  done
}

build_programs
run_script
collect_workbooks
print_changes || stop "the trace does not show what the commands did" "$out/trace.txt"
echo "QmBom      wrote $out/summary.xlsx"
echo "           and   $out/levels.xlsx"
echo "$closing"
echo "Report     $out/report.html"
