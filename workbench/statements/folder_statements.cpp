// Statements on folders, files and the installation; the folders of a script's run.
#include "workbench/base/temporary_place.h"
#include "workbench/base/text.h"
#include "workbench/script/script_runner.h"
#include "workbench/script/script_windows.h"
#include "workbench/statements/statement_families.h"

#include <fstream>

namespace wb {
namespace {

namespace fs = std::filesystem;

// A folder of its own for each run of this process.
fs::path FreshFolder(const fs::path& below, const std::string& stem) {
  static int number = 0;
  fs::path folder;
  do {
    folder = below / PathFromUtf8(stem + "-" + std::to_string(++number));
  } while (fs::exists(folder));
  fs::create_directories(folder);
  return folder;
}

void WorkIn(ScriptRun& run, const fs::path& folder) {
  if (!run.host.session.ChangeDirectory(folder)) {
    throw ScriptError("there is no folder " + PathToUtf8(folder));
  }
  run.folders.work = folder;
}

void FolderTemp(ScriptRun& run, const Statement&) {
  WorkIn(run, FreshFolder(run.folders.top, "work"));
}

void FolderCopy(ScriptRun& run, const Statement& statement) {
  const fs::path copy = FreshFolder(run.folders.top, "work");
  const fs::path original = run.ScriptPath(statement.Text("PATH"));
  std::error_code error;
  // Onto a folder that exists the library refuses: it takes the two for the same one.
  fs::remove(copy, error);
  fs::copy(original, copy, fs::copy_options::recursive, error);
  if (error) throw ScriptError(PathToUtf8(original) + " cannot be copied: " + error.message());
  WorkIn(run, copy);
}

void Folder(ScriptRun& run, const Statement& statement) {
  const fs::path folder = run.ScriptPath(statement.Text("PATH"));
  std::error_code error;
  fs::create_directories(folder, error);
  WorkIn(run, folder);
}

void MakeFolder(ScriptRun& run, const Statement& statement) {
  if (statement.Has("read_only")) run.Installed();
  const fs::path folder = run.WorkPath(statement.Text("PATH"));
  fs::create_directories(folder);
  if (statement.Has("read_only")) run.host.session.MakeReadOnly(folder);
}

// In UTF-8, or in the process's code page.
void Write(ScriptRun& run, const Statement& statement) {
  run.Installed();
  const fs::path file = run.WorkPath(statement.Text("PATH"));
  const std::string& text = statement.Text("TEXT");
  FlushProfile(file);
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out << (statement.Has("ansi") ? ToAnsi(text) : text);
  out.flush();
  if (!out) throw ScriptError(PathToUtf8(file) + " cannot be written");
}

void Delete(ScriptRun& run, const Statement& statement) {
  const fs::path file = run.WorkPath(statement.Text("PATH"));
  std::error_code error;
  if (!fs::remove(file, error)) throw ScriptError("there is no file " + PathToUtf8(file));
}

void CheckNotInstalled(const ScriptRun& run) {
  if (!run.host.install_folder.empty()) {
    throw ScriptError("this must stand before the first statement that needs the installation");
  }
}

void InstallAs(ScriptRun& run, const Statement& statement) {
  CheckNotInstalled(run);
  run.install_name = statement.Text("NAME");
}

void PluginAs(ScriptRun& run, const Statement& statement) {
  CheckNotInstalled(run);
  run.plugin_name = statement.Text("NAME");
}

void RequireCodePage(ScriptRun&, const Statement& statement) {
  if (AnsiCodePage() == static_cast<unsigned>(statement.Number("N"))) return;
  throw ScriptSkip{"it needs code page " + statement.Text("N") + ", and here it is " +
                   std::to_string(AnsiCodePage())};
}

// clang-format off
constexpr StatementForm kFolderForms[] = {
    {"folder temp",            kTopPlace, &FolderTemp},
    {"folder copy PATH",       kTopPlace, &FolderCopy},
    {"folder PATH",            kTopPlace, &Folder},
    {"make_folder PATH [read_only]", kTopPlace, &MakeFolder},
    {"write PATH TEXT [ansi]", kTopPlace, &Write},
    {"delete PATH",            kTopOrDialog, &Delete},
    {"install as NAME",        kTopPlace, &InstallAs},
    {"plugin as NAME",         kTopPlace, &PluginAs},
    {"require code_page N",    kTopPlace, &RequireCodePage},
};
// clang-format on

}  // namespace

ScriptFolders::ScriptFolders(const fs::path& kept_below, const std::string& script_file)
    : kept(!kept_below.empty()) {
  const fs::path file = fs::absolute(PathFromUtf8(script_file));
  script = file.parent_path();
  const fs::path below = kept ? fs::absolute(kept_below) : TemporaryPlace() / "workbench";
  if (kept) RefuseLongPlace(below, "--out");
  const std::string stem = PathToUtf8(file.stem());
  top = FreshFolder(below, kept ? stem : stem + "-" + std::to_string(ProcessId()));
  top.make_preferred();
  work = FreshFolder(top, "work");
  install = top;
  local = top / "appdata";
  desktop = top / "desktop";
  for (const fs::path& folder : {local, desktop}) fs::create_directories(folder);
}

ScriptFolders::~ScriptFolders() {
  std::error_code error;
  if (!kept) fs::remove_all(top, error);
}

StatementForms FolderStatements() {
  return kFolderForms;
}

}  // namespace wb
