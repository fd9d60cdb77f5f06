// The two bills of materials: the summary, one row for each distinct model with its total quantity,
// and the level bill, which follows the structure down to a depth. Both take time in proportion to
// the components and none of the stack, however deep the assembly is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/numbers.h"

namespace qm {

// A model of the assembly. A model whose name could not be read has an empty one and is not to be
// listed, but what it holds is.
struct BillModel {
  std::wstring name;
  ProMdlType type = PRO_MDL_UNUSED;  // a part and an assembly may bear the same name
  // Of an assembly: the models it places, in feature order, once for each placement.
  std::vector<uint32_t> components;
};

// Models are known by their index.
struct BillStructure {
  std::vector<BillModel> models;      // the top assembly first
  std::vector<uint32_t> occurrences;  // every component of every level, depth first
};

struct BillRow {
  uint32_t model = 0;
  int64_t quantity = 0;
  // Level bill only: 1 for the components of the top assembly, and the place among the parent's
  // entries, counted from 1.
  int level = 0;
  int64_t place = 0;
};

enum class BillKind { kSummary, kLevels };

// A row for each name and type, in the order of first appearance.
std::vector<BillRow> SummaryBill(const BillStructure& structure);

inline constexpr int kAllLevels = 99;

// The components of levels 1 to `depth` (kAllLevels: of all), each before those inside it. Siblings
// of the same name, of whatever type, are one row with their number, and what is inside them stands
// below it once, with the quantities of a single one. Models without a name have rows here, since
// they keep their places in the numbering.
std::vector<BillRow> LevelBill(const BillStructure& structure, int depth);

// The depth chosen in the menu by its number or by the words for all levels; 0 for anything else.
int DepthOf(std::wstring_view option);

// The position numbers of a level bill: "1", "2", "2.1" ... Must see every row in turn; its memory
// is that of one number, since those of a very deep assembly are long.
class PositionNumber {
 public:
  // Valid until the next call.
  const std::wstring& Of(const BillRow& row);

 private:
  std::wstring number_;
  std::vector<size_t> ends_;  // of the number of each level on the way here
};

}  // namespace qm
