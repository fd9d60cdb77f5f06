// Sixty drawings of one to four sheets in all combinations of the dialog's checks: what is asked of
// the host, in which order and under which names, against lists that are written down here a second
// time, from the facts of the world alone. And how the calls grow.
#include <algorithm>
#include <functional>

#include "tests/plugin_host.h"
#include "tests/workbench/temporary_folder.h"
#include "workbench/base/text.h"
#include "workbench/session/model_file.h"

namespace wb {
namespace {

constexpr int kDrawings = 60;

struct SheetCase {
  std::string size;
  int part = 0;  // 0: no view lies on the sheet
};

// Drawing `number` as a user knows it.
struct DrawingCase {
  int number = 0;
  std::string name;
  std::vector<SheetCase> sheets;
};

// One to four sheets; of every third drawing they all show one part, the last sheet of some is
// without views, and a few names are Chinese.
DrawingCase CaseOf(int number) {
  DrawingCase drawing{number, (number % 7 == 3 ? "件" : "d") + std::to_string(number), {}};
  const int sheets = number % 4 + 1;
  for (int sheet = 1; sheet <= sheets; ++sheet) {
    const int part = number * 10 + (number % 3 == 0 ? 1 : sheet);
    const bool is_bare = sheet > 1 && sheet == sheets && number % 5 == 1;
    drawing.sheets.push_back({sheet % 2 == 1 ? "A3" : "A4", is_bare ? 0 : part});
  }
  return drawing;
}

std::string PartName(int part) {
  return "p" + std::to_string(part);
}

// The text of the one parameter; none: the part does not have it.
std::optional<std::string> CodeOf(int part) {
  if (part % 4 == 1) return std::nullopt;
  return part % 4 == 2 ? "" : "图G-" + std::to_string(part);
}

Model PartOf(int part) {
  Model model(ModelName{PartName(part), ModelKind::kPart});
  if (const auto code = CodeOf(part)) model.SetParameter("代号", *code);
  model.As<SolidContent>()->surfaces.Add({1, {{0, 0, 0}, {30, 20, 10}}});
  return model;
}

// The views lie in the order of the last sheet first; each sheet has a second one, of another part.
Model DrawingModelOf(const DrawingCase& drawing) {
  Model model(ModelName{drawing.name, ModelKind::kDrawing});
  auto& content = *model.As<DrawingContent>();
  const ModelName first{PartName(drawing.sheets[0].part), ModelKind::kPart};
  content.shows = ModelLink{first};
  for (const SheetCase& sheet : drawing.sheets) {
    content.sheets.push_back({sheet.size});
    if (sheet.part == 0) continue;
    const ModelName part{PartName(sheet.part), ModelKind::kPart};
    content.models.push_back({ModelLink{part}});
  }
  content.models.push_back({ModelLink{ModelName{"other", ModelKind::kPart}}});
  int id = 0;
  for (size_t sheet = drawing.sheets.size(); sheet > 0; --sheet) {
    if (drawing.sheets[sheet - 1].part == 0) continue;
    for (const std::string& part :
         {PartName(drawing.sheets[sheet - 1].part), std::string("other")}) {
      DrawingView view;
      view.id = ++id;
      view.sheet = static_cast<int>(sheet);
      view.shows = ModelLink{ModelName{part, ModelKind::kPart}};
      view.place = {100, 100};
      content.views.Add(view);
    }
  }
  return model;
}

// Other rules are export_name_rules_test's.
constexpr char kNaming[] = "图纸名称,sheetsize,代号";

std::string NameBy(const std::string& size, const std::string& own, int part) {
  const auto code = CodeOf(part);
  return own + "_" + size + (code ? "_" + *code : "");
}

// What the dialog is set to.
struct Wishes {
  unsigned formats = 0;  // bits in the order DWG, DXF, PDF, STP, IGS
  bool per_sheet = false;
  const char* naming = kNaming;
};

// The files of one drawing, one line each: format, file, what it shows.
Lines FilesOf(const DrawingCase& drawing, const Wishes& wishes) {
  const int first = drawing.sheets[0].part;
  const std::string base = NameBy(drawing.sheets[0].size, drawing.name, first);
  const auto count = static_cast<int>(drawing.sheets.size());
  Lines files;
  for (unsigned format = 0; format < 5; ++format) {
    if ((wishes.formats >> format & 1) == 0) continue;
    const std::string head = Lines{"DWG\\", "DXF\\", "PDF\\", "STP\\", "IGS\\"}[format];
    const std::string tail = Lines{".dwg", ".dxf", ".pdf", ".stp", ".igs"}[format];
    const bool is_model = format >= 3;
    if (format == 2 && (count == 1 || !wishes.per_sheet)) {
      files.push_back(head + base + tail + " all of " + drawing.name);
    } else if (is_model && !wishes.per_sheet) {
      files.push_back(head + base + tail + " of " + PartName(first));
    } else if (!is_model && count == 1) {
      files.push_back(head + base + tail + " sheet 1 of " + drawing.name);
    } else {
      for (int number = 1; number <= count; ++number) {
        const SheetCase& sheet = drawing.sheets[static_cast<size_t>(number - 1)];
        const std::string part = PartName(sheet.part);
        if (is_model && sheet.part == 0) continue;
        std::string name = base + "-" + std::to_string(number);
        if (wishes.per_sheet && sheet.part != 0) {
          name = is_model ? part : NameBy(sheet.size, part, sheet.part);
        }
        const std::string shown =
            is_model ? " of " + part : " sheet " + std::to_string(number) + " of " + drawing.name;
        files.push_back(head + name + tail + shown);
      }
    }
  }
  return files;
}

// "DWG\a.dwg" of a full path.
std::string FileIn(std::string path) {
  std::ranges::replace(path, '/', '\\');
  const size_t name = path.rfind('\\');
  return path.substr(path.rfind('\\', name - 1) + 1);
}

int LastNumber(const std::string& arguments) {
  return std::stoi(arguments.substr(arguments.find_last_of(" (") + 1));
}

// What the host was asked for, in the words of FilesOf; the paths in a trace are cut.
Lines AskedFor(const std::vector<Crossed>& calls, const std::vector<ExportedFile>& written) {
  Lines files;
  int model_space = 0;
  int current = 0;
  for (const Crossed& call : calls) {
    const auto add = [&](const std::string& shown) {
      const ExportedFile& file = written.at(files.size());
      const std::string model = file.model.substr(0, file.model.rfind('.'));
      files.push_back(FileIn(file.path) + shown + " of " + model);
    };
    if (call.function == "Pro2dExportdataModelspacesheetSet") {
      model_space = LastNumber(call.arguments);
    }
    if (call.function == "ProDrawingCurrentSheetSet") current = LastNumber(call.arguments);
    if (call.function == "Pro2dExport") add(" sheet " + std::to_string(model_space));
    if (call.function == "ProPDFExport") add(" all");
    if (call.function == "ProPDFWithProfileExport") add(" sheet " + std::to_string(current));
    if (call.function == "ProOutputFileWrite") add("");
  }
  EXPECT_EQ(files.size(), written.size());
  return files;
}

class Exporter : public AbsentUser {
 public:
  void WorkDialog(LiveDialog& dialog) override {
    EXPECT_TRUE(dialog.state.UserSetField("Export_name", wishes.naming).Done());
    EXPECT_TRUE(dialog.state.UserSetField("separator", "_").Done());
    const char* const checks[] = {"DWGCheck", "DXFCheck", "PDFCheck", "STPCheck", "IGSCheck"};
    for (unsigned i = 0; i < 5; ++i) Check(dialog, checks[i], (wishes.formats >> i & 1) != 0);
    Check(dialog, "MultiSheetCheck", wishes.per_sheet);
    Press(dialog, "selAll");
    TheHost().trace.Restart();
    TheHost().trace.keep_lines = true;
    Press(dialog, "ApplyBt");
    TheHost().trace.keep_lines = false;
    // Which window is current, and must be closed as the user does it, rests on what was open
    // before.
    calls = TheHost().trace.HostCalls() - TheHost().trace.Count("ProWindowCurrentClose");
    asked = AskedFor(TheHost().trace.lines(), TheHost().events.All<ExportedFile>());
    erasures = TheHost().trace.Count("ProMdlEraseNotDisplayed");
    Press(dialog, "Close");
  }
  int AnswerMessageBox(const MessageBox& box) override {
    EXPECT_EQ(box.text, "\t工程图批量导出已完成");
    return 1;
  }

