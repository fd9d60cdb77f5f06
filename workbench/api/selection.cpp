// Host functions of the selection family: picking, the selection buffer, what was picked.
#include "workbench/host/loans.h"

namespace wb {
namespace {

// What may be picked under each filter word, as item types.
struct FilterTypes {
  const char* word;
  std::vector<int> types;
};
const std::vector<FilterTypes>& KnownFilters() {
  static const std::vector<FilterTypes> filters = {
      {"part", {PRO_PART}},
      {"assembly", {PRO_ASSEMBLY}},
      {"prt_or_asm", {PRO_PART, PRO_ASSEMBLY}},
      {"feature", {PRO_FEATURE}},
      {"surface", {PRO_SURFACE}},
      {"edge", {PRO_EDGE}},
  };
  return filters;
}

const FilterTypes& FilterArgument(const Call& call, const std::string& word) {
  for (const FilterTypes& filter : KnownFilters()) {
    if (word == filter.word) return filter;
  }
  throw NotModelled{"selection filter \"" + word + "\" in " + call.function};
}

void CheckPicks(const FilterTypes& filter, const std::vector<PickedItem>& picks, int max_count) {
  if (max_count >= 0 && picks.size() > static_cast<size_t>(max_count)) {
    throw NotModelled{"more picks than the " + std::to_string(max_count) + " asked for"};
  }
  for (const PickedItem& pick : picks) {
    if (std::find(filter.types.begin(), filter.types.end(), pick.type) == filter.types.end()) {
      throw NotModelled{"a pick of item type " + std::to_string(pick.type) + " under filter \"" +
                        filter.word + "\""};
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
                   ProSelAppAction app_action, ProSelection** selections, int* count) {
  return Crossing("ProSelect", filter, max_count, static_cast<const void*>(initial),
                  static_cast<const void*>(functions), static_cast<const void*>(environment),
                  static_cast<const void*>(app_action), Out(selections), Out(count))
      .Run([&](Call& call) {
        const FilterTypes& known =
            FilterArgument(call, call.Narrow(filter, kNarrowLimit, "filter"));
        if (environment != nullptr) {
          const auto found = call.host.handles.Look(environment, HandleKind::kSelectionEnv);
          if (found.object == nullptr) call.Fail(found);
        }
        ProSelection*& place = call.Place(selections, "selections place");
        int& number = call.Place(count, "count place");
        if (call.host.user == nullptr) return PRO_TK_USER_ABORT;
        const auto picks = call.host.user->Pick({known.word, max_count});
        if (!picks) return PRO_TK_USER_ABORT;
        CheckPicks(known, *picks, max_count);
        ReplaceLastPicks(call.host, *picks);
        place = reinterpret_cast<ProSelection*>(call.host.last_picks.data());
        number = static_cast<int>(picks->size());
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSelectionEnvAlloc(ProSelectionEnvOption* options, ProSelectionEnv* environment) {
  return Crossing("ProSelectionEnvAlloc", static_cast<const void*>(options), Out(environment))
      .Run([&](Call& call) {
        const int count = ArraySize(call, options);
        if (ArrayObjectSize(options) != static_cast<int>(sizeof(ProSelectionEnvOption))) {
          call.Fail("array of another element size given as options");
        }
        auto* const held = new std::vector<std::pair<int, int>>;
        for (int i = 0; i < count; ++i) {
          held->emplace_back(options[i].attribute, options[i].attribute_value);
        }
        ProSelectionEnv& place = call.Place(environment, "environment place");
        place =
            static_cast<ProSelectionEnv>(call.host.handles.Give(HandleKind::kSelectionEnv, held));
        call.host.selection_environments.push_back(*held);
        call.Give(place, Resource::kSelectionEnv);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSelectionEnvFree(ProSelectionEnv environment) {
  return Crossing("ProSelectionEnvFree", static_cast<const void*>(environment))
      .Run([&](Call& call) {
        call.TakeBack(environment, Resource::kSelectionEnv);
        const auto found = call.host.handles.Look(environment, HandleKind::kSelectionEnv);
        delete static_cast<std::vector<std::pair<int, int>>*>(found.object);
        call.host.handles.End(environment);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSelbufferSelectionsGet(ProSelection** selections) {
  return Crossing("ProSelbufferSelectionsGet", Out(selections)).Run([&](Call& call) {
    const std::vector<PickedItem>& buffer = call.host.session.selection_buffer;
    ProSelection*& place = call.Place(selections, "selections place");
    if (buffer.empty()) return PRO_TK_E_NOT_FOUND;
    place = static_cast<ProSelection*>(
        NewArray(call, static_cast<int>(buffer.size()), sizeof(ProSelection)));
    for (size_t i = 0; i < buffer.size(); ++i) place[i] = NewSelection(call, buffer[i]);
    return PRO_TK_NO_ERROR;
  });
}

ProError ProSelectionarrayFree(ProSelection* selections) {
  return Crossing("ProSelectionarrayFree", static_cast<const void*>(selections))
      .Run([&](Call& call) {
        const int count = ArraySize(call, selections);
        for (int i = 0; i < count; ++i) FreeSelection(call, selections[i]);
        FreeArray(call, selections);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSelbufferClear() {
  return Crossing("ProSelbufferClear").Run([&](Call& call) {
    call.host.session.selection_buffer.clear();
    return PRO_TK_NO_ERROR;
  });
}

ProError ProSelbufferSelectionAdd(ProSelection selection) {
  return Crossing("ProSelbufferSelectionAdd", static_cast<const void*>(selection))
      .Run([&](Call& call) {
        call.host.session.selection_buffer.push_back(call.SelectionAt(selection));
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSelectionModelitemGet(ProSelection selection, ProModelitem* item) {
  return Crossing("ProSelectionModelitemGet", static_cast<const void*>(selection), Out(item))
      .Run([&](Call& call) {
        const PickedItem& picked = call.SelectionAt(selection);
        if (picked.owner == nullptr) return PRO_TK_INVALID_ITEM;
        call.Place(item, "item place") = {static_cast<ProType>(picked.type), picked.id,
                                          picked.owner->handle};
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSelectionAsmcomppathGet(ProSelection selection, ProAsmcomppath* path) {
  return Crossing("ProSelectionAsmcomppathGet", static_cast<const void*>(selection), Out(path))
      .Run([&](Call& call) {
        const PickedItem& picked = call.SelectionAt(selection);
        ProAsmcomppath& place = call.Place(path, "path place");
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
