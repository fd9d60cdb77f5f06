// The boundary between the plug-in and its host: no exception leaves a function that was given
// away, and each command comes with all that the host shows of it.
#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>

#include "tests/frame/guard/shield_probe.h"
#include "tests/plugin_host.h"
#include "tests/source_folder.h"
#include "workbench/base/message_file.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

class Boundary : public PluginHost {
 protected:
  MessageBox VersionBox() {
    host_.events.Forget<MessageBox>();
    RunCommand("QmVersion");
    const auto boxes = host_.events.All<MessageBox>();
    EXPECT_EQ(boxes.size(), 1u);
    return boxes.empty() ? MessageBox() : boxes[0];
  }
};

// With the plug-in started.
class StartedPlugin : public Boundary {
 protected:
  StartedPlugin() { EXPECT_EQ(plugin_.Start(), 0); }

  const std::deque<Command>& Registered() const { return host_.commands.commands; }

 private:
  Plugin plugin_{Installed().dll()};
};

// The library with the probes, its Windows calls intercepted.
class ProbeLibrary {
 public:
  ProbeLibrary() : module_(::LoadLibraryW((TestBinaryFolder() / "shield_probe.dll").c_str())) {
    if (module_ != nullptr) InterceptImports(module_);
  }
  ~ProbeLibrary() { ::FreeLibrary(module_); }
  ProbeLibrary(const ProbeLibrary&) = delete;
  ProbeLibrary& operator=(const ProbeLibrary&) = delete;

  template <typename Function>
  Function Find(const char* name) const {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(module_, name)));
  }

 private:
  HMODULE module_;
};

TEST_F(Boundary, AnExceptionInAnyKindOfFunctionGivenAwayBecomesAnAnswer) {
  const ProbeLibrary library;
  const auto run = library.Find<RunShieldProbe>("RunProbe");
  ASSERT_NE(run, nullptr);
  ShieldProbe probe{};
  int count = 0;
  for (; host_.events.Forget<MessageBox>(), run(count, &probe); ++count) {
    const std::string kind = std::string(probe.kind) + " of " + probe.given_to;
    EXPECT_EQ(probe.answered, probe.wanted) << kind;
    const auto boxes = host_.events.All<MessageBox>();
    ASSERT_EQ(boxes.size(), probe.is_shown ? 1u : 0u) << kind;
    if (!probe.is_shown) continue;
    EXPECT_EQ(boxes[0].text, "\t命令执行中发生内部错误，操作已停止。\t") << kind;
    EXPECT_EQ(boxes[0].style, 0x40000u) << kind;
  }
  EXPECT_GE(count, 8);
  EXPECT_EQ(TakeBreaches(), Lines());
}

TEST_F(Boundary, AnExceptionInAVisitComesOutBehindTheVisit) {
  Model assembly({"box", ModelKind::kAssembly});
  for (int i = 1; i <= 3; ++i) assembly.solid().features.Add({.id = i});
  const Model& added = host_.session.Add(std::move(assembly));
  const ProbeLibrary library;
  const auto run = library.Find<RunThrowingVisit>("RunVisit");
  ASSERT_NE(run, nullptr);
  for (const bool in_filter : {false, true}) {
    EXPECT_TRUE(run(added.handle, in_filter)) << in_filter;
    EXPECT_EQ(TakeBreaches(), Lines()) << in_filter;
  }
}

