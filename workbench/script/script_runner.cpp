// Carries out scripts: expansion of folder names, dispatch to the families, checks of every action.
#include "workbench/script/script_runner.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/language/script_words.h"
#include "workbench/reasons/missing_model.h"
#include "workbench/reasons/own_path.h"
#include "workbench/script/script_watch.h"

namespace wb {
namespace {

// The name by which the plug-in finds its own folder.
constexpr const char* kPluginFile = "quillmax5.1C3.dll";

void ReplaceAll(std::string* text, const std::string& what, const std::string& with) {
  for (size_t at = text->find(what); at != std::string::npos;
       at = text->find(what, at + with.size())) {
    text->replace(at, what.size(), with);
  }
}

}  // namespace

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    const size_t code = std::string_view("\t\n\r\"\\").find(c);
    quoted +=
        code == std::string_view::npos ? std::string(1, c) : std::string("\\") + "tnr\"\\"[code];
  }
  return quoted + "\"";
}

ScriptRun::ScriptRun(const std::string& script, const ScriptOptions& run_options, RunRecord& record)
    : user(*this),
      folders(run_options.out, script),
      options(run_options),
      plugin_name(kPluginFile),
      install_name("script"),
      record_(record) {
  host.user = &user;
  if (options.other_habits) host.habits = OtherHabits();
  host.trace.keep_lines = true;
  host.windows.local_app_folder = folders.local;
  host.windows.desktop_folder = folders.desktop;
  host.session.ChangeDirectory(folders.work);
}

ScriptRun::~ScriptRun() {
  plugin_.reset();
  if (folders.kept && install_ != nullptr) {
    std::error_code error;
    std::filesystem::copy(folders.install / "QMconfig", folders.top / "QMconfig",
                          std::filesystem::copy_options::recursive, error);
  }
  host.user = nullptr;
}

std::string ScriptRun::RunAll(const std::vector<Statement>& statements) {
  const Statement* at = nullptr;
  try {
    for (const Statement& statement : statements) {
      at = &statement;
      Execute(statement);
    }
    if (at == nullptr) return "";
    Stop(*at);
    CheckFaultsStruck(*at);
  } catch (const ScriptSkip& skip) {
    return skip.why;
  } catch (const std::exception& error) {
    Fail(*at, std::string(error.what()) + "; the script ends here");
  }
  return "";
}

void ScriptRun::Expand(Statement* statement) {
  for (auto& [name, texts] : statement->arguments) {
    for (std::string& text : texts) {
      if (text.find('{') == std::string::npos) continue;
      const std::pair<const char*, const std::filesystem::path&> names[] = {
          {"{folder}", folders.work},     {"{install}", Installed()},   {"{local}", folders.local},
          {"{desktop}", folders.desktop}, {"{script}", folders.script}, {"{temp}", folders.top},
      };
      for (const auto& [word, folder] : names) ReplaceAll(&text, word, PathToUtf8(folder));
    }
  }
  for (Statement& inner : statement->block) Expand(&inner);
}

void ScriptRun::Execute(const Statement& statement) {
  NotePlace(statement.Place());
  const StatementAction action = statement.form->action;
  if (action == kWhenAsked) throw ScriptError("nothing asked for this answer");
  Statement expanded = statement;
  Expand(&expanded);
  action(*this, expanded);
}

void ScriptRun::Fail(const Statement& at, const std::string& what) {
  ++record_.failed;
  record_.failures.push_back({at.file, at.line, WithOwnPath(what), recording});
}

void ScriptRun::Check(const Statement& at, bool holds, const std::string& what,
                      const std::string& expected, const std::string& got) {
  const std::string failure = what + ", expected " + expected + ", got " + got;
  if (lenient) {
    if (!holds) broken_in_sweep_.push_back(at.Place() + ": " + failure);
  } else if (holds) {
    Pass();
  } else {
    Fail(at, failure);
  }
}

void ScriptRun::CheckText(const Statement& at, const std::string& what, const std::string& expected,
                          const std::string& got) {
  Check(at, expected == got, what, Quoted(expected), Quoted(got));
}

// The plug-in keeps itself loaded and finds its folder by its file's name: in one process all
// scripts must use one place.
void ScriptRun::CheckOnePlace(const std::filesystem::path& dll) {
  static std::filesystem::path loaded;
  if (!loaded.empty() && loaded != dll) {
    throw ScriptError("another script of this process has loaded " + PathToUtf8(loaded) +
                      ", which stays loaded; run this script on its own");
  }
  loaded = dll;
}

const std::filesystem::path& ScriptRun::Installed() {
  if (install_ != nullptr) return folders.install;
  namespace fs = std::filesystem;
  install_ = std::make_unique<InstallCopy>(options.install, install_name);
  folders.install = install_->tree();
  const fs::path wanted = folders.install / PathFromUtf8(plugin_name);
  CheckOnePlace(wanted);
  std::error_code is_loaded_already;
  if (!options.plugin.empty()) {
    fs::copy_file(options.plugin, wanted, fs::copy_options::overwrite_existing, is_loaded_already);
  }
  if (wanted != install_->dll()) {
    if (options.plugin.empty()) fs::copy_file(install_->dll(), wanted);
    fs::remove(install_->dll());
  }
  host.install_folder = folders.install;
  return folders.install;
}

