// Host functions of the selection family: picking, the selection buffer, what was picked.
#include "workbench/host/arguments.h"

namespace wb {
namespace {

// What may be picked under each filter word, as item types.
struct FilterRow {
  const char* word;
  std::vector<int> types;
};
const std::vector<FilterRow>& KnownFilters() {
  static const std::vector<FilterRow> filters = {
      {"part", {PRO_PART}},
      {"assembly", {PRO_ASSEMBLY}},
      {"prt_or_asm", {PRO_PART, PRO_ASSEMBLY}},
      {"feature", {PRO_FEATURE}},
      {"surface", {PRO_SURFACE}},
      {"sldface", {PRO_SURFACE}},
      {"qltface", {PRO_SURFACE}},
      {"edge", {PRO_EDGE}},
      {"dimension", {PRO_DIMENSION}},
      {"view", {PRO_VIEW}},
  };
  return filters;
}

// The words of a filter, parted by commas, and all types under them.
struct FilterTypes {
  std::string words;
  std::vector<int> types;
};

struct FilterIn : NarrowIn {
  explicit FilterIn(const char* filter) : NarrowIn{filter, "filter"} {}
  FilterTypes Look(const Call& call) const {
    FilterTypes filter{NarrowIn::Look(call), {}};
    for (size_t at = 0; at <= filter.words.size();) {
      const size_t comma = std::min(filter.words.find(',', at), filter.words.size());
      const std::vector<int>& types = TypesOf(call, filter.words.substr(at, comma - at));
      filter.types.insert(filter.types.end(), types.begin(), types.end());
      at = comma + 1;
    }
    return filter;
  }
  static const std::vector<int>& TypesOf(const Call& call, const std::string& word) {
    for (const FilterRow& row : KnownFilters()) {
      if (word == row.word) return row.types;
    }
    throw NotModelled{"selection filter \"" + word + "\" in " + call.function};
  }
};

using PickOptionList = std::vector<std::pair<int, int>>;

// May be left out.
struct EnvironmentIn {
  ProSelectionEnv handle;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(handle)); }
  const PickOptionList* Look(const Call& call) const {
    if (handle == nullptr) return nullptr;
    return static_cast<PickOptionList*>(call.Look(handle, HandleKind::kSelectionEnv).object);
  }
};

// A fault that keeps it from being given back does so with the selections in it.
struct SelectionsGivenBack : GivenBack<ProSelection> {
  using GivenBack::GivenBack;
  void Forgive(Host& host) const {
    if (!host.accounts.Check(lent, Resource::kArray).empty()) return;
    const int count = ArraySize(Call(host, "ProSelectionarrayFree", 0), lent);
    for (int i = 0; i < count; ++i) host.accounts.Forgive(lent[i]);
    GivenBack::Forgive(host);
  }
};

// May be left out.
struct PathOrNoneIn {
  ProAsmcomppath* path;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(path)); }
  ProAsmcomppath* Look(const Call& call) const {
    if (path == nullptr) return nullptr;
    if (path->table_num < 0 || path->table_num > PRO_MAX_ASSEM_LEVEL) call.Fail("path length");
    call.SolidAt(path->owner);
    return path;
  }
};

void CheckPicks(const FilterTypes& filter, const std::vector<PickedItem>& picks) {
  for (const PickedItem& pick : picks) {
    if (std::find(filter.types.begin(), filter.types.end(), pick.type) == filter.types.end()) {
      throw NotModelled{"a pick of item type " + std::to_string(pick.type) + " under filter \"" +
                        filter.words + "\""};
    }
  }
}

// The picks of the last ProSelect stay the host's own until the next one.
void ReplaceLastPicks(Host& host, const std::vector<PickedItem>& picks) {
  for (void* handle : host.last_picks) EndSelection(host, static_cast<ProSelection>(handle));
  host.last_picks.clear();
  for (const PickedItem& pick : picks) host.last_picks.push_back(OwnSelection(host, pick));
}

}  // namespace

}  // namespace wb

using namespace wb;

