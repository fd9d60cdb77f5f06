// Makes the folder and works the commands on it: those that go through its drawings, and on an
// assembly those that write or look for a file of each component.
#include "workbench/bench/bench_folder.h"

#include <chrono>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

#include "workbench/base/text.h"
#include "workbench/base/windows_headers.h"
#include "workbench/bench/bench_folder_user.h"
#include "workbench/host/host.h"
#include "workbench/plugin/plugin.h"
#include "workbench/session/model_file.h"

namespace wb {
namespace {

constexpr const char* kFolderCommands[] = {"QmDrwScaleCheck", "QmFrmReplace", "QmExport"};
constexpr const char* kComponentCommands[] = {"QmExport", "QmBackup", "QmExIgs", "QmExSat",
                                              "QmRename"};

// Each component has a part and drawing of its own and costs files, so that there are fewer.
constexpr int kDrawingsPerComponent = 4;

constexpr int kSatType = 40;
constexpr wchar_t kSatSetting[] = L"QmExSatType";

// A setting of the plug-in for a while; its file is as before afterwards.
class LentSetting {
 public:
  LentSetting(std::filesystem::path file, const wchar_t* section, const std::wstring& value)
      : file_(std::move(file)) {
    std::ifstream in(file_, std::ios::binary);
    before_.assign(std::istreambuf_iterator<char>(in), {});
    in.close();
    ::WritePrivateProfileStringW(section, L"value", value.c_str(), file_.c_str());
  }
  LentSetting(const LentSetting&) = delete;
  LentSetting& operator=(const LentSetting&) = delete;
  ~LentSetting() {
    std::ofstream(file_, std::ios::binary | std::ios::trunc) << before_;
    // What Windows has kept of it.
    ::WritePrivateProfileStringW(nullptr, nullptr, nullptr, file_.c_str());
  }

 private:
  std::filesystem::path file_;
  std::string before_;
};

// A folder of its own, gone at the end.
class DrawingFolder {
 public:
  DrawingFolder(const std::filesystem::path& below, int drawings) : path_(below / "drawings") {
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_ / "formats");
    std::filesystem::create_directories(written());
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
  // Where commands write that ask for a folder.
  std::filesystem::path written() const { return path_ / "written"; }

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

// The files of a folder with this in their names.
int FilesWith(const std::filesystem::path& folder, const std::string& part_of_name) {
  int count = 0;
  for (const auto& file : std::filesystem::directory_iterator(folder)) {
    const bool is_one = PathToUtf8(file.path().filename()).find(part_of_name) != std::string::npos;
    count += is_one ? 1 : 0;
  }
  return count;
}

class FolderBench {
 public:
  FolderBench(int drawings, const std::filesystem::path& dll, const std::filesystem::path& folder)
      : drawings_(drawings),
        components_(drawings / kDrawingsPerComponent),
        settings_(dll.parent_path() / "QMconfig" / "QmConfig.ini"),
        folder_(folder, drawings),
        user_(PathToUtf8(folder_.format()), PathToUtf8(folder_.written())) {
    host_.user = &user_;
    host_.install_folder = dll.parent_path();
    host_.windows.local_app_folder = folder;
    host_.session.ChangeDirectory(folder_.path());
    // The plug-in is measured, and not the disk.
    host_.writers.Order(std::nullopt, WriterConduct::kWritesNothing, "");
    plugin_.emplace(dll);
    if (plugin_->Start() != 0) throw std::runtime_error("the plug-in does not start");
  }

  FolderRow MeasureDrawings(const char* command) { return Measure(command, command, drawings_); }

  // An assembly of parts named as some of the drawings is current from now on.
  void Assemble() {
    Model stack(ModelName{"stack", ModelKind::kAssembly});
    for (int i = 0; i < components_; ++i) {
      Model part(ModelName{"plate_" + std::to_string(i), ModelKind::kPart});
      part.parameters.Add({"名称", std::string("plate")});
      part.solid().surfaces.Add({1, {{0, 0, 0}, {300, 200, 40}}});
      stack.solid().features.Add(NewComponent(i + 1, part.id));
      host_.session.Save(host_.session.Add(std::move(part)));
    }
    Model& top = host_.session.Add(std::move(stack));
    host_.session.Save(top);
    host_.session.ActivateWindow(host_.session.ShowInWindow(top).id);
    user_.WorkOnComponents();
    // Each model is asked for once: the assembly's backup would write all of them another time.
    host_.habits.backup_leaves_what_is_used = true;
    // An export as SAT ends at the first file that does not come to be.
    host_.writers.Order(FileFormat::kIges, WriterConduct::kWorks, "");
    host_.writers.Order(FileFormat::kSat, WriterConduct::kWorks, "");
    host_.writers.sat_type = kSatType;
  }

  FolderRow MeasureComponents(const std::string& command) {
    const LentSetting sat_type(settings_, kSatSetting, std::to_wstring(kSatType));
    const std::string name = command == "QmExport" ? "QmExport list" : command;
    const FolderRow row = Measure(command.c_str(), name, components_);
    const auto require = [&](bool is_done) {
      if (!is_done) throw std::runtime_error(name + " has not done its work");
    };
    if (command == "QmExport") require(user_.loaded() == components_);
    if (command == "QmBackup") require(user_.last_box() == BackupTold() && BackedUp());
    if (command == "QmExIgs") require(FilesWith(folder_.path() / "IGS", ".igs") == components_);
    if (command == "QmExSat") require(FilesWith(folder_.written(), ".sat") == components_);
    if (command == "QmRename") require(IsRenamed());
    return row;
  }

 private:
  // The assembly has no drawing.
  std::string BackupTold() const {
    return "\t图纸备份操作已完成：模型" + std::to_string(components_ + 1) + "个，工程图" +
           std::to_string(components_) + "个，失败0个\t";
  }
  bool BackedUp() const {
    return FilesWith(folder_.written(), ".prt.") == components_ &&
           FilesWith(folder_.written(), ".drw.") == components_ &&
           FilesWith(folder_.written(), ".asm.") == 1;
  }

  bool IsRenamed() {
    for (int i = 1; i <= components_; ++i) {
      const std::string name = kRenamed + std::to_string(i);
      const bool is_found = host_.session.Find({name, ModelKind::kPart}) != nullptr &&
                            host_.session.Find({name, ModelKind::kDrawing}) != nullptr;
      if (!is_found) return false;
    }
    return true;
  }

  FolderRow Measure(const char* command, const std::string& name, int count) {
    const long notes_before = Notes();
    const auto start = std::chrono::steady_clock::now();
    const CommandRun run = RunCommand(command);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    RequireCleanRun(command, run);
    const long calls = host_.trace.HostCalls();
    return {name, count, calls, Notes() - notes_before, seconds.count()};
  }

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
  int components_;
  std::filesystem::path settings_;
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
  for (const char* const command : kFolderCommands) rows.push_back(bench->MeasureDrawings(command));
  bench->Assemble();
  for (const char* const command : kComponentCommands) {
    rows.push_back(bench->MeasureComponents(command));
  }
  return rows;
}

}  // namespace wb