  Wishes wishes;
  Lines asked;
  long calls = 0;
  long erasures = 0;

 private:
  static void Check(LiveDialog& dialog, const char* button, bool wanted) {
    CheckState* state = nullptr;
    ASSERT_EQ(dialog.state.Find(FieldKind::kCheckButton, button, &state), UiStatus::kOk);
    if (state->set == wanted) return;
    EXPECT_TRUE(dialog.state.UserToggle(button).Done());
  }
  static void Press(LiveDialog& dialog, const char* button) {
    EXPECT_TRUE(dialog.state.UserPress(button).Done());
    EXPECT_TRUE(dialog.Fire(button, kActivateEvent));
  }
};

class ExportWorld : public PluginHost {
 protected:
  ExportWorld() {
    host_.session.ChangeDirectory(folder_.path);
    host_.user = &exporter_;
    // What the files are, and not what they hold, is told here.
    host_.companion_is_missing = true;
    EXPECT_EQ(plugin_.Start(), 0);
    Write(PartOf(0), "other.prt.1");
  }
  ~ExportWorld() override { host_.user = &user_; }

  void Write(Model model, const std::string& file) {
    if (file == "other.prt.1") model.id = ModelName{"other", ModelKind::kPart};
    WriteModelFile(model, folder_.path / PathFromUtf8(file));
  }