ProError ProSelect(const char* filter, int max_count, ProSelection* initial,
                   ProSelFunctions* functions, ProSelectionEnv environment,
                   ProSelAppAction* app_action, ProSelection** selections, int* count) {
  return Crossing(__func__, FilterIn(filter), max_count, DataIn{initial}, DataIn{functions},
                  EnvironmentIn{environment}, DataIn{app_action},
                  Out(selections, "selections place"), Out(count, "count place"))
      .Run([](const Call& call, const FilterTypes& known, int most, void*, void*,
              const PickOptionList*, void*, ProSelection*& place, int& number) {
        if (call.host.user == nullptr) return PRO_TK_USER_ABORT;
        auto picks = call.host.user->Pick({known.words, most});
        if (!picks) return PRO_TK_USER_ABORT;
        CheckPicks(known, *picks);
        // With the last one that was asked for, the host ends the choice.
        if (most >= 0 && picks->size() > static_cast<size_t>(most)) {
          picks->resize(static_cast<size_t>(most));
        }
        ReplaceLastPicks(call.host, *picks);
        place = reinterpret_cast<ProSelection*>(call.host.last_picks.data());
        number = static_cast<int>(picks->size());
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSelectionEnvAlloc(ProSelectionEnvOption* options, ProSelectionEnv* environment) {
  return Crossing(__func__, ArrayIn(options, "options"), Out(environment, "environment place"))
      .Run([](const Call& call, std::span<ProSelectionEnvOption> given, ProSelectionEnv& place) {
        auto* const held = new PickOptionList;
        for (const ProSelectionEnvOption& option : given) {
          held->emplace_back(option.attribute, option.attribute_value);
        }
        place =
            static_cast<ProSelectionEnv>(call.host.handles.Give(HandleKind::kSelectionEnv, held));
        call.host.events.Add(PickOptions{*held});
        call.Give(place, Resource::kSelectionEnv);
      });
}

ProError ProSelectionEnvFree(ProSelectionEnv environment) {
  return Crossing(__func__, GivenBack(environment)).Run([](const Call& call, ProSelectionEnv lent) {
    call.TakeBack(lent, Resource::kSelectionEnv);
    delete static_cast<PickOptionList*>(call.Look(lent, HandleKind::kSelectionEnv).object);
    call.host.handles.End(lent);
  });
}

ProError ProSelbufferSelectionsGet(ProSelection** selections) {
  return Crossing(__func__, Out(selections, "selections place"))
      .Run([](const Call& call, ProSelection*& place) {
        const std::vector<PickedItem>& buffer = call.host.session.selection_buffer;
        if (buffer.empty()) {
          place = nullptr;
          return call.host.habits.empty_preselection_succeeds ? PRO_TK_NO_ERROR
                                                              : PRO_TK_E_NOT_FOUND;
        }
        place = static_cast<ProSelection*>(
            NewArray(call, static_cast<int>(buffer.size()), sizeof(ProSelection)));
        for (size_t i = 0; i < buffer.size(); ++i) place[i] = NewSelection(call, buffer[i]);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSelectionarrayFree(ProSelection* selections) {
  return Crossing(__func__, SelectionsGivenBack(selections))
      .Run([](const Call& call, ProSelection* lent) {
        const int count = ArraySize(call, lent);
        for (int i = 0; i < count; ++i) FreeSelection(call, lent[i]);
        FreeArray(call, lent);
      });
}

ProError ProSelbufferClear() {
  return Crossing(__func__).Run(
      [](const Call& call) { call.host.session.selection_buffer.clear(); });
}

ProError ProSelbufferSelectionAdd(ProSelection selection) {
  return Crossing(__func__, SelectionIn{selection})
      .Run([](const Call& call, const PickedItem& picked) {
        call.host.session.selection_buffer.push_back(picked);
      });
}

ProError ProSelectionModelitemGet(ProSelection selection, ProModelitem* item) {
  return Crossing(__func__, SelectionIn{selection}, Out(item, "item place"))
      .Run([](const PickedItem& picked, ProModelitem& place) {
        if (picked.owner == nullptr) return PRO_TK_INVALID_ITEM;
        place = {static_cast<ProType>(picked.type), picked.id, picked.owner->handle};
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSelectionAsmcomppathGet(ProSelection selection, ProAsmcomppath* path) {
  return Crossing(__func__, SelectionIn{selection}, Out(path, "path place"))
      .Run([](const PickedItem& picked, ProAsmcomppath& place) {
        if (picked.root == nullptr) return PRO_TK_INVALID_ITEM;
        if (picked.path.size() > PRO_MAX_ASSEM_LEVEL) {
          throw NotModelled{"a component path deeper than the host's limit"};
        }
        place = {};
        place.owner = picked.root->handle;
        place.table_num = static_cast<int>(picked.path.size());
        std::copy(picked.path.begin(), picked.path.end(), place.comp_id_table);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSelectionAlloc(ProAsmcomppath* path, ProModelitem* item, ProSelection* selection) {
  return Crossing(__func__, PathOrNoneIn{path}, RecordIn(item, "item"),
                  Out(selection, "selection place"))
      .Run([](const Call& call, const ProAsmcomppath* way, const ProModelitem& of,
              ProSelection& place) {
        PickedItem picked{of.type, of.id, &call.ModelAt(of.owner), nullptr, {}};
        if (way != nullptr) {
          picked.root = &call.SolidAt(way->owner);
          picked.path.assign(way->comp_id_table, way->comp_id_table + way->table_num);
        }
        place = NewSelection(call, picked);
      });
}

ProError ProSelectionFree(ProSelection* selection) {
  return Crossing(__func__, PlaceGivenBack(selection, "selection place"))
      .Run([](const Call& call, ProSelection& place) {
        FreeSelection(call, place);
        place = nullptr;
      });
}
