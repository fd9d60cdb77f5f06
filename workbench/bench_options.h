// What `workbench bench` is asked to do.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "workbench/bench_shapes.h"

namespace wb {

// A command line that cannot be obeyed; the text says why.
struct BenchUsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct BenchOptions {
  bool help = false;
  bool markdown = false;
  bool strict = false;                             // a missed bound is a failure
  int runs = 0;                                    // 0: by size
  std::vector<int> sizes = {1000, 10000, 100000};  // ascending, each once
  std::vector<const BenchShape*> shapes;           // all, unless some are chosen
  std::filesystem::path plugin;                    // empty: the one beside the workbench
};

// Throws BenchUsageError.
BenchOptions ParseBenchOptions(const std::vector<std::string>& args);

std::string BenchUsage();

}  // namespace wb
