// Prints what the benchmark measured, what it makes of it, and whether the bounds are kept.
#pragma once

#include <string>
#include <vector>

#include "workbench/bench/bench_measure.h"

namespace wb {

// How something grows: the exponent of a power of the number of occurrences, by least squares over
// the logarithms.
double FittedExponent(const std::vector<std::pair<double, double>>& points);

// True when the points lie on one line exactly. Two or fewer always do.
bool IsExactlyLinear(const std::vector<std::pair<long, long>>& points);

struct BenchBound {
  std::string text;   // "exponent of time at most 1.1"
  std::string found;  // "1.03 (QmParams Add on flat)"
  bool kept = false;
};
std::vector<BenchBound> CheckBounds(const BenchResult& result);

// What the figures mean.
std::string BenchHead();
// The tables, plain or for a document.
std::string BenchTables(const BenchResult& result, bool markdown);

}  // namespace wb
