// Expectations on files, settings and the run log.
#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/script/script_runner.h"
#include "workbench/script/script_windows.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

// Long contents would drown the place where they differ.
constexpr size_t kMostShown = 2000;

std::string Cut(const std::string& text) {
  if (text.size() <= kMostShown) return Quoted(text);
  return Quoted(text.substr(0, kMostShown)) + "... (" + std::to_string(text.size()) + " bytes)";
}

void ExpectFile(ScriptRun& run, const Statement& statement) {
  const std::filesystem::path file = run.WorkPath(statement.Text("PATH"));
  FlushProfile(file);
  const bool wanted = !statement.Has("no");
  const bool exists = std::filesystem::exists(file);
  if (!exists || !wanted) {
    run.Check(statement, exists == wanted, PathToUtf8(file), wanted ? "a file" : "no file",
              exists ? "a file" : "no file");
    return;
  }
  const std::string content = ReadFileBytes(file).value_or("");
  const std::string& text = statement.Text("TEXT");
  if (statement.Has("is")) {
    run.Check(statement, content == (statement.Has("ansi") ? ToAnsi(text) : text), PathToUtf8(file),
              Cut(text), Cut(content));
  } else {
    run.Check(statement, content.find(text) != std::string::npos, PathToUtf8(file),
              "something with " + Cut(text), Cut(content));
  }
}

void ExpectSetting(ScriptRun& run, const Statement& statement) {
  const auto got = ReadProfile(run.ConfigFile(statement.Text("FILE")), statement.Text("SECTION"),
                               statement.Text("KEY"));
  const std::string name = "setting " + statement.Text("SECTION") + " " + statement.Text("KEY");
  const std::string shown = got ? Quoted(*got) : "none";
  const std::string wanted = statement.Has("missing") ? "none" : Quoted(statement.Text("TEXT"));
  run.Check(statement, shown == wanted, name, wanted, shown);
}

void ExpectSections(ScriptRun& run, const Statement& statement) {
  run.CheckText(statement, "sections of " + statement.Text("FILE"),
                Join(" ", statement.Texts("SECTION")),
                Join(" ", ProfileSections(run.ConfigFile(statement.Text("FILE")))));
}

void ExpectLog(ScriptRun& run, const Statement& statement) {
  const std::string log =
      ReadFileBytes(run.folders.local / "Quillmax" / "quillmax.log").value_or("");
  const bool found = log.find(statement.Text("TEXT")) != std::string::npos;
  run.Check(statement, found == (statement.Text("STATE") == "contains"), "run log",
            statement.Text("STATE") + " " + Quoted(statement.Text("TEXT")),
            log.empty() ? "no log"
                        : Cut(log.size() > kMostShown ? log.substr(log.size() - kMostShown) : log));
}

// clang-format off
constexpr StatementForm kExpectFilesForms[] = {
    {"expect no file PATH",                        kTopOrDialog, &ExpectFile},
    {"expect file PATH is TEXT [ansi]",            kTopOrDialog, &ExpectFile},
    {"expect file PATH contains TEXT",             kTopOrDialog, &ExpectFile},
    {"expect file PATH",                           kTopOrDialog, &ExpectFile},
    {"expect setting FILE SECTION KEY is missing", kTopOrDialog, &ExpectSetting},
    {"expect setting FILE SECTION KEY is TEXT",    kTopOrDialog, &ExpectSetting},
    {"expect sections FILE SECTION...",            kTopOrDialog, &ExpectSections},
    {"expect log STATE:contains|lacks TEXT",       kTopPlace,    &ExpectLog},
};
// clang-format on

}  // namespace

StatementForms FileExpectations() {
  return kExpectFilesForms;
}

}  // namespace wb
