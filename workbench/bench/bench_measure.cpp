// Runs the commands in rounds: each round times the bare walks and the commands one after another,
// so that whatever else the machine does meets both alike.
#include "workbench/bench/bench_measure.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <map>
#include <stdexcept>

#include "workbench/base/text.h"
#include "workbench/base/windows_headers.h"
#include "workbench/bench/bench_heap.h"
#include "workbench/bench/bench_user.h"
#include "workbench/bench/bench_walk.h"
#include "workbench/bench/bench_work.h"
#include "workbench/host/host.h"
#include "workbench/plugin/plugin.h"
#include "workbench/spreadsheet/spreadsheet_server.h"

namespace wb {
namespace {

// Columns of the level bill. The position number is none of them: in a chain its text grows with
// the depth, so that writing it is quadratic by itself.
constexpr wchar_t kLevelColumns[] = L"层级2,模型名称,模型数量,名称,材料,重量";

// Seconds and calls of one part in one round.
struct Taken {
  double seconds = 0;
  long calls = 0;
  long parameters = 0;
  double table_seconds = 0;  // of `seconds`, those in the host's tables
};

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

class Bench {
 public:
  Bench(const BenchJob& job, const std::filesystem::path& dll, const std::filesystem::path& folder)
      : job_(job), dll_(dll) {
    host_.user = &user_;
    host_.install_folder = dll.parent_path();
    host_.windows.local_app_folder = folder;
    host_.session.ChangeDirectory(folder);
    // A disk would be measured otherwise.
    host_.writers.Order(FileFormat::kStep, WriterConduct::kWritesNothing, "");
    // An export then ends where the program would start.
    SpreadsheetOrders orders;
    orders.missing = true;
    spreadsheet_.Order(orders);
    const std::filesystem::path settings = dll.parent_path() / "QMconfig" / "QmBom.ini";
    ::WritePrivateProfileStringW(L"tableCols_level", L"content", kLevelColumns, settings.c_str());
    std::ofstream(folder / kBenchMaterial) << "bench\n";
    std::ofstream(folder / kBenchBendTable) << "K 0.5\n";
    top_ = &job.shape->build(host_.session, job.occurrences);
    FillParts();
    host_.session.ActivateWindow(host_.session.ShowInWindow(*top_).id);
    host_.session.ActivateComponent(LastPart(*top_));
    plugin_.emplace(dll);
    if (plugin_->Start() != 0) throw std::runtime_error("the plug-in does not start");
  }

  BenchResult Run() {
    std::vector<long long> heap;
    ForEachCommand([&](std::span<const BenchPartRow> parts) {
      const std::vector<long long> of_command = HeapOf(parts);
      heap.insert(heap.end(), of_command.begin(), of_command.end());
    });
    for (int round = 0; round < Rounds(); ++round) RunRound();
    BenchResult result;
    for (const BenchPartRow& part : BenchParts()) {
      result.rows.push_back(RowOf(part, heap[result.rows.size()]));
    }
    if (job_.with_most_asked) result.most_asked = FindMostAsked();
    return result;
  }

 private:
  // Samples of one part, one a round.
  struct Samples {
    std::vector<double> seconds;
    std::vector<double> same_work;
    std::vector<double> times_walk;
    std::vector<double> times_same_work;
    long calls = 0;
    long walk_calls = 0;
    long parameters = 0;
  };

  // So that a change of units has something to measure, and a bend table someone to go to.
  void FillParts() {
    constexpr int kPartsPerSheetMetal = 10;
    int number = 0;
    for (const auto& model : host_.session.models()) {
      if (model->id.kind != ModelKind::kPart) continue;
      model->solid().surfaces.Add({1, {{0, 0, 0}, {10, 20, 30}}});
      model->solid().sheet_metal = number++ % kPartsPerSheetMetal == 0;
    }
  }

