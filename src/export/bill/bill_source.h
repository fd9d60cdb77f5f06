// What a bill of materials is made of: the components of the current assembly and, for each model,
// the texts that its row shows. Each fact is asked of the host once, however often a model occurs.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "export/bill/bill_rules.h"
#include "toolkit/model.h"

namespace qm {

enum class Listing {
  kListed,
  kSkeleton,  // has no row
  kUnread,    // has none since its name is not known or it cannot be retrieved
};

// What the rows of one model show.
struct BillTexts {
  Listing listing = Listing::kUnread;
  // One for each parameter; empty where the model has none or one of another type, nothing where it
  // cannot be read.
  std::vector<std::optional<std::wstring>> parameters;
};

// A bill that is read in full and shown nowhere yet.
struct BillPlan {
  BillStructure structure;
  std::vector<BillRow> rows;     // those of models that are not listed as well
  std::vector<BillTexts> texts;  // beside the structure's models
  long long left_out = 0;        // components and rows that are not known
};

// Reads the bill of `assembly` and retrieves its models, in the order of the rows. `depth` counts
// for the level bill only; `parameters` are the names of those that the columns show. Nothing only
// when the components cannot be collected.
std::optional<BillPlan> PlanBill(ProMdl assembly, BillKind kind, int depth,
                                 const std::vector<std::wstring>& parameters);

}  // namespace qm
