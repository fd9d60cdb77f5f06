// Runs the benchmark over the chosen shapes and sizes and prints its report.
#include "workbench/bench/bench.h"

#include <algorithm>
#include <cstdio>

#include "workbench/bench/bench_heap.h"
#include "workbench/bench/bench_options.h"
#include "workbench/bench/bench_report.h"
#include "workbench/plugin/install_copy.h"

namespace wb {
namespace {

// A shape with a bound is measured at its bound and at half of it where a size goes beyond.
std::vector<int> SizesFor(const BenchShape& shape, const std::vector<int>& sizes) {
  std::vector<int> fitting;
  for (const int size : sizes) {
    if (shape.largest == 0 || size <= shape.largest) fitting.push_back(size);
  }
  if (fitting.size() == sizes.size()) return fitting;
  for (const int size : {shape.largest / 2, shape.largest}) {
    if (std::ranges::find(fitting, size) == fitting.end()) fitting.push_back(size);
  }
  std::ranges::sort(fitting);
  return fitting;
}

// Multiples of the numbers of drawings between two notes, and between two erasings of what is not
// displayed, so that these are linear as well.
constexpr int kFolderSizes[] = {60, 120, 240};

BenchResult MeasureAll(const BenchOptions& options, const InstallCopy& copy) {
  BenchResult all;
  for (const BenchShape* shape : options.shapes) {
    for (const int size : SizesFor(*shape, options.sizes)) {
      std::fprintf(stderr, "%s, %d occurrences\n", shape->name, size);
      BenchResult result =
          Measure({shape, size, options.runs, all.most_asked.empty()}, copy.dll(), copy.work());
      all.rows.insert(all.rows.end(), result.rows.begin(), result.rows.end());
      if (all.most_asked.empty()) all.most_asked = std::move(result.most_asked);
    }
  }
  for (const int drawings : kFolderSizes) {
    std::fprintf(stderr, "folder, %d drawings\n", drawings);
    const std::vector<FolderRow> rows = MeasureFolder(drawings, copy.dll(), copy.work());
    all.folders.insert(all.folders.end(), rows.begin(), rows.end());
  }
  return all;
}

// Gives the number of bounds missed.
int PrintReport(const BenchResult& result, bool markdown) {
  const char* const fence = markdown ? "```\n" : "";
  std::printf("%s%s%s\n%s\n", fence, BenchHead().c_str(), fence,
              BenchTables(result, markdown).c_str());
  int missed = 0;
  for (const BenchBound& bound : CheckBounds(result)) {
    missed += bound.kept ? 0 : 1;
    std::printf("%s%s: %s, %s\n", markdown ? "- " : "", bound.kept ? "kept" : "MISSED",
                bound.text.c_str(), bound.found.c_str());
  }
  std::printf("%sthe workbench's process, models included, used %lld MiB at most\n",
              markdown ? "- " : "", PeakOfProcess() / (1024 * 1024));
  std::fflush(stdout);
  return missed;
}

}  // namespace

int BenchCommand(const std::vector<std::string>& args) {
  if (std::ranges::find(args, "--help") != args.end()) {
    std::printf("%s", BenchUsage().c_str());
    return 0;
  }
  const BenchOptions options = ParseBenchOptions(args);
  const InstallCopy copy(options.install, "bench");
  const int missed = PrintReport(MeasureAll(options, copy), options.markdown);
  return missed > 0 && options.strict ? 1 : 0;
}

}  // namespace wb