  int Rounds() const {
    constexpr int kOccurrencesInAll = 400'000;
    return job_.runs > 0 ? job_.runs : std::clamp(kOccurrencesInAll / job_.occurrences, 7, 41);
  }

  // The parts of each command, which one run of it shows.
  template <typename Action>
  static void ForEachCommand(Action action) {
    std::span<const BenchPartRow> rest = BenchParts();
    while (!rest.empty()) {
      size_t count = 1;
      const std::string_view command = rest.front().command;
      while (count < rest.size() && rest[count].command == command) ++count;
      action(rest.first(count));
      rest = rest.subspan(count);
    }
  }

  void RunRound() {
    const WalkTaken walk = Bare(BenchWork::kCollect);
    ForEachCommand([&](std::span<const BenchPartRow> parts) {
      const std::vector<Taken> taken = Command(parts);
      for (size_t i = 0; i < parts.size(); ++i) Note(parts[i], taken[i], walk);
    });
  }

  void Note(const BenchPartRow& part, const Taken& taken, const WalkTaken& walk) {
    const double same =
        part.same_work == BenchWork::kCollect ? walk.seconds : Bare(part.same_work).seconds;
    Samples& samples = samples_[part.part];
    if (samples.calls != 0 && samples.calls != taken.calls) {
      throw std::runtime_error(std::string(part.name) + " made " + std::to_string(taken.calls) +
                               " host calls, and " + std::to_string(samples.calls) + " before");
    }
    samples.calls = taken.calls;
    samples.walk_calls = walk.calls;
    samples.parameters = taken.parameters;
    samples.seconds.push_back(taken.seconds);
    samples.same_work.push_back(same);
    samples.times_walk.push_back(taken.seconds / walk.seconds);
    samples.times_same_work.push_back((taken.seconds - taken.table_seconds) / same);
  }

  WalkTaken Bare(BenchWork work) {
    DropParameter(work == BenchWork::kParameter);
    host_.trace.Restart();
    host_.accounts.Clear();
    return BareWalk(*top_, work);
  }

  // One run of a command: what each of its parts took.
  std::vector<Taken> Command(std::span<const BenchPartRow> parts) {
    const BenchPartRow& first = parts.front();
    DropParameter(first.part == BenchPart::kAddParameter);
    PrepareWork(host_, *top_, first.part);
    host_.dialogs.pictures.clear();
    const auto start = std::chrono::steady_clock::now();
    const CommandRun run = RunCommand(first.command);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    RequireCleanRun(first, run);
    std::vector<Taken> taken;
    for (const BenchPartRow& part : parts) {
      if (part.is_press) {
        const BenchPress& press = user_.press(part.part);
        taken.push_back({press.seconds, press.calls, press.parameters, press.table_seconds});
      } else {
        taken.push_back(part.part == BenchPart::kCollection ? Collection()
                                                            : Taken{seconds.count(), Calls()});
      }
    }
    return taken;
  }

  // Without those of the run log, which is written in lots of so many bytes, and without those of
  // progress, which come in steps: both would hide how the other calls grow.
  long Calls() const { return host_.trace.HostCalls() - Notes(); }

  long Notes() const {
    const auto counts = host_.trace.Counts();
    const auto found = counts.find("ProMessageDisplay");
    return found == counts.end() ? 0 : found->second;
  }

  Taken Collection() const {
    const Trace::FirstCall first = host_.trace.First("ProArrayAlloc");
    const Trace::FirstCall after = host_.trace.First("ProModelitemUnhide");
    if (first.call == 0 || after.call == 0) throw std::runtime_error("no component was shown");
    const std::chrono::duration<double> seconds = after.time - first.time;
    return {seconds.count(), after.call - first.call};
  }

