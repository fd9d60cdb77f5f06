// A little library around the plug-in's shield, so that a test runs the probes of every kind of
// shielded function in a module of its own, behind the workbench's Windows calls.
#pragma once

struct ShieldProbe {
  const char* kind;
  const char* given_to;
  long long wanted;
  long long answered;
  bool is_shown;
};

// Runs probe `index`, counted from 0; false when there is none.
using RunShieldProbe = bool (*)(int index, ShieldProbe* probe);
// Visits the features of `solid` with a filter (or an action) that throws; true when the exception
// came out behind the visit.
using RunThrowingVisit = bool (*)(void* solid, bool in_filter);
