// Builds the tree of a merge feature and has the host make it.
#include "assembly/create/merge_feature.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "assembly/create/merge_rules.h"
#include "frame/messages/run_log.h"
#include "frame/models/preselection.h"
#include "toolkit/feature.h"
#include "toolkit/geometry.h"
#include "toolkit/model.h"
#include "toolkit/owners.h"
#include "toolkit/properties.h"

namespace qm {
namespace {

struct MergeWishes {
  ProSelection source;
  std::wstring name;
};

// Whether the host has done it; else the run log names the part that is not merged.
bool Done(const MergeWishes& wishes, const char* function, ProError status) {
  if (Ok(status)) return true;
  const auto item = ItemOf(wishes.source);
  if (item) {
    LogFailure(item->owner, function, status);
  } else {
    LogFailure(std::wstring_view(), function, status);
  }
  return false;
}

// The same for what hands something out, which a success may have left out.
template <typename Handle>
bool HandedOut(const MergeWishes& wishes, const char* function, ProError status,
               const Handle& handle) {
  return Done(wishes, function, Ok(status) && !handle ? PRO_TK_OUT_OF_MEMORY : status);
}

ProValueData DataOf(const MergeElement& row, MergeWishes& wishes) {
  ProValueData data = {};
  if (row.value == MergeValue::kNumber) {
    data.type = PRO_VALUE_TYPE_INT;
    data.v.i = row.number;
  } else if (row.value == MergeValue::kName) {
    data.type = PRO_VALUE_TYPE_WSTRING;
    data.v.w = wishes.name.data();
  } else {
    data.type = PRO_VALUE_TYPE_SELECTION;
    data.v.r = wishes.source;
  }
  return data;
}

// The element takes the value over.
bool SetValue(ProElement element, ProValueData data, const MergeWishes& wishes) {
  ElementValue value;
  const ProError made = ProValueAlloc(value.put());
  if (!HandedOut(wishes, "ProValueAlloc", made, value)) return false;
  if (!Done(wishes, "ProValueDataSet", ProValueDataSet(value.get(), &data))) return false;
  const ProError taken = ProElementValueSet(element, value.get());
  if (Ok(taken)) value.release();
  return Done(wishes, "ProElementValueSet", taken);
}

// Empty on any failure.
Element MakeElement(const MergeElement& row, MergeWishes& wishes) {
  Element element;
  const ProError made = ProElementAlloc(row.id, element.put());
  if (!HandedOut(wishes, "ProElementAlloc", made, element)) return Element();
  const bool has_value = row.value != MergeValue::kNone;
  if (has_value && !SetValue(element.get(), DataOf(row, wishes), wishes)) return Element();
  return element;
}

// The whole tree with its root as owner; empty on any failure, and what was built of it is freed.
Element BuildTree(MergeWishes& wishes) {
  Element root;
  std::array<ProElement, kMergeTreeDepth + 1> last = {};  // of each depth
  for (const MergeElement& row : kMergeTree) {
    Element element = MakeElement(row, wishes);
    if (!element) return element;
    const auto depth = static_cast<size_t>(row.depth);
    last[depth] = element.get();
    if (depth == 0) {
      root = std::move(element);
      continue;
    }
    // The tree takes the element over.
    const ProError joined = ProElemtreeElementAdd(last[depth - 1], nullptr, element.get());
    if (!Done(wishes, "ProElemtreeElementAdd", joined)) return Element();
    element.release();
  }
  return root;
}

// The model itself, without a path; empty on any failure.
OwnSelection SelectModel(ProSolid model, const MergeWishes& wishes) {
  OwnSelection selection;
  ProModelitem item = {PRO_TYPE_INVALID, -1, nullptr};
  const ProError told = ProMdlToModelitem(model, &item);
  if (!HandedOut(wishes, "ProMdlToModelitem", told, item.owner)) return selection;
  const ProError selected = ProSelectionAlloc(nullptr, &item, selection.put());
  if (!HandedOut(wishes, "ProSelectionAlloc", selected, selection)) return OwnSelection();
  return selection;
}

void MakeFeature(ProSolid target, ProElement tree, const MergeWishes& wishes) {
  const OwnSelection model = SelectModel(target, wishes);
  if (!model) return;
  ProFeatureCreateOptions options[] = {PRO_FEAT_CR_NO_OPTS};
  ProFeature feature = {PRO_TYPE_INVALID, -1, nullptr};
  ProErrorlist errors = {};
  const ProError made = ProFeatureCreate(model.get(), tree, options, 1, &feature, &errors);
  const bool is_missing = Ok(made) && feature.owner == nullptr;
  Done(wishes, "ProFeatureCreate", is_missing ? PRO_TK_E_NOT_FOUND : made);
}

}  // namespace

void MergePart(ProSolid target, ProSelection source, const wchar_t* feature_name) {
  MergeWishes wishes = {source, feature_name};
  {
    const Element tree = BuildTree(wishes);
    if (tree) MakeFeature(target, tree.get(), wishes);
  }
  const ProError regenerated = ProSolidRegenerate(target, kPlainRegeneration);
  if (!Ok(regenerated)) LogFailure(target, "ProSolidRegenerate", regenerated);
}

}  // namespace qm
