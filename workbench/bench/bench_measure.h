// Measures the plug-in's commands on one assembly of the benchmark.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "workbench/bench/bench_folder.h"
#include "workbench/bench/bench_parts.h"
#include "workbench/session/bench_shapes.h"

namespace wb {

struct BenchRow {
  const BenchShape* shape;
  BenchPart part;
  int occurrences;
  int models;
  long calls;
  long walk_calls;           // of a bare collection
  long parameters;           // of models, looked up; counted in a press only
  double seconds;            // median
  double fastest;            // of all rounds: what other programs disturbed least
  double fastest_same_work;  // of the bare walks that also do the command's work
  double times_walk;  // median over the runs, each against a bare collection of its own round
  // The same against a bare walk that also does the command's work, without the time that the host
  // takes to keep its table.
  double times_same_work;
  long long heap_bytes;  // the plug-in's peak; 0 where it is not told apart
};

// How often a host function was asked about the model, or component, that it was asked about most.
struct MostAsked {
  std::string function;
  long times = 0;
};

struct BenchResult {
  std::vector<BenchRow> rows;
  std::vector<MostAsked> most_asked;  // by QmParams; only when wanted
  std::vector<FolderRow> folders;     // no part of an assembly's measurement
};

struct BenchJob {
  const BenchShape* shape;
  int occurrences;
  int runs;  // 0: by size
  bool with_most_asked;
};
// Loads the plug-in into a host of its own. `work_folder` takes the run log. Throws
// std::runtime_error when a command does not do what a benchmark needs.
BenchResult Measure(const BenchJob& job, const std::filesystem::path& plugin,
                    const std::filesystem::path& work_folder);

}  // namespace wb
