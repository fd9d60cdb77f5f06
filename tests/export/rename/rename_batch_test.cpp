// Batches of renamings against what they must come to: each row gets a new name of a kind whose
// outcome is known beforehand, so that nothing here judges names as the plug-in does.
#include <random>
#include <set>

#include "tests/plugin_host.h"
#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/script/script_snapshot.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

enum class Kind {
  kSame,
  kEmpty,
  kFresh,
  kLongest,       // 31 characters
  kNoBuffer,      // 32
  kTooLong,       // 33
  kInSession,     // the name of a model of this type
  kOnDisk,        // of one that is not in session
  kOfEarlierRow,  // what an earlier row of this type asks for, in capitals
  kOfOtherType,   // the name of a model of the other type in session
  kIllegal,
};
constexpr int kKinds = static_cast<int>(Kind::kIllegal) + 1;

struct Row {
  ModelName before;
  Model* model = nullptr;
  Model* drawing = nullptr;  // null: none
  std::string typed;
  bool renamed = false;
  std::string refusal;  // empty: none
};

class RenamingUser : public AbsentUser {
 public:
  void WorkDialog(LiveDialog& dialog) override {
    for (size_t i = 0; i < typed.size(); ++i) {
      const std::string field = "input" + std::to_string(i + 1);
      EXPECT_EQ(dialog.state.UserSetField(field, " " + typed[i] + " ").refusal, "");
    }
    dialog.Fire("StartRename", kActivateEvent);
    dialog.Fire("", kCloseEvent);
  }
  bool CallBegins(const char* function) override {
    if (at_call) at_call(function);
    return false;
  }
  std::vector<std::string> typed;
  std::function<void(const std::string& function)> at_call;
};

class RenameBatch : public PluginHost {
 protected:
  RenameBatch() : folder_(Installed().work() / ("rename-" + std::to_string(++number_))) {
    fs::create_directories(folder_);
    host_.session.ChangeDirectory(folder_);
    host_.user = &user_;
    EXPECT_EQ(plugin_.Start(), 0);
  }
  ~RenameBatch() override { fs::remove_all(folder_); }

  Model& Add(const ModelName& name) {
    Model model(name);
    model.folder = folder_;
    return host_.session.Add(std::move(model));
  }

  // The owner of the `i`-th model: every third one is an assembly and holds the two behind it, and
  // every third of these the other two, so that models are listed in the order of their numbers.
  Model& OwnerOf(int i, Model& top) {
    if (i % 9 == 0) return top;
    return *rows_[static_cast<size_t>(i % 3 == 0 ? i - i % 9 : i - i % 3)].model;
  }

  // A product of `count` models under a top assembly, on three levels, every second model with a
  // drawing.
  void Build(int count) {
    rows_.clear();
    Model& top = Add({"top", ModelKind::kAssembly});
    for (int i = 0; i < count; ++i) {
      const ModelKind kind = i % 3 == 0 ? ModelKind::kAssembly : ModelKind::kPart;
      Row row;
      row.before = {"old_" + std::to_string(i), kind};
      Model& model = Add(row.before);
      row.model = &model;
      OwnerOf(i, top).solid().features.Add(NewComponent(i + 1, model.id));
      if (i % 2 == 0) {
        Model& drawing = Add({row.before.name, ModelKind::kDrawing});
        drawing.As<DrawingContent>()->shows = ModelLink{model.id, &model};
        drawing.As<DrawingContent>()->sheets.emplace_back();
        row.drawing = &drawing;
      }
      rows_.push_back(row);
    }
    for (const auto& model : host_.session.models()) host_.session.Complete(*model);
    for (const ModelKind kind : {ModelKind::kPart, ModelKind::kAssembly}) {
      Model& lying = Add({"lying", kind});
      host_.session.Save(lying);
      host_.session.Erase(lying);
    }
    for (const auto& model : host_.session.models()) host_.session.Save(*model);
    host_.session.ActivateWindow(host_.session.ShowInWindow(top).id);
  }

  // Nothing in session, nothing in the folder.
  void Empty() {
    while (!host_.session.models().empty()) host_.session.Erase(*host_.session.models().front());
    for (const auto& item : fs::directory_iterator(folder_)) fs::remove(item);
  }