  // The drawings, instead of all others, and their parts.
  std::vector<DrawingCase> WriteDrawings(int count, const std::function<int(int)>& number) {
    for (const auto& file : std::filesystem::directory_iterator(folder_.path)) {
      if (file.path().string().ends_with(".drw.1")) std::filesystem::remove(file.path());
    }
    std::vector<DrawingCase> drawings;
    for (int i = 0; i < count; ++i) {
      const DrawingCase& drawing = drawings.emplace_back(CaseOf(number(i)));
      Write(DrawingModelOf(drawing), drawing.name + ".drw.1");
      for (const SheetCase& sheet : drawing.sheets) {
        if (sheet.part != 0) Write(PartOf(sheet.part), PartName(sheet.part) + ".prt.1");
      }
    }
    return drawings;
  }

  void ExpectFiles(unsigned combination, std::vector<DrawingCase> drawings, long erasures) {
    std::ranges::sort(drawings, {},
                      [](const DrawingCase& drawing) { return ToWide(drawing.name); });
    const Wishes wishes{combination & 31, combination >= 32};
    Export(wishes);
    Lines wanted;
    for (const DrawingCase& drawing : drawings) {
      const Lines files = FilesOf(drawing, wishes);
      wanted.insert(wanted.end(), files.begin(), files.end());
    }
    ASSERT_EQ(exporter_.asked, wanted) << "combination " << combination;
    EXPECT_EQ(exporter_.erasures, erasures);
  }

  void Export(const Wishes& wishes) {
    exporter_.wishes = wishes;
    EXPECT_EQ(RunCommand("QmExport").status, 0);
    EXPECT_EQ(TakeBreaches(), Lines{});
    host_.events = {};
  }

  const TemporaryFolder folder_{"workbench export"};
  Exporter exporter_;
  Plugin plugin_{Installed().dll()};
};

// Sixty drawings with all formats; of the other combinations two drawings, others each time.
TEST_F(ExportWorld, TheFilesOfSixtyDrawingsAreTheWantedOnesInAllCombinations) {
  for (unsigned combination = 0; combination < 64; ++combination) {
    if ((combination & 31) == 31) continue;
    const unsigned first = combination * 2;
    ExpectFiles(combination, WriteDrawings(2, [&](int i) { return (first + i) % kDrawings; }), 1);
  }
  const auto drawings = WriteDrawings(kDrawings, [](int i) { return i; });
  for (const unsigned combination : {31, 63}) ExpectFiles(combination, drawings, 2);
}

TEST_F(ExportWorld, EachSheetCostsTheSameNumberOfCalls) {
  for (const bool per_sheet : {false, true}) {
    std::vector<long> calls;
    for (const int number : {2, 5, 2, 7}) {  // a first run; two, three, four sheets
      WriteDrawings(1, [number](int) { return number; });
      Export({31, per_sheet, "图纸名称"});
      calls.push_back(exporter_.calls);
    }
    EXPECT_EQ(calls[3] - calls[2], calls[2] - calls[1]) << per_sheet;
  }
}

}  // namespace
}  // namespace wb
