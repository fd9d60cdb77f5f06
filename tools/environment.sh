# Shared settings of the tools: build folders, and a private Windows environment with the Chinese
# code page. Meant to be sourced.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=${QUILLMAX_BUILD:-$root/build}
cross=$build/cross
native=$build/native
programs=$build/programs
tree=$cross/quillmax-5.1-C3

export WINEPREFIX=$build/wine WINEDEBUG=-all WINEARCH=win64
# Makes and reads DXF and PDF files for the workbench: a native program, started from Wine. Its
# packages are those of the system's own Python.
export WORKBENCH_COMPANION="Z:/usr/bin/python3 \"$root/workbench/companion/companion.py\""
# Without it Python orders sets anew in each process, and with them parts of DXF files.
export PYTHONHASHSEED=0
# No Mono, no Gecko, no menu entries: only our programs run in this environment.
export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
unset DISPLAY || true

# The Chinese locale lives in the build folder, so that the machine's own set stays as it is.
prepare_locale() {
  export LOCPATH=$build/locale
  if [ ! -d "$LOCPATH/zh_CN.UTF-8" ]; then
    mkdir -p "$LOCPATH"
    localedef -i zh_CN -f UTF-8 "$LOCPATH/zh_CN.UTF-8" || true
    localedef -i en_US -f UTF-8 "$LOCPATH/en_US.UTF-8" || true
  fi
  # The shell itself cannot use it, and would say so; the programs that it starts can.
  { export LC_ALL=zh_CN.UTF-8; } 2>/dev/null
}

prepare_wine() {
  [ -e "$WINEPREFIX/system.reg" ] || { mkdir -p "$build" && wine wineboot -i >/dev/null 2>&1; }
  wineserver -w 2>/dev/null || true
}

# A second environment beside the first, so that two runs share neither temporary files nor the
# clipboard. Windows itself, which nobody writes to, stays in the first one.
prepare_second_wine() {
  local other=$1
  [ -e "$other/system.reg" ] && return
  mkdir -p "$other/drive_c"
  (cd "$WINEPREFIX" && cp -a dosdevices .update-timestamp user*.reg "$other/")
  find "$WINEPREFIX/drive_c" -mindepth 1 -maxdepth 1 ! -name windows -exec cp -a {} "$other/drive_c/" \;
  ln -s "$WINEPREFIX/drive_c/windows" "$other/drive_c/windows"
  cp -a "$WINEPREFIX/system.reg" "$other/"
}

# A Windows program under Wine; its own closing line tells success.
run_windows() {
  wine "$@"
}
