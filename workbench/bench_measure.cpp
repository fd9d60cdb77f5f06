// Runs the commands in rounds: each round times the bare walks and the commands one after another,
// so that whatever else the machine does meets both alike.
#include "workbench/bench_measure.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <map>
#include <stdexcept>

#include "workbench/bench_heap.h"
#include "workbench/bench_user.h"
#include "workbench/bench_walk.h"
#include "workbench/host.h"
#include "workbench/model_file.h"
#include "workbench/plugin.h"
#include "workbench/text.h"
#include "workbench/windows_headers.h"

namespace wb {
namespace {

struct PartRow {
  BenchPart part;
  const char* name;
  const char* command;
  BenchWork same_work;
};
constexpr PartRow kParts[] = {
    {BenchPart::kCollection, "collection", "QmShowAllComp", BenchWork::kCollect},
    {BenchPart::kShowAll, "QmShowAllComp", "QmShowAllComp", BenchWork::kShow},
    {BenchPart::kHideReverse, "QmHideReverse", "QmHideReverse", BenchWork::kReverse},
    {BenchPart::kAddParameter, "QmParams Add", "QmParams", BenchWork::kParameter},
};
constexpr size_t kPartCount = std::size(kParts);
static_assert(kPartCount == std::size(kBenchParts));

// Seconds and calls of one part in one round.
struct Taken {
  double seconds = 0;
  long calls = 0;
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
    top_ = &job.shape->build(host_.session, job.occurrences);
    host_.session.ActivateWindow(host_.session.ShowInWindow(*top_).id);
    plugin_.emplace(dll);
    if (plugin_->Start() != 0) throw std::runtime_error("the plug-in does not start");
  }

  BenchResult Run() {
    std::array<long long, kPartCount> heap{};
    for (size_t i = 0; i < kPartCount; ++i) heap[i] = HeapOf(kParts[i]);
    for (int round = 0; round < Rounds(); ++round) RunRound();
    BenchResult result;
    for (size_t i = 0; i < kPartCount; ++i) result.rows.push_back(RowOf(i, heap[i]));
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
  };

  int Rounds() const {
    constexpr int kOccurrencesInAll = 400'000;
    return job_.runs > 0 ? job_.runs : std::clamp(kOccurrencesInAll / job_.occurrences, 7, 41);
  }

  void RunRound() {
    const double walk = Bare(BenchWork::kCollect).seconds;
    for (size_t i = 0; i < kPartCount; ++i) {
      const PartRow& part = kParts[i];
      const Taken taken = Command(part);
      const double same =
          part.same_work == BenchWork::kCollect ? walk : Bare(part.same_work).seconds;
      Samples& samples = samples_[i];
      if (samples.calls != 0 && samples.calls != taken.calls) {
        throw std::runtime_error(std::string(part.name) + " made " + std::to_string(taken.calls) +
                                 " host calls, and " + std::to_string(samples.calls) + " before");
      }
      samples.calls = taken.calls;
      samples.seconds.push_back(taken.seconds);
      samples.same_work.push_back(same);
      samples.times_walk.push_back(taken.seconds / walk);
      samples.times_same_work.push_back(taken.seconds / same);
    }
  }

  WalkTaken Bare(BenchWork work) {
    DropParameter(work == BenchWork::kParameter);
    host_.trace.Restart();
    host_.accounts.Clear();
    return BareWalk(*top_, work);
  }

  Taken Command(const PartRow& part) {
    DropParameter(part.part == BenchPart::kAddParameter);
    host_.dialogs.pictures.clear();
    const auto start = std::chrono::steady_clock::now();
    const CommandRun run = RunCommand(part.command);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    RequireCleanRun(part, run);
    if (part.part == BenchPart::kAddParameter) return {user_.press().seconds, user_.press().calls};
    if (part.part == BenchPart::kCollection) return Collection();
    return {seconds.count(), host_.trace.calls()};
  }

  Taken Collection() const {
    const Trace::FirstCall first = host_.trace.First("ProArrayAlloc");
    const Trace::FirstCall after = host_.trace.First("ProModelitemUnhide");
    if (first.call == 0 || after.call == 0) throw std::runtime_error("no component was shown");
    const std::chrono::duration<double> seconds = after.time - first.time;
    return {seconds.count(), after.call - first.call};
  }

  void RequireCleanRun(const PartRow& part, const CommandRun& run) const {
    const auto fail = [&](const std::string& why) {
      throw std::runtime_error(std::string(part.command) + " on " + job_.shape->name + ": " + why);
    };
    if (!run.known || !run.available) fail("the command is not there or not available");
    if (!host_.breaches.empty()) fail(host_.breaches.front().Text());
    if (!host_.not_modelled.empty()) fail(host_.not_modelled.front());
    if (!host_.file_problems.empty()) fail(host_.file_problems.front());
    if (!run.left_out.empty()) fail("left out " + run.left_out.front());
    if (run.status != 0) fail("ended with status " + std::to_string(run.status));
    if (part.part == BenchPart::kAddParameter && top_->FindParameter(kBenchParameter) == nullptr) {
      fail("the parameter was not created");
    }
  }

  void DropParameter(bool from_all) {
    if (!from_all) return;
    for (const auto& model : host_.session.models()) model->DeleteParameter(kBenchParameter);
  }

  long long HeapOf(const PartRow& part) {
    const HeapWatch watch(::GetModuleHandleW(ToWide(PathToUtf8(dll_)).c_str()));
    Command(part);
    return part.part == BenchPart::kCollection ? 0 : watch.peak();
  }

  BenchRow RowOf(size_t i, long long heap) const {
    const Samples& samples = samples_[i];
    return {job_.shape,
            kParts[i].part,
            job_.occurrences,
            static_cast<int>(host_.session.models().size()),
            samples.calls,
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
    Command(kParts[static_cast<size_t>(BenchPart::kAddParameter)]);
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
  Model* top_ = nullptr;
  std::optional<Plugin> plugin_;
  std::array<Samples, kPartCount> samples_;
};

}  // namespace

const char* BenchPartName(BenchPart part) {
  return kParts[static_cast<size_t>(part)].name;
}

BenchResult Measure(const BenchJob& job, const std::filesystem::path& plugin,
                    const std::filesystem::path& work_folder) {
  // Big: on the heap.
  return std::make_unique<Bench>(job, plugin, work_folder)->Run();
}

}  // namespace wb