  static std::string Refusal(const std::string& name, const std::string& ending) {
    return "无法执行重命名操作！\n新名称“" + name + "”" + ending;
  }

  // Gives row `i` a new name of this kind, and says what comes of it.
  void Give(size_t i, Kind kind) {
    const std::string taken = "在当前会话或工作目录中已存在，请修改后再试！";
    const std::string illegal = "非法，请修改后再试！";
    Row& row = rows_[i];
    const bool is_part = row.before.kind == ModelKind::kPart;
    const std::string own = "n" + std::to_string(i) + "_";
    const auto filled = [&](size_t size) { return own + std::string(size - own.size(), 'x'); };
    const auto refuse = [&](const std::string& name, const std::string& ending) {
      row.typed = name;
      row.refusal = Refusal(name, ending);
    };
    row.renamed = false;
    row.refusal.clear();
    switch (kind) {
      case Kind::kSame:
        row.typed = row.before.name;
        return;
      case Kind::kEmpty:
        row.typed = "";
        return;
      case Kind::kNoBuffer:
        return refuse(filled(32), illegal);
      case Kind::kTooLong:
        return refuse(filled(33), "长度大于32位，名称无效，请修改后再操作");
      case Kind::kInSession:
        return refuse(is_part ? "Old_1" : "TOP", taken);
      case Kind::kOnDisk:
        return refuse("lying", taken);
      case Kind::kOfEarlierRow:
        for (size_t k = 0; k < i; ++k) {
          const bool same_type = rows_[k].before.kind == row.before.kind;
          if (same_type && rows_[k].renamed && rows_[k].typed.starts_with("n"))
            return refuse("N" + rows_[k].typed.substr(1), taken);
        }
        break;
      case Kind::kOfOtherType:
        // The trial is a part: it spares the files of one that lies there under the name.
        row.typed = is_part ? "top" : "old_1";
        row.renamed = std::ranges::none_of(rows_, [&](const Row& other) {
          return &other != &row && other.renamed && other.typed == row.typed;
        });
        if (!row.renamed) break;
        return;
      case Kind::kIllegal:
        return refuse(own + "!", illegal);
      default:
        break;
    }
    row.typed = kind == Kind::kLongest ? filled(31) : own + "ä螺";
    row.renamed = true;
  }

  std::vector<std::string> Boxes() const {
    std::vector<std::string> texts;
    for (const MessageBox& box : host_.events.All<MessageBox>()) texts.push_back(box.text);
    return texts;
  }

  void Run() {
    user_.typed.clear();
    for (const Row& row : rows_) user_.typed.push_back(row.typed);
    host_.events.Forget<MessageBox>();
    const CommandRun run = RunCommand("QmRename");
    EXPECT_TRUE(run.known && run.available);
    EXPECT_EQ(run.left_out, Lines());
    EXPECT_EQ(TakeBreaches(), Lines());
  }

  void CheckRefused(const FolderSnapshot& before, const std::string& refusal) {
    EXPECT_EQ(Boxes(), Lines{refusal});
    EXPECT_EQ(host_.trace.Count("ProMdlRename"), 0);
    EXPECT_TRUE(before.Differences().empty());
    for (const Row& row : rows_) EXPECT_NE(host_.session.Find(row.before), nullptr);
  }

  static bool Holds(const fs::path& file, const std::string& name) {
    return ReadFileBytes(file).value_or("").find("\"" + name + "\"") != std::string::npos;
  }

  void CheckDone() {
    EXPECT_EQ(Boxes(), Lines{"\t批量重命名操作已完成\t"});
    long renamed = 0;
    long drawings = 0;
    std::set<std::string> old_names;
    for (const Row& row : rows_) {
      const ModelName after{row.renamed ? row.typed : row.before.name, row.before.kind};
      EXPECT_NE(host_.session.Find(after), nullptr) << after.Text();
      EXPECT_TRUE(fs::exists(folder_ / PathFromUtf8(after.Text() + ".1")));
      EXPECT_EQ(fs::exists(folder_ / PathFromUtf8(after.Text() + ".2")), row.renamed);
      const ModelName drawing{after.name, ModelKind::kDrawing};
      EXPECT_EQ(host_.session.Find(drawing) != nullptr, row.drawing != nullptr);
      if (!row.renamed) continue;
      ++renamed;
      drawings += row.drawing != nullptr ? 1 : 0;
      old_names.insert(row.before.Text());
      EXPECT_EQ(host_.session.Find(row.before), nullptr);
    }
    EXPECT_EQ(host_.trace.Count("ProMdlRename"), renamed + drawings);
    EXPECT_EQ(host_.trace.Count("ProMdlSave"),
              host_.trace.Count("ProSolidCreate") + renamed + drawings);
    CheckNoFileKnows(old_names);
  }

