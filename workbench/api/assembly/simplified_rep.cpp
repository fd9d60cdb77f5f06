// Host functions of simplified representations.
#include <algorithm>
#include <map>
#include <vector>

#include "workbench/api/assembly/opaque_record.h"
#include "workbench/host/arguments.h"
#include "workbench/session/renaming.h"

namespace wb {
namespace {

// What stands in the records of this family.
struct ActionContent {
  static constexpr uint64_t kMark = 11;
  uint64_t mark = kMark;
  int action = 0;
};
struct ItemContent {
  static constexpr uint64_t kMark = 12;
  uint64_t mark = kMark;
  int action = 0;
  int component = 0;
  int path_size = 0;
  ProIdTable path = {};
};
struct RepContent {
  static constexpr uint64_t kMark = 13;
  uint64_t mark = kMark;
  ProMdl solid = nullptr;
  wchar_t name[PRO_NAME_SIZE] = {};
};

// What a handle of such data stands for.
using RepDraft = SimplifiedRep;

struct RepDataIn {
  ProSimprepdata* handle;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(handle)); }
  RepDraft& Look(const Call& call) const {
    return *static_cast<RepDraft*>(call.Look(handle, HandleKind::kRepData).object);
  }
};

struct RepActionIn {
  ProSimprepActionType type;
  std::string Describe() const { return DescribeArgument(type); }
  RepAction Look(const Call&) const {
    if (type == PRO_SIMPREP_INCLUDE || type == PRO_SIMPREP_EXCLUDE) {
      return static_cast<RepAction>(type);
    }
    throw NotModelled{"what a representation does with a component by the number " +
                      std::to_string(static_cast<int>(type))};
  }
};

// The assembly at the end of a path of ids must have the component of an item. False when the user
// has erased one on the way.
bool CheckRepItem(const Call& call, const Model& top, const RepItem& item) {
  const Model* at = &top;
  const auto step = [&](int id) {
    if (at == nullptr) return false;
    const Feature* const feature = at->FindFeature(id);
    if (feature == nullptr || !feature->IsComponent()) {
      call.Fail("an item for a component " + std::to_string(id) + " that is not there");
    }
    at = feature->ComponentModel();
    return true;
  };
  return std::ranges::all_of(item.path, step) && step(item.component);
}

// Each component has one item at most, and what lies below one that is left out has none: a host
// may refuse such data, or take either of the two.
void CheckNoRepItemTwice(const Call& call, const std::vector<RepItem>& items) {
  std::map<std::vector<int>, RepAction> actions;
  for (const RepItem& item : items) {
    std::vector<int> way = item.path;
    way.push_back(item.component);
    if (!actions.emplace(way, item.action).second) {
      call.Fail("two items for the component " + std::to_string(item.component));
    }
  }
  for (const RepItem& item : items) {
    for (std::vector<int> above = item.path; !above.empty(); above.pop_back()) {
      const auto found = actions.find(above);
      if (found != actions.end() && found->second == RepAction::kExclude) {
        call.Fail("an item below the component " + std::to_string(above.back()) +
                  ", which is left out");
      }
    }
  }
}

