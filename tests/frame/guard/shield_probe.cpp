// The exports of the probe library.
#include "tests/frame/guard/shield_probe.h"

#include <iterator>

#include "frame/guard/visit.h"
#include "tests/frame/guard/shielded_entries.h"

extern "C" __declspec(dllexport) bool RunProbe(int index, ShieldProbe* probe) {
  if (index >= static_cast<int>(std::size(qm::kShieldedEntries))) return false;
  const qm::ShieldedEntry& entry = qm::kShieldedEntries[index];
  *probe = {entry.kind, entry.given_to, entry.answer, entry.run_probe(), entry.is_shown};
  return true;
}

extern "C" __declspec(dllexport) bool RunVisit(void* solid, bool in_filter) {
  try {
    qm::VisitFeatures(
        solid,
        [&](ProFeature&) {
          if (in_filter) throw std::runtime_error("probe");
          return true;
        },
        [](ProFeature&) -> ProError { throw std::runtime_error("probe"); });
  } catch (const std::runtime_error&) {
    return true;
  }
  return false;
}