std::string ReadText(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// All matches of `expression` in `text`: the whole match, then its groups.
std::vector<Lines> Matches(const std::string& text, const char* expression) {
  const std::regex wanted(expression);
  std::vector<Lines> matches;
  for (std::sregex_iterator at(text.begin(), text.end(), wanted), end; at != end; ++at) {
    matches.emplace_back(at->begin(), at->end());
  }
  return matches;
}

// A host function that takes a function of ours without standing in the shield's table would be
// tried by no probe. Visits have a test of their own above.
TEST_F(Boundary, EveryHostFunctionThatTakesAFunctionHasItsProbe) {
  std::string headers;
  for (const auto& file : fs::directory_iterator(SourceFolder() / "src" / "toolkit")) {
    if (file.path().extension() == ".h") headers += ReadText(file.path());
  }
  const std::string table =
      ReadText(SourceFolder() / "tests" / "frame" / "guard" / "shielded_entries.h");
  std::set<std::string> callbacks;
  for (const auto& type : Matches(headers, R"(\(\*(\w+)\)\([^()]*\) QM_CALLBACK;)")) {
    callbacks.insert(type[1]);
  }
  ASSERT_GE(callbacks.size(), 8u);
  const std::set<std::string> visits = {"ProSolidFeatVisit", "ProSolidSurfaceVisit",
                                        "ProSolidCsysVisit"};
  int checked = 0;
  for (const auto& function : Matches(headers, R"(PRO_FUNCTION\(\w+, (\w+)([^()]*)\))")) {
    for (const auto& word : Matches(function[2], R"(\w+)")) {
      if (!callbacks.contains(word[0]) || visits.contains(function[1])) continue;
      EXPECT_NE(table.find("\"" + function[1] + "\""), std::string::npos) << function[1];
      ++checked;
    }
  }
  EXPECT_GE(checked, 6);
}

// Both languages in full; the label of the second language may not be the key itself.
void ExpectMenuTexts(const fs::path& tree, const Command& command, const MenuButton& button) {
  for (const char* language : {"chinese_cn", "usascii"}) {
    const fs::path path = tree / "text" / language / "qmMenu.txt";
    const MessageFile file = MessageFile::Load(path);
    for (const std::string& key : {button.label_key, button.help_key}) {
      const MessageRecord* const record = file.Find(key);
      ASSERT_NE(record, nullptr) << language << ": " << key;
      EXPECT_NE(record->Text(), key) << language << ": " << key;
      EXPECT_FALSE(record->Text().empty()) << language << ": " << key;
    }
  }
  if (!command.designated) return;
  EXPECT_EQ(command.label_key, button.label_key) << command.name;
  EXPECT_EQ(command.help_key, button.help_key) << command.name;
  EXPECT_EQ(command.description_key, button.label_key) << command.name;
}

// Words of `text`, which are names of commands, in their order.
Lines NamesInOrder(const std::string& text) {
  Lines names;
  for (const auto& word : Matches(text, R"(\S+)")) names.push_back(word[0]);
  return names;
}

// The menu's order. Users know their places, and the texts and icons are kept under these names.
constexpr const char* kMenuOrder =
    "QmOpenDir QmBackup NewPart NewAsm NewSmt BatchColor QmClearAllColor QmBoxSelSur QmTransparent "
    "SurfTransparent BoxSel SetMat SetBendTable SameScale QmIsolate QmHideReverse QmShowAllComp "
    "QmNormalView QmParams QmRelations SetUnit CloneComp CloneAndReplace QmMerge QmMergeTo "
    "TweViews NewDraw QmExStp QmExIgs QmExSat QmBom QmRename QmRemoveCons QmExport QmMdlCount "
    "QmNewDrw QmDimModify QmFrmReplace QmDrwScaleCheck QmSimRep QmBox QmExportDwg QmExportPdf "
    "QmMdlNameCopy QmMdlRename QmExportStp QmUpdateSheetScale QmUpdateMainViewScale QmSingleDim "
    "QmSetDirectory QmConfig ForTest QmQQGroup QmVersion AboutQm";

// What does not follow from the command's name.
const std::map<std::string, std::string> kOddIcons = {{"BatchColor", "RandomColor.png"},
                                                      {"AboutQm", "AboutQuillmax.png"}};
const std::map<std::string, std::string> kOddHelpKeys = {{"BatchColor", "Color_Help"}};
const std::set<std::string> kNotOnTheRibbon = {"QmQQGroup", "QmVersion", "AboutQm"};

std::string ValueOr(const std::map<std::string, std::string>& odd, const std::string& name,
                    const std::string& regular) {
  const auto found = odd.find(name);
  return found == odd.end() ? regular : found->second;
}

TEST_F(StartedPlugin, EveryCommandHasItsLabelHelpAndIcon) {
  const Lines names = NamesInOrder(kMenuOrder);
  ASSERT_EQ(names.size(), 55u);
  const Menu* const menu = host_.commands.FindMenu("Menu");
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->buttons.size(), names.size());
  ASSERT_EQ(Registered().size(), names.size());
  for (size_t i = 0; i < names.size(); ++i) {
    const std::string& name = names[i];
    const MenuButton& button = menu->buttons[i];
    const Command& command = Registered()[i];
    EXPECT_EQ(command.name, name);
    EXPECT_EQ(button.command, &command) << name;
    EXPECT_EQ(button.name, name);
    EXPECT_EQ(button.label_key, name);
    EXPECT_EQ(button.help_key, ValueOr(kOddHelpKeys, name, name + "_Help"));
    EXPECT_EQ(command.icon, ValueOr(kOddIcons, name, name + ".png"));
    EXPECT_EQ(command.designated, !kNotOnTheRibbon.contains(name)) << name;
    ExpectMenuTexts(Installed().tree(), command, button);
    EXPECT_TRUE(fs::is_regular_file(Installed().tree() / "text" / "resource" / command.icon))
        << name;
  }
}