  // After the top assembly is saved, the newest file of every model knows new names only, and there
  // is a file for no model but those that were there before.
  void CheckNoFileKnows(const std::set<std::string>& old_names) {
    host_.session.SaveWithHeld(*host_.session.Find({"top", ModelKind::kAssembly}));
    const FolderIndex index(folder_);
    const std::vector<ModelName> models = index.Models();
    size_t elsewhere = 0;
    for (const ModelKind kind : {ModelKind::kPart, ModelKind::kAssembly}) {
      elsewhere += host_.session.Find({"lying", kind}) == nullptr ? 1 : 0;
    }
    EXPECT_EQ(models.size(), host_.session.models().size() + elsewhere);
    for (const ModelName& model : models) {
      EXPECT_FALSE(old_names.contains(model.Text())) << model.Text();
      if (model.kind == ModelKind::kAssembly) {
        for (const std::string& name : old_names) EXPECT_FALSE(Holds(index.Newest(model), name));
      } else if (model.kind == ModelKind::kDrawing) {
        const Model& drawing = *host_.session.Find(model);
        EXPECT_TRUE(Holds(index.Newest(model), drawing.As<DrawingContent>()->shows->name.Text()));
      }
    }
  }

  // Every model that is there has its files under its name, and nobody else has any.
  void CheckFilesAreOfModels() {
    std::set<std::string> expected = {"top.asm", "lying.asm", "lying.prt"};
    for (const Row& row : rows_) {
      expected.insert(row.model->id.Text());
      if (row.drawing != nullptr) expected.insert(row.drawing->id.Text());
    }
    std::set<std::string> found;
    for (const ModelName& model : FolderIndex(folder_).Models()) found.insert(model.Text());
    EXPECT_EQ(found, expected);
    for (const std::string& model : expected) {
      EXPECT_TRUE(fs::exists(folder_ / PathFromUtf8(model + ".1"))) << model;
    }
  }

  inline static int number_ = 0;
  const fs::path folder_;
  RenamingUser user_;
  std::vector<Row> rows_;
  Plugin plugin_{Installed().dll()};
};

// Whatever fails: no file of the user's goes, none of a trial stays, and the option is what the
// outcome says.
TEST_F(RenameBatch, NoFaultCostsAFileOrLeavesOne) {
  const auto run = [&](const FaultPlan& fault) {
    Empty();
    Build(2);
    for (size_t i = 0; i < rows_.size(); ++i) Give(i, Kind::kFresh);
    host_.options["override_store_back"] = {"no"};
    host_.faults.Order(fault);
    Run();
    const bool has_struck = host_.faults.struck() > 0;
    host_.faults.Clear();
    CheckFilesAreOfModels();
    const bool is_done = Boxes() == Lines{"\t批量重命名操作已完成\t"};
    EXPECT_EQ(host_.options["override_store_back"], Lines{is_done ? "no" : "yes"});
    return has_struck;
  };
  for (const char* function :
       {"ProMdlErase", "ProMdlSave", "ProSolidCreate", "ProMdlRename", "ProMdlRetrieve",
        "ProConfigoptGet", "ProConfigoptSet", "ProDirectoryCurrentGet"}) {
    for (const FaultKind kind : {FaultKind::kStatus, FaultKind::kEmptySuccess}) {
      FaultPlan fault;
      fault.function = function;
      fault.kind = kind;
      for (fault.nth = 1;; ++fault.nth) {
        SCOPED_TRACE(fault.function + " " + std::to_string(fault.nth));
        if (!run(fault)) break;
      }
      EXPECT_GT(fault.nth, 1) << function;
    }
  }
}

