// How much the tests do that could go on for ever, and where their chance begins.
#pragma once

#include <cstdlib>
#include <string>

// tools/test.sh --long sets it.
inline bool IsLongRun() {
  return std::getenv("QM_LONG") != nullptr;
}

// The first of as many seeds as a test wants; QM_SEED sets it, so that a finding comes again.
inline unsigned FirstSeed() {
  const char* const seed = std::getenv("QM_SEED");
  return seed != nullptr ? static_cast<unsigned>(std::strtoul(seed, nullptr, 10)) : 1;
}