bool IsCapital(char c) {
  return c >= 'A' && c <= 'Z';
}

// The name that all parts of a command bear: "merge_to" of QmMergeTo, "qq_group" of QmQQGroup.
std::string StemOf(const std::string& command) {
  const std::string name = command.starts_with("Qm") ? command.substr(2) : command;
  std::string stem;
  for (size_t i = 0; i < name.size(); ++i) {
    const bool ends_capitals = i + 1 < name.size() && !IsCapital(name[i + 1]);
    if (i > 0 && IsCapital(name[i]) && (!IsCapital(name[i - 1]) || ends_capitals)) stem += '_';
    stem += static_cast<char>(std::tolower(static_cast<unsigned char>(name[i])));
  }
  return stem;
}

const fs::path kProject = SourceFolder();

// The header that declares the command, below src/; empty when there is none.
fs::path HeaderOf(const std::string& command) {
  for (const auto& file : fs::recursive_directory_iterator(kProject / "src")) {
    if (file.path().filename() != StemOf(command) + ".h") continue;
    if (ReadText(file.path()).find("ProError " + command + "();") != std::string::npos) {
      return fs::relative(file.path(), kProject / "src");
    }
  }
  return {};
}

// What a command lacks, in words; `icon` is the file that it is registered with.
Lines MissingParts(const std::string& command, const std::string& icon) {
  const std::string stem = StemOf(command);
  const fs::path header = HeaderOf(command);
  if (header.empty()) return {stem + ": no " + stem + ".h in src declares " + command};
  const fs::path source = "src" / fs::path(header).replace_extension(".cpp");
  const fs::path dialogs = "install/text/resource";
  // A few dialogs bear the command's name without its beginning.
  const bool is_short = command.starts_with("Qm") &&
                        fs::is_regular_file(kProject / dialogs / (command.substr(2) + ".res"));
  std::vector<fs::path> parts = {source,
                                 fs::path("tests/scripts") / *header.begin() / (stem + ".qms"),
                                 "install/icons" / fs::path(icon).replace_extension(".svg")};
  if (!Matches(ReadText(kProject / source), R"(\w*Dialog\()").empty()) {
    parts.push_back(dialogs / (command.substr(is_short ? 2 : 0) + ".res"));
  }
  Lines missing;
  for (const fs::path& part : parts) {
    if (fs::is_regular_file(kProject / part)) continue;
    missing.push_back(stem + ": no " + part.generic_string());
  }
  return missing;
}

TEST_F(StartedPlugin, EveryCommandHasItsPartsUnderOneStem) {
  for (const Command& command : Registered()) {
    EXPECT_EQ(MissingParts(command.name, command.icon), Lines()) << command.name;
  }
}

// Commands that the script names behind one of these words: "sweep COMMAND", "run COMMAND with".
std::set<std::string> CommandsIn(const fs::path& script, const std::set<std::string>& verbs) {
  std::set<std::string> commands;
  std::istringstream lines(ReadText(script));
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string word;
    std::string command;
    if (words >> word >> command && verbs.contains(word)) commands.insert(command);
  }
  return commands;
}

std::set<std::string> SweptCommands() {
  std::set<std::string> swept;
  for (const auto& file : fs::recursive_directory_iterator(kProject / "tests" / "scripts")) {
    if (file.path().extension() == ".qms") swept.merge(CommandsIn(file.path(), {"sweep"}));
  }
  return swept;
}

// The plug-in's commands that are not among `named`.
Lines OthersThan(const std::set<std::string>& named, const std::deque<Command>& registered) {
  Lines missing;
  for (const Command& command : registered) {
    if (!named.contains(command.name)) missing.push_back(command.name);
  }
  return missing;
}

TEST_F(StartedPlugin, EveryCommandIsSweptAndOnTheTour) {
  ASSERT_FALSE(Registered().empty());
  EXPECT_EQ(OthersThan(SweptCommands(), Registered()), Lines()) << "not swept";
  const fs::path tour = kProject / "demo" / "tour.qms";
  EXPECT_EQ(OthersThan(CommandsIn(tour, {"run", "sweep"}), Registered()), Lines())
      << "not on the tour";
}

