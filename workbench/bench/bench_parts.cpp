// The table of parts.
#include "workbench/bench/bench_parts.h"

namespace wb {
namespace {

constexpr BenchPartRow kParts[] = {
    {BenchPart::kCollection, "collection", "QmShowAllComp", BenchWork::kCollect, false},
    {BenchPart::kShowAll, "QmShowAllComp", "QmShowAllComp", BenchWork::kShow, false},
    {BenchPart::kHideReverse, "QmHideReverse", "QmHideReverse", BenchWork::kReverse, false},
    {BenchPart::kAddParameter, "QmParams Add", "QmParams", BenchWork::kParameter, true},
    {BenchPart::kSummaryBill, "QmBom summary", "QmBom", BenchWork::kCollect, true},
    {BenchPart::kReadTable, "QmBom to Excel", "QmBom", BenchWork::kCollect, true},
    {BenchPart::kLevelBill, "QmBom levels", "QmBom", BenchWork::kCollect, true},
    {BenchPart::kRenameList, "QmRename list", "QmRename", BenchWork::kCollect, true},
    {BenchPart::kExport, "QmExStp", "QmExStp", BenchWork::kCollect, false},
    {BenchPart::kColours, "BatchColor", "BatchColor", BenchWork::kCollect, false},
    {BenchPart::kAddRelations, "QmRelations AddRels", "QmRelations", BenchWork::kCollect, true},
    {BenchPart::kSetUnits, "SetUnit", "SetUnit", BenchWork::kCollect, true},
    {BenchPart::kSetMaterial, "SetMat", "SetMat", BenchWork::kCollect, false},
    {BenchPart::kModelCount, "QmMdlCount", "QmMdlCount", BenchWork::kCollect, false},
    {BenchPart::kBox, "QmBox", "QmBox", BenchWork::kCollect, false},
    {BenchPart::kFindActive, "QmMergeTo", "QmMergeTo", BenchWork::kCollect, false},
    {BenchPart::kIsolate, "QmIsolate", "QmIsolate", BenchWork::kCollect, false},
    {BenchPart::kRemoveConstraints, "QmRemoveCons", "QmRemoveCons", BenchWork::kCollect, false},
    {BenchPart::kSimplify, "QmSimRep", "QmSimRep", BenchWork::kCollect, false},
    {BenchPart::kBendTable, "SetBendTable", "SetBendTable", BenchWork::kCollect, false},
};

}  // namespace

std::span<const BenchPartRow> BenchParts() {
  return kParts;
}

const char* BenchPartName(BenchPart part) {
  return kParts[static_cast<size_t>(part)].name;
}

bool IsBill(BenchPart part) {
  return part == BenchPart::kSummaryBill || part == BenchPart::kLevelBill;
}

}  // namespace wb