  void RequireCleanRun(const BenchPartRow& part, const CommandRun& run) {
    const auto fail = [&](const std::string& why) {
      throw std::runtime_error(std::string(part.command) + " on " + job_.shape->name + ": " + why);
    };
    if (!run.known || !run.available) fail("the command is not there or not available");
    for (const std::string& text : host_.events.AllTexts<Breach>()) fail(text);
    for (const std::string& text : host_.events.AllTexts<Gap>()) fail(text);
    for (const std::string& text : host_.events.AllTexts<FileProblem>()) fail(text);
    if (!run.left_out.empty()) fail("left out " + run.left_out.front());
    const int expected = part.part == BenchPart::kExport ? PRO_TK_CANT_WRITE : PRO_TK_NO_ERROR;
    if (run.status != expected) fail("ended with status " + std::to_string(run.status));
    if (!HasWorked(host_, *top_, part.part, user_.units())) fail("it has not done its work");
  }

  void DropParameter(bool from_all) {
    if (!from_all) return;
    for (const auto& model : host_.session.models()) model->DeleteParameter(kBenchParameter);
  }

  // In a run that is not timed. 0 where a part is not told apart.
  std::vector<long long> HeapOf(std::span<const BenchPartRow> parts) {
    const HMODULE module = ::GetModuleHandleW(ToWide(PathToUtf8(dll_)).c_str());
    std::vector<long long> heap;
    if (parts.front().is_press) {
      user_.WatchHeapOf(module);
      Command(parts);
      user_.WatchHeapOf(nullptr);
      for (const BenchPartRow& part : parts) heap.push_back(user_.press(part.part).heap_bytes);
    } else {
      const HeapWatch watch(module);
      Command(parts);
      for (const BenchPartRow& part : parts) {
        heap.push_back(part.part == BenchPart::kCollection ? 0 : watch.peak());
      }
    }
    return heap;
  }

  BenchRow RowOf(const BenchPartRow& part, long long heap) const {
    const Samples& samples = samples_.at(part.part);
    return {job_.shape,
            part.part,
            job_.occurrences,
            static_cast<int>(host_.session.models().size()),
            samples.calls,
            samples.walk_calls,
            samples.parameters,
            Median(samples.seconds),
            std::ranges::min(samples.seconds),
            std::ranges::min(samples.same_work),
            Median(samples.times_walk),
            Median(samples.times_same_work),
            heap};
  }

  // Function and the item asked about: what stands first among the arguments.
  std::vector<MostAsked> FindMostAsked() {
    host_.trace.keep_lines = true;
    Command(BenchParts().subspan(static_cast<size_t>(BenchPart::kAddParameter), 1));
    std::map<std::pair<std::string, std::string>, long> asked;
    for (const Crossed& line : host_.trace.lines()) {
      ++asked[{line.function, line.arguments.substr(0, line.arguments.find(", "))}];
    }
    host_.trace.keep_lines = false;
    std::vector<MostAsked> most;
    for (const char* function :
         {"ProSolidFeatVisit", "ProFeatureStatusflagsGet", "ProFeatureTypeGet",
          "ProFeatureStatusGet", "ProFeatureVisibilityGet", "ProAsmcompMdlGet", "ProMdlTypeGet",
          "ProMdlNameGet", "ProMdlToModelitem", "ProParameterCreate"}) {
      MostAsked& row = most.emplace_back(MostAsked{function, 0});
      for (const auto& [key, times] : asked) {
        if (key.first == function) row.times = std::max(row.times, times);
      }
    }
    return most;
  }

  BenchJob job_;
  std::filesystem::path dll_;
  BenchUser user_;
  Host host_;
  SpreadsheetServer spreadsheet_{host_};
  Model* top_ = nullptr;
  std::optional<Plugin> plugin_;
  std::map<BenchPart, Samples> samples_;
};

}  // namespace

BenchResult Measure(const BenchJob& job, const std::filesystem::path& plugin,
                    const std::filesystem::path& work_folder) {
  // Big: on the heap.
  return std::make_unique<Bench>(job, plugin, work_folder)->Run();
}

}  // namespace wb
