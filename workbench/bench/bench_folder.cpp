// Makes the folder and works the commands on it.
#include "workbench/bench/bench_folder.h"

#include <chrono>
#include <memory>
#include <stdexcept>

#include "workbench/base/text.h"
#include "workbench/host/host.h"
#include "workbench/plugin/plugin.h"
#include "workbench/session/model_file.h"

namespace wb {
namespace {

constexpr const char* kFolderCommands[] = {"QmDrwScaleCheck", "QmFrmReplace", "QmExport"};

// Works the dialogs, chooses the format and reads all boxes away.
class FolderUser : public User {
 public:
  explicit FolderUser(std::string format) : format_(std::move(format)) {}

  void WorkDialog(LiveDialog& dialog) override {
    if (dialog.name == "QmExport") {
      for (const char* check :
           {"DXFCheck", "PDFCheck", "STPCheck", "IGSCheck", "MultiSheetCheck"}) {
        Require(dialog.state.UserToggle(check).Done(), "no check of an export");
      }
      Press(dialog, "selAll");
      Press(dialog, "ApplyBt");
    } else {
      Press(dialog, "QmFrmReplaceAct");
    }
    Require(dialog.Fire("", kCloseEvent), "a dialog cannot be closed");
  }
  std::optional<std::string> ChooseFile(const FileRequest&) override { return format_; }
  int AnswerMessageBox(const MessageBox&) override { return 1; }
  std::optional<std::vector<PickedItem>> Pick(const PickRequest&) override { return std::nullopt; }
  std::optional<std::string> AnswerPrompt(const std::string&, int) override { return std::nullopt; }

 private:
  static void Require(bool works, const char* what) {
    if (!works) throw std::runtime_error(what);
  }
  static void Press(LiveDialog& dialog, const char* button) {
    Require(dialog.state.UserPress(button).Done() && dialog.Fire(button, kActivateEvent), button);
  }

  std::string format_;
};

// A folder of its own, gone at the end.
class DrawingFolder {
 public:
  DrawingFolder(const std::filesystem::path& below, int drawings) : path_(below / "drawings") {
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_ / "formats");
    Model plate(ModelName{"plate", ModelKind::kPart});
    plate.As<SolidContent>()->surfaces.Add({1, {{0, 0, 0}, {300, 200, 40}}});
    WriteModelFile(plate, path_ / "plate.prt.1");
    Model format(ModelName{"frame", ModelKind::kFormat});
    format.As<FormatContent>()->sheets.push_back({"A3"});
    WriteModelFile(format, path_ / "formats" / "frame.frm.1");
    for (int i = 0; i < drawings; ++i) Write("plate_" + std::to_string(i), plate.id);
  }
  DrawingFolder(const DrawingFolder&) = delete;
  DrawingFolder& operator=(const DrawingFolder&) = delete;
  ~DrawingFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path format() const { return path_ / "formats" / "frame.frm.1"; }

 private:
  void Write(const std::string& name, const ModelName& part) const {
    Model drawing(ModelName{name, ModelKind::kDrawing});
    auto& content = *drawing.As<DrawingContent>();
    content.shows = ModelLink{part};
    content.sheets = {Sheet{"A3"}, Sheet{"A3"}};
    for (const int sheet : {1, 2}) {
      DrawingView view;
      view.id = sheet;
      view.sheet = sheet;
      content.views.Add(std::move(view));
      DrawingTable table;
      table.id = sheet;
      table.format = "old.frm";
      table.segments = {sheet};
      content.tables.Add(std::move(table));
    }
    DrawingView below;
    below.id = 3;
    below.kind = ViewKind::kProjection;
    below.parent = 1;
    below.place = {0, -200};
    content.views.Add(std::move(below));
    WriteModelFile(drawing, path_ / (name + ".drw.1"));
  }

  std::filesystem::path path_;
};

class FolderBench {
 public:
  FolderBench(int drawings, const std::filesystem::path& dll, const std::filesystem::path& folder)
      : drawings_(drawings), folder_(folder, drawings), user_(PathToUtf8(folder_.format())) {
    host_.user = &user_;
    host_.install_folder = dll.parent_path();
    host_.windows.local_app_folder = folder;
    host_.session.ChangeDirectory(folder_.path());
    // The plug-in is measured, and not the disk.
    host_.writers.Order(std::nullopt, WriterConduct::kWritesNothing, "");
    plugin_.emplace(dll);
    if (plugin_->Start() != 0) throw std::runtime_error("the plug-in does not start");
  }

  FolderRow Measure(const char* command) {
    const long notes_before = Notes();
    const auto start = std::chrono::steady_clock::now();
    const CommandRun run = RunCommand(command);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    RequireCleanRun(command, run);
    const long calls = host_.trace.HostCalls();
    return {command, drawings_, calls, Notes() - notes_before, seconds.count()};
  }

 private:
  void RequireCleanRun(const std::string& command, const CommandRun& run) const {
    const auto fail = [&](const std::string& why) {
      throw std::runtime_error(command + " on a folder of drawings: " + why);
    };
    for (const std::string& text : host_.events.AllTexts<Breach>()) fail(text);
    for (const std::string& text : host_.events.AllTexts<Gap>()) fail(text);
    for (const std::string& text : host_.events.AllTexts<FileProblem>()) fail(text);
    if (!run.left_out.empty()) fail("left out " + run.left_out.front());
    if (run.status != 0) fail("ended with status " + std::to_string(run.status));
  }

  long Notes() const { return static_cast<long>(host_.events.AllTexts<Note>().size()); }

  int drawings_;
  DrawingFolder folder_;
  FolderUser user_;
  Host host_;
  std::optional<Plugin> plugin_;
};

}  // namespace

std::vector<FolderRow> MeasureFolder(int drawings, const std::filesystem::path& plugin,
                                     const std::filesystem::path& work_folder) {
  // Big: on the heap.
  const auto bench = std::make_unique<FolderBench>(drawings, plugin, work_folder);
  std::vector<FolderRow> rows;
  for (const char* const command : kFolderCommands) rows.push_back(bench->Measure(command));
  return rows;
}

}  // namespace wb
