// Watches what a change of units does to the first part whose length unit changes. Which number of
// the host keeps the size and which the numbers is not certain, and models that are scaled without
// a word would be the worst that the command could do.
#pragma once

#include <optional>
#include <string>

#include "params/assign/unit_rules.h"
#include "toolkit/model.h"

namespace qm {

class UnitProbe {
 public:
  UnitProbe(const std::wstring& system, KeptByConversion kept)
      : to_(MillimetresOf(system)), kept_(kept) {}

  // Before and after the change of a part. The first one whose surfaces can be measured decides;
  // the run log tells what became of it, and the message area where it is what the other choice
  // promises.
  void Before(ProMdl part);
  void After(ProMdl part);
  // After the last one: a line in the run log where units changed and no part could be judged.
  void End() const;

 private:
  struct Measured {
    double from;
    Extents extents;
  };
  void Judge(ProMdl part);
  void Doubt(ProMdl part, const char* why);
  void Tell(ProMdl part, const Extents& after) const;

  std::optional<double> to_;
  KeptByConversion kept_;
  std::optional<Measured> before_;  // of the part at hand
  const char* doubt_ = nullptr;     // why it cannot be judged if its unit changes
  std::string unjudged_;            // the first such part that has changed
  int parts_that_kept_ = 0;         // in a row
  bool is_done_ = false;
};

}  // namespace qm
