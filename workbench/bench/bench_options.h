// What `workbench bench` is asked to do.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "workbench/shapes/bench_shapes.h"

namespace wb {

struct BenchOptions {
  bool markdown = false;
  bool strict = false;     // a missed bound is a failure
  int runs = 0;            // 0: by size
  std::vector<int> sizes;  // ascending, each once
  std::vector<const BenchShape*> shapes;
  std::filesystem::path install;
};

// Throws UsageError.
BenchOptions ParseBenchOptions(const std::vector<std::string>& args);

std::string BenchUsage();

}  // namespace wb