// The walk above tells what is missing of a command by its stem.
TEST(CommandParts, AMissingOneIsNamedByTheStem) {
  EXPECT_EQ(MissingParts("QmQQGroup", "none.png"), Lines{"qq_group: no install/icons/none.svg"});
  EXPECT_EQ(MissingParts("QmMergeToNowhere", "none.png"),
            Lines{"merge_to_nowhere: no merge_to_nowhere.h in src declares QmMergeToNowhere"});
}

// The build's name differs from one to the next, so no script can compare the whole text.
TEST_F(StartedPlugin, TheVersionBoxTellsProductBuildAndBinding) {
  const MessageBox box = VersionBox();
  EXPECT_EQ(box.caption, "羽石工具箱");
  EXPECT_EQ(box.style, 0x40000u);
  const auto parts = Matches(box.text,
                             "^\t羽石工具箱 Quillmax 5\\.1 C3\t\n\t构建：\\w+\t\n"
                             "\t宿主接口：共 (\\d+) 个函数，已绑定 (\\d+) 个，缺失 0 个，"
                             "尚未使用 (\\d+) 个\t$");
  ASSERT_EQ(parts.size(), 1u) << box.text;
  size_t declared = 0;
  for (const auto& file : fs::directory_iterator(kProject / "src" / "toolkit")) {
    declared += Matches(ReadText(file.path()), R"(\nPRO_FUNCTION\()").size();
  }
  EXPECT_EQ(std::stoul(parts[0][1]), declared) << "a family that declared_functions.cpp lacks";
  EXPECT_GE(std::stoi(parts[0][2]), 5);
  EXPECT_EQ(std::stoul(parts[0][2]) + std::stoul(parts[0][3]), declared);
}

// A function that the host lacks counts from the call that wanted it, and is named. Under a file
// name of its own: what was looked up once is never looked up again.
TEST_F(Boundary, TheVersionBoxNamesFunctionsThatTheHostLacks) {
  const fs::path dll = Installed().tree() / "lacking.dll";
  fs::copy_file(Installed().dll(), dll, fs::copy_options::overwrite_existing);
  host_.windows.withheld = {"ProMdlCurrentGet"};
  Plugin plugin(dll);
  ASSERT_EQ(plugin.Start(), 0);
  RunCommand("ForTest");
  const MessageBox box = VersionBox();
  EXPECT_NE(box.text.find("缺失 1 个，"), std::string::npos) << box.text;
  EXPECT_TRUE(box.text.ends_with("个\t\n\t　ProMdlCurrentGet\t")) << box.text;
}

// The modes in which a command can be used, out of all that the host may report.
std::set<int> ModesOf(const std::string& command) {
  const struct {
    std::set<int> modes;
    const char* commands;
  } rules[] = {
      {{5, 8},
       "QmBackup NewPart NewAsm NewSmt BoxSel QmIsolate QmHideReverse QmShowAllComp QmParams "
       "QmRelations CloneComp CloneAndReplace QmMerge QmMergeTo QmExStp QmExIgs QmExSat QmBom "
       "QmRename QmRemoveCons QmMdlCount QmNewDrw QmSimRep QmBox QmMdlNameCopy QmMdlRename"},
      {{1, 2, 5, 8},
       "BatchColor QmClearAllColor QmBoxSelSur QmTransparent SurfTransparent TweViews NewDraw "
       "QmExportStp"},
      {{1, 2, 5}, "SetMat SetBendTable SetUnit"},
      {{6},
       "SameScale QmDimModify QmExportDwg QmExportPdf QmUpdateSheetScale QmUpdateMainViewScale "
       "QmSingleDim"},
  };
  for (const auto& rule : rules) {
    if (std::ranges::count(NamesInOrder(rule.commands), command) > 0) return rule.modes;
  }
  return {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
}

TEST_F(StartedPlugin, EveryCommandIsAvailableInTheModesOfItsRuleAndGreyElsewhere) {
  for (const Command& command : Registered()) {
    std::set<int> available;
    for (host_.forced_mode = 0; host_.forced_mode < 10; ++host_.forced_mode) {
      const bool is_available = AskAccess(command.name) == ACCESS_AVAILABLE;
      if (is_available) available.insert(host_.forced_mode);
      EXPECT_TRUE(is_available || AskAccess(command.name) == ACCESS_UNAVAILABLE) << command.name;
    }
    EXPECT_EQ(available, ModesOf(command.name)) << command.name;
  }
}

}  // namespace
}  // namespace wb
