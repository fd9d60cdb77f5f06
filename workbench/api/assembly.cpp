// Host functions for component paths, for places and constraints of components, and for their hide
// state.
#include "workbench/api/matrix.h"
#include "workbench/host/arguments.h"
#include "workbench/session/extents.h"

namespace wb {
namespace {

// What can be hidden; the host hides more than features.
struct HideableIn : FeatureIn {
  FeaturePlace Look(const Call& call) const {
    if (item != nullptr && item->type != PRO_FEATURE) {
      throw NotModelled{"hide state of an item of type " +
                        std::to_string(static_cast<int>(item->type))};
    }
    return FeatureIn::Look(call);
  }
};

void SetHidden(const FeaturePlace& at, bool hidden) {
  if (at.feature.hidden != hidden) at.owner.modified = true;
  at.feature.hidden = hidden;
}

// The model of the component that a path's next step names; null: not in session.
Model* Below(const Call& call, Model& parent, int id) {
  const Feature* const feature = parent.FindFeature(id);
  if (feature == nullptr || !feature->IsComponent()) {
    call.Fail("\"" + parent.id.Text() + "\" has no component " + std::to_string(id));
  }
  return feature->ComponentModel();
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProAsmcomppathInit(ProSolid root, ProIdTable ids, int table_size, ProAsmcomppath* path) {
  return Crossing(__func__, SolidIn{root}, DataIn{ids}, table_size, Out(path, "path place"))
      .Run([&](const Call& call, const Model&, void*, int size, ProAsmcomppath& place) {
        if (size < 0 || size > PRO_MAX_ASSEM_LEVEL) {
          call.Fail("path of " + std::to_string(size) + " levels");
        }
        place = {};
        place.owner = root;
        place.table_num = size;
        if (size > 0) call.Place(ids, "id table");
        std::copy(ids, ids + size, place.comp_id_table);
      });
}

ProError ProAsmcomppathMdlGet(ProAsmcomppath* path, ProMdl* model) {
  return Crossing(__func__, RecordIn(path, "path"), Out(model, "model place"))
      .Run([](const Call& call, const ProAsmcomppath& way, ProMdl& place) {
        if (way.table_num < 0 || way.table_num > PRO_MAX_ASSEM_LEVEL) call.Fail("path length");
        Model* at = &call.SolidAt(way.owner);
        for (int i = 0; i < way.table_num && at != nullptr; ++i) {
          at = Below(call, *at, way.comp_id_table[i]);
        }
        if (at == nullptr) return PRO_TK_E_NOT_FOUND;
        place = at->handle;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProAsmcompPositionGet(ProAsmcomp* component, ProMatrix position) {
  return Crossing(__func__, ComponentIn{{component}}, OutMatrix{position})
      .Run([](const FeaturePlace& at, MatrixPlace place) {
        place = ComponentPlacement(at.owner, at.feature);
      });
}

ProError ProAsmcompConstrRemove(ProAsmcomp* component, int index) {
  return Crossing(__func__, ComponentIn{{component}}, index)
      .Run([](const FeaturePlace& at, int removed) {
        std::vector<ComponentConstraint>& held = at.feature.constraints;
        const bool is_all = removed == PRO_VALUE_UNUSED;
        if (!is_all && (removed < 0 || removed >= static_cast<int>(held.size()))) {
          return PRO_TK_E_NOT_FOUND;
        }
        // Those behind it move down.
        if (is_all) held.clear();
        if (!is_all) held.erase(held.begin() + removed);
        at.owner.modified = true;
        return PRO_TK_NO_ERROR;
      });
}

// The place of a component does not follow from its constraints here.
ProError ProAsmcompRegenerate(ProAsmcomp* component, ProBoolean update_soft) {
  return Crossing(__func__, ComponentIn{{component}}, update_soft)
      .Run([](const FeaturePlace&, ProBoolean soft) {
        if (soft != PRO_B_TRUE) throw NotModelled{"a regeneration that leaves soft things alone"};
      });
}

ProError ProModelitemIsHidden(ProModelitem* item, ProBoolean* is_hidden) {
  return Crossing(__func__, HideableIn{{item}}, Out(is_hidden, "answer place"))
      .Run([](const Feature& feature, ProBoolean& place) {
        place = feature.hidden ? PRO_B_TRUE : PRO_B_FALSE;
      });
}

ProError ProModelitemHide(ProModelitem* item) {
  return Crossing(__func__, HideableIn{{item}}).Run([](const FeaturePlace& at) {
    SetHidden(at, true);
  });
}

ProError ProModelitemUnhide(ProModelitem* item) {
  return Crossing(__func__, HideableIn{{item}}).Run([](const FeaturePlace& at) {
    SetHidden(at, false);
  });
}