std::filesystem::path ScriptRun::ConfigFile(const std::string& name) {
  return Installed() / "QMconfig" / PathFromUtf8(name);
}

void ScriptRun::EnsureStarted() {
  if (plugin_ != nullptr && plugin_->started()) return;
  BeginMarks();
  Start();
  const std::vector<std::string> complaints = TakeComplaints();
  if (!complaints.empty()) throw ScriptError("at its start: " + Join("; ", complaints));
}

void ScriptRun::Start() {
  if (plugin_ == nullptr) {
    plugin_ = std::make_unique<Plugin>(Installed() / PathFromUtf8(plugin_name));
  }
  const int answer = plugin_->Start();
  if (answer == 0) return;
  throw ScriptError("the plug-in refused to start with " + WordOf(StatusWords(), answer) +
                    (plugin_->refusal().empty() ? "" : " (" + plugin_->refusal() + ")"));
}

void ScriptRun::Stop(const Statement& at) {
  if (plugin_ == nullptr || !plugin_->started()) return;
  BeginMarks();
  plugin_->Stop();
  const std::vector<std::string> complaints = TakeComplaints();
  for (const std::string& complaint : complaints) Fail(at, complaint + " (when it was stopped)");
}

void ScriptRun::BeginMarks() {
  marks = {host.events.Mark(), host.events.Mark()};
  host.trace.Restart();
}

std::vector<std::string> ScriptRun::TakeComplaints() {
  std::vector<std::string> complaints;
  const auto add = [&](const std::vector<std::string>& texts) {
    complaints.insert(complaints.end(), texts.begin(), texts.end());
  };
  add(host.events.TextsSince<Breach>(marks.told));
  add(host.events.TextsSince<Gap>(marks.told));
  add(host.events.TextsSince<FileProblem>(marks.told));
  add(host.events.TextsSince<MissingText>(marks.told));
  add(std::exchange(broken_in_sweep_, {}));
  marks.told = host.events.Mark();
  return complaints;
}

void ScriptRun::Act(const Statement& at, const std::function<void()>& action) {
  const int failed_before = record_.failed;
  BeginMarks();
  const bool by_script = fault.nth != 0;
  const FaultPlan ordered = by_script ? fault : options.fault;
  if (ordered.nth != 0) host.faults.Order(ordered);
  user.Answering(at, at.block, action);
  faults_struck = ordered.nth != 0 ? host.faults.struck() : 0;
  host.faults.Clear();
  for (const std::string& complaint : TakeComplaints()) Fail(at, complaint);
  if (by_script && faults_struck == 0) Fail(at, "the fault ordered for it did not strike");
  if (by_script && ordered.second_nth != 0 && faults_struck == 1) {
    Fail(at, "of the two faults ordered for it only one struck");
  }
  if (!by_script && faults_struck != 0) option_fault_struck_ = true;
  fault = {};
  AppendTrace(at);
  if (record_.failed == failed_before) Pass();
}

void ScriptRun::CheckFaultsStruck(const Statement& at) {
  if (fault.nth != 0) Fail(at, "no action followed the fault ordered");
  if (options.fault.nth == 0 || option_fault_struck_) return;
  Fail(at, "the fault that the command line orders struck in no action of this script");
}

void ScriptRun::AppendTrace(const Statement& at) {
  if (options.trace.empty()) return;
  std::vector<Crossed> lines = host.trace.lines();
  std::sort(lines.begin(), lines.end(),
            [](const Crossed& a, const Crossed& b) { return a.call < b.call; });
  std::ofstream out(options.trace, std::ios::binary | std::ios::app);
  out << "== " << at.Place() << ": " << at.text << "\n";
  for (const Crossed& line : lines) {
    out << line.call << std::string(1 + 2 * static_cast<size_t>(std::max(line.depth, 0)), ' ')
        << line.function << "(" << line.arguments << ") = " << WordOf(StatusWords(), line.status)
        << "\n";
  }
}

Model* ScriptRun::FindModel(const std::string& name) {
  if (const auto full = ParseModelName(name)) return host.session.Find(*full);
  if (host.session.Find({name, ModelKind::kPart}) != nullptr &&
      host.session.Find({name, ModelKind::kAssembly}) != nullptr) {
    throw ScriptError(name + " is " + name + ".prt and " + name + ".asm; say which");
  }
  for (const ModelKind kind : {ModelKind::kPart, ModelKind::kAssembly, ModelKind::kManufacturing,
                               ModelKind::kDrawing, ModelKind::kFormat}) {
    if (Model* const model = host.session.Find({name, kind})) return model;
  }
  return nullptr;
}

Model& ScriptRun::ModelNamed(const std::string& name) {
  Model* const model = FindModel(name);
  if (model != nullptr) return *model;
  throw ScriptError("there is no model \"" + name + "\" in session" +
                    WhatIsInSession(host.session, name));
}

Model& ScriptRun::Root() {
  Model* const current = host.session.Current();
  if (current == nullptr) throw ScriptError("no model is open, so there are no component paths");
  return ShownSolid(*current);
}

std::filesystem::path ScriptRun::WorkPath(const std::string& path) const {
  return (folders.work / PathFromUtf8(path)).make_preferred();
}

std::filesystem::path ScriptRun::ScriptPath(const std::string& path) const {
  return (folders.script / PathFromUtf8(path)).make_preferred();
}

}  // namespace wb