TEST_F(RenameBatch, AFullJournalMakesRoomForANewOne) {
  const fs::path folder = Installed().work() / "Quillmax";
  fs::create_directories(folder);
  const std::string full(1024 * 1024 + 1, 'x');
  std::ofstream(folder / "QmRename.txt", std::ios::binary | std::ios::trunc) << full;
  Build(3);
  for (size_t i = 0; i < rows_.size(); ++i) Give(i, Kind::kFresh);
  Run();
  CheckDone();
  EXPECT_EQ(ReadFileBytes(folder / "QmRename.old.txt"), full);
  const std::string journal = ReadFileBytes(folder / "QmRename.txt").value_or("");
  EXPECT_NE(journal.find("\tmodels to rename: 3\r\n"), std::string::npos);
  EXPECT_EQ(journal.find("xx"), std::string::npos);
}

// A process that ends before any of the calls leaves what the journal says; between a step and its
// line nothing else is called but Windows, for the journal and the run log themselves.
TEST_F(RenameBatch, TheJournalIsTrueBetweenAnyTwoCalls) {
  Build(7);
  for (size_t i = 0; i < rows_.size(); ++i) Give(i, i == 3 ? Kind::kSame : Kind::kFresh);
  const fs::path file = Installed().work() / "Quillmax" / "QmRename.txt";
  fs::remove(file);
  // The third model refuses at first.
  FaultPlan fault;
  fault.function = "ProMdlRename";
  fault.nth = 4;
  fault.kind = FaultKind::kStatus;
  fault.status = PRO_TK_E_FOUND;
  host_.faults.Order(fault);
  int moments = 0;
  user_.at_call = [&](const std::string& function) {
    if (!function.starts_with("Pro")) return;
    const std::string journal = ReadFileBytes(file).value_or("");
    if (journal.empty()) {
      EXPECT_NE(function, "ProMdlRename");
      return;
    }
    ++moments;
    for (size_t i = 0; i < rows_.size(); ++i) {
      SCOPED_TRACE(function + " " + std::to_string(i));
      const Row& row = rows_[i];
      const ModelName after{row.typed, row.before.kind};
      const ModelName drawing{row.typed, ModelKind::kDrawing};
      const auto says = [&](const char* what) {
        return journal.find("\n" + std::to_string(i + 1) + "\t" + what + "\r\n") != journal.npos;
      };
      const auto is_saved = [&](const ModelName& name) {
        return fs::exists(folder_ / PathFromUtf8(name.Text() + ".2"));
      };
      if (!row.renamed) {
        EXPECT_FALSE(says("renamed"));
        continue;
      }
      EXPECT_EQ(says("renamed"), host_.session.Find(after) != nullptr);
      EXPECT_EQ(says("saved"), is_saved(after));
      EXPECT_EQ(says("drawing renamed"), host_.session.Find(drawing) != nullptr);
      EXPECT_EQ(says("drawing saved"), is_saved(drawing));
    }
  };
  Run();
  user_.at_call = nullptr;
  EXPECT_GT(moments, 20);
  for (const Row& row : rows_) {
    const bool there = host_.session.Find({row.typed, row.before.kind}) != nullptr;
    EXPECT_TRUE(there || !row.renamed) << row.typed;
  }
  EXPECT_NE(ReadFileBytes(file).value_or("").find("end: 6 renamed, 0 not\r\n"), std::string::npos);
}

class RenameMixtures : public RenameBatch, public testing::WithParamInterface<int> {};

TEST_P(RenameMixtures, EndAsTheFirstWrongRowSays) {
  std::mt19937 random(static_cast<unsigned>(GetParam()));
  Build(12);
  for (int batch = 0; batch < 12; ++batch) {
    std::string refusal;
    for (size_t i = 0; i < rows_.size(); ++i) {
      // Mostly good rows: otherwise the first ones would decide every batch.
      const bool is_any = random() % 6 == 0;
      Give(i, is_any ? static_cast<Kind>(random() % kKinds) : Kind::kFresh);
      if (refusal.empty()) refusal = rows_[i].refusal;
    }
    const FolderSnapshot before(folder_);
    Run();
    if (refusal.empty()) {
      CheckDone();
      return;
    }
    CheckRefused(before, refusal);
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RenameMixtures, testing::Range(1, 13));

}  // namespace
}  // namespace wb
