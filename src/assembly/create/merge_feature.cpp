// Builds the tree of a merge feature and has the host make it.
#include "assembly/create/merge_feature.h"

#include <array>
#include <string>

#include "assembly/create/merge_rules.h"
#include "frame/messages/run_log.h"
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
ProError SetValue(ProElement element, ProValueData data) {
  ElementValue value;
  ProError status = ProValueAlloc(value.put());
  if (!Ok(status)) return status;
  if (!value) return PRO_TK_OUT_OF_MEMORY;
  status = ProValueDataSet(value.get(), &data);
  if (Ok(status)) status = ProElementValueSet(element, value.get());
  if (Ok(status)) value.release();
  return status;
}

ProError MakeElement(const MergeElement& row, MergeWishes& wishes, Element* element) {
  const ProError status = ProElementAlloc(row.id, element->put());
  if (!Ok(status)) return status;
  if (!*element) return PRO_TK_OUT_OF_MEMORY;
  if (row.value == MergeValue::kNone) return PRO_TK_NO_ERROR;
  return SetValue(element->get(), DataOf(row, wishes));
}

// The whole tree with its root as owner; on any failure what was built of it is freed.
ProError BuildTree(MergeWishes& wishes, Element* root) {
  std::array<ProElement, kMergeTreeDepth + 1> last = {};  // of each depth
  for (const MergeElement& row : kMergeTree) {
    Element element;
    ProError status = MakeElement(row, wishes, &element);
    if (!Ok(status)) return status;
    last[static_cast<size_t>(row.depth)] = element.get();
    if (row.depth == 0) {
      *root = std::move(element);
      continue;
    }
    // The tree takes the element over.
    status =
        ProElemtreeElementAdd(last[static_cast<size_t>(row.depth) - 1], nullptr, element.get());
    if (!Ok(status)) return status;
    element.release();
  }
  return PRO_TK_NO_ERROR;
}

// The model itself, without a path.
ProError SelectModel(ProSolid model, OwnSelection* selection) {
  ProModelitem item = {PRO_TYPE_INVALID, -1, nullptr};
  const ProError status = ProMdlToModelitem(model, &item);
  if (!Ok(status)) return status;
  if (item.owner == nullptr) return PRO_TK_E_NOT_FOUND;
  const ProError selected = ProSelectionAlloc(nullptr, &item, selection->put());
  return Ok(selected) && !*selection ? PRO_TK_OUT_OF_MEMORY : selected;
}

ProError MakeFeature(ProSolid target, ProElement tree) {
  OwnSelection model;
  const ProError selected = SelectModel(target, &model);
  if (!Ok(selected)) return selected;
  ProFeatureCreateOptions options[] = {PRO_FEAT_CR_NO_OPTS};
  ProFeature feature = {PRO_TYPE_INVALID, -1, nullptr};
  ProErrorlist errors = {};
  const ProError made = ProFeatureCreate(model.get(), tree, options, 1, &feature, &errors);
  return Ok(made) && feature.owner == nullptr ? PRO_TK_E_NOT_FOUND : made;
}

}  // namespace

void MergePart(ProSolid target, ProSelection source, const wchar_t* feature_name) {
  MergeWishes wishes = {source, feature_name};
  Element tree;
  ProError status = BuildTree(wishes, &tree);
  if (Ok(status)) status = MakeFeature(target, tree.get());
  if (!Ok(status)) LogFailure(target, "ProFeatureCreate", status);
  tree.reset();
  const ProError regenerated = ProSolidRegenerate(target, kPlainRegeneration);
  if (!Ok(regenerated)) LogFailure(target, "ProSolidRegenerate", regenerated);
}

}  // namespace qm