RepContent ContentOfRep(const Call& call, const Model& solid, const std::string& name) {
  RepContent content;
  content.solid = solid.handle;
  call.CopyText(content.name, PRO_NAME_SIZE, name);
  return content;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProSimprepdataAlloc(ProName name, ProBoolean temporary,
                             ProSimprepActionType default_action, ProSimprepdata** data) {
  return Crossing(__func__, TextIn{name, PRO_NAME_SIZE, "name"}, temporary,
                  RepActionIn{default_action}, Out(data, "data place"))
      .Run([](const Call& call, const std::string& wanted, ProBoolean is_temporary,
              RepAction action, ProSimprepdata*& place) {
        if (is_temporary != PRO_B_FALSE) throw NotModelled{"a temporary representation"};
        auto* const draft = new RepDraft{wanted, action, {}};
        place = static_cast<ProSimprepdata*>(call.host.handles.Give(HandleKind::kRepData, draft));
        call.Give(place, Resource::kRepData);
      });
}

ProError ProSimprepdataFree(ProSimprepdata** data) {
  return Crossing(__func__, PlaceGivenBack(data, "data place"))
      .Run([](const Call& call, ProSimprepdata*& place) {
        call.TakeBack(place, Resource::kRepData);
        delete &RepDataIn{place}.Look(call);
        call.host.handles.End(place);
        place = nullptr;
      });
}

ProError ProSimprepActionInit(ProSimprepActionType type, ProAppData parameter,
                              ProSimprepAction* action) {
  return Crossing(__func__, RepActionIn{type}, DataIn{parameter}, Out(action, "action place"))
      .Run([](RepAction wanted, void* given, ProSimprepAction& place) {
        if (given != nullptr) throw NotModelled{"an action with a parameter"};
        ActionContent content;
        content.action = static_cast<int>(wanted);
        FillOpaque(place, content);
      });
}

ProError ProSimprepdataitemInit(ProIdTable path, int path_size, int item_id,
                                ProSimprepAction* action, ProSimprepitem* item) {
  return Crossing(__func__, DataIn{path}, path_size, item_id,
                  OpaqueIn<ActionContent, ProSimprepAction>{action, "action"},
                  Out(item, "item place"))
      .Run([&](const Call& call, void*, int size, int id, const ActionContent& wanted,
               ProSimprepitem& place) {
        if (size < 0 || size > PRO_MAX_ASSEM_LEVEL) call.Fail("path length");
        if (size > 0) call.Place(path, "path");
        ItemContent content;
        content.action = wanted.action;
        content.component = id;
        content.path_size = size;
        if (size > 0) std::copy(path, path + size, content.path);
        FillOpaque(place, content);
      });
}

ProError ProSimprepdataitemAdd(ProSimprepdata* data, ProSimprepItemType type,
                               ProSimprepitem* item) {
  return Crossing(__func__, RepDataIn{data}, type,
                  OpaqueIn<ItemContent, ProSimprepitem>{item, "item"})
      .Run([](RepDraft& draft, ProSimprepItemType kind, const ItemContent& added) {
        if (kind != PRO_SIMPREP_COMPONENT_ITEM) throw NotModelled{"items other than components"};
        draft.items.push_back({std::vector<int>(added.path, added.path + added.path_size),
                               added.component, static_cast<RepAction>(added.action)});
      });
}

ProError ProSimprepCreate(ProSolid solid, ProSimprepdata* data, ProSimprep* rep) {
  return Crossing(__func__, SolidIn{{solid}}, RepDataIn{data}, Out(rep, "representation place"))
      .Run([](const Call& call, Model& to, const RepDraft& draft, ProSimprep& place) {
        ItemList<SimplifiedRep>& reps = to.solid().reps;
        if (!IsLegalModelName(draft.name)) return PRO_TK_INVALID_NAME;
        if (reps.Find(FoldCase(draft.name)) != nullptr) return PRO_TK_E_FOUND;
        const auto is_there = [&](const RepItem& item) { return CheckRepItem(call, to, item); };
        if (!std::ranges::all_of(draft.items, is_there)) return PRO_TK_E_NOT_FOUND;
        CheckNoRepItemTwice(call, draft.items);
        reps.Add(draft);
        to.modified = true;
        FillOpaque(place, ContentOfRep(call, to, draft.name));
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSimprepInit(ProName name, int id, ProSolid solid, ProSimprep* rep) {
  return Crossing(__func__, TextIn{name, PRO_NAME_SIZE, "name"}, id, SolidIn{{solid}},
                  Out(rep, "representation place"))
      .Run([](const Call& call, const std::string& wanted, int number, Model& of,
              ProSimprep& place) {
        if (number != PRO_VALUE_UNUSED) throw NotModelled{"a representation by its id"};
        const SimplifiedRep* const held = of.solid().reps.Find(FoldCase(wanted));
        if (held == nullptr) return PRO_TK_E_NOT_FOUND;
        FillOpaque(place, ContentOfRep(call, of, held->name));
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSimprepActivate(ProSolid solid, ProSimprep* rep) {
  return Crossing(__func__, SolidIn{{solid}},
                  OpaqueIn<RepContent, ProSimprep>{rep, "representation"})
      .Run([](const Call& call, Model& of, const RepContent& wanted) {
        if (wanted.solid != of.handle) call.Fail("a representation of another model");
        const std::string name = FromWide(wanted.name);
        if (of.solid().reps.Find(FoldCase(name)) == nullptr) return PRO_TK_E_NOT_FOUND;
        of.solid().active_rep = name;
        of.modified = true;
        return PRO_TK_NO_ERROR;
      });
}
