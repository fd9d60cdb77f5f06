// What the benchmark tells apart in the plug-in's commands.
#pragma once

#include <span>

#include "workbench/bench/bench_walk.h"

namespace wb {

// A command as a whole, or a part of one.
enum class BenchPart {
  kCollection,  // from the array's allocation to the first component shown, in QmShowAllComp
  kShowAll,
  kHideReverse,
  kAddParameter,       // the press of Add in the dialog of QmParams, class AsmAndPart
  kSummaryBill,        // the press of QmLoadBom in the dialog of QmBom
  kReadTable,          // the press of QmExportBom up to the start of the spreadsheet program
  kLevelBill,          // the press of QmLoadBom for all levels
  kRenameList,         // the press of UpdateRenameIni in the dialog of QmRename
  kExport,             // of every component as STEP, by a writer that writes nothing
  kColours,            // BatchColor with random colours
  kAddRelations,       // the press of AddRels in the dialog of QmRelations, class AsmAndPart
  kSetUnits,           // the press of ApplyBt in the dialog of SetUnit
  kSetMaterial,        // SetMat with nothing selected
  kModelCount,         // QmMdlCount
  kBox,                // QmBox with nothing selected
  kFindActive,         // QmMergeTo up to its pick, which is cancelled; the active part is the last
  kIsolate,            // QmIsolate with the whole top level preselected
  kRemoveConstraints,  // QmRemoveCons with its OK
  kSimplify,           // QmSimRep with the first component preselected
  kBendTable,          // SetBendTable with nothing selected
};

struct BenchPartRow {
  BenchPart part;
  const char* name;
  const char* command;
  BenchWork same_work;  // what the bare walk that it is held against does
  bool is_press;        // of one button in the command's dialog
};
// In the order of BenchPart; parts of one command stand together.
std::span<const BenchPartRow> BenchParts();

const char* BenchPartName(BenchPart part);
bool IsBill(BenchPart part);

}  // namespace wb
