// Host functions for component paths and for the hide state of components.
#include "workbench/host/loans.h"

using namespace wb;

namespace wb {
namespace {

Feature& HideableAt(const Call& call, const ProModelitem* item, Model** owner) {
  if (item != nullptr && item->type != PRO_FEATURE) {
    throw NotModelled{"hide state of an item of type " +
                      std::to_string(static_cast<int>(item->type))};
  }
  return call.FeatureAt(item, owner);
}

ProError SetHidden(const Call& call, const ProModelitem* item, bool hidden) {
  Model* owner = nullptr;
  Feature& feature = HideableAt(call, item, &owner);
  if (feature.hidden != hidden) owner->modified = true;
  feature.hidden = hidden;
  return PRO_TK_NO_ERROR;
}

// The feature that a path's next step names.
Feature& StepAt(const Call& call, Model& parent, int id) {
  Feature* const feature = parent.FindFeature(id);
  if (feature == nullptr || !feature->IsComponent()) {
    call.Fail("\"" + parent.id.Text() + "\" has no component " + std::to_string(id));
  }
  return *feature;
}

}  // namespace
}  // namespace wb

ProError ProAsmcomppathInit(ProSolid root, ProIdTable ids, int table_size, ProAsmcomppath* path) {
  return Crossing("ProAsmcomppathInit", root, static_cast<const void*>(ids), table_size, Out(path))
      .Run([&](Call& call) {
        call.SolidAt(root);
        if (table_size < 0 || table_size > PRO_MAX_ASSEM_LEVEL) {
          call.Fail("path of " + std::to_string(table_size) + " levels");
        }
        ProAsmcomppath& place = call.Place(path, "path place");
        place = {};
        place.owner = root;
        place.table_num = table_size;
        if (table_size > 0) call.Place(ids, "id table");
        std::copy(ids, ids + table_size, place.comp_id_table);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProAsmcomppathMdlGet(ProAsmcomppath* path, ProMdl* model) {
  return Crossing("ProAsmcomppathMdlGet", static_cast<const void*>(path), Out(model))
      .Run([&](Call& call) {
        const ProAsmcomppath& way = call.Place(path, "path");
        if (way.table_num < 0 || way.table_num > PRO_MAX_ASSEM_LEVEL) call.Fail("path length");
        Model* at = &call.SolidAt(way.owner);
        for (int i = 0; i < way.table_num && at != nullptr; ++i) {
          at = StepAt(call, *at, way.comp_id_table[i]).model;
        }
        ProMdl& place = call.Place(model, "model place");
        if (at == nullptr) return PRO_TK_E_NOT_FOUND;
        place = at->handle;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProModelitemIsHidden(ProModelitem* item, ProBoolean* is_hidden) {
  return Crossing("ProModelitemIsHidden", item, Out(is_hidden)).Run([&](Call& call) {
    Model* owner = nullptr;
    const bool hidden = HideableAt(call, item, &owner).hidden;
    call.Place(is_hidden, "answer place") = hidden ? PRO_B_TRUE : PRO_B_FALSE;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProModelitemHide(ProModelitem* item) {
  return Crossing("ProModelitemHide", item).Run([&](Call& call) {
    return SetHidden(call, item, true);
  });
}

ProError ProModelitemUnhide(ProModelitem* item) {
  return Crossing("ProModelitemUnhide", item).Run([&](Call& call) {
    return SetHidden(call, item, false);
  });
}
