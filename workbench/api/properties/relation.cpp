// Host functions of the relation family.
#include "workbench/api/properties/relation_lines.h"
#include "workbench/host/arguments.h"

namespace wb {
namespace {

// Longer than any line that a user writes; a text without an end is found by it.
constexpr size_t kLongestRelation = 20'000;

// In the reserve of the host's record: which set it stands for.
enum class SetMark : char { kOrdinary = 'R', kPost = 'P' };

// A part or an assembly, as an item: relations of other items are not modelled.
struct ModelItemIn : RecordIn<ProModelitem> {
  explicit ModelItemIn(ProModelitem* item) : RecordIn(item, "item") {}
  Model& Look(const Call& call) const {
    const ProModelitem& item = RecordIn::Look(call);
    Model& model = call.SolidAt(item.owner);
    if (static_cast<int>(item.type) == static_cast<int>(model.id.kind)) return model;
    throw NotModelled{"relations of items inside a model"};
  }
};

struct RelationSet {
  Model& model;
  std::optional<RelationLines>& lines;
};

struct RelsetIn : RecordIn<ProRelset> {
  explicit RelsetIn(ProRelset* relset) : RecordIn(relset, "relation set") {}
  RelationSet Look(const Call& call) const {
    const ProRelset& relset = RecordIn::Look(call);
    const auto mark = static_cast<SetMark>(relset.reserve[0]);
    if (mark != SetMark::kOrdinary && mark != SetMark::kPost) {
      call.Fail("a relation set that the host has not filled in");
    }
    Model& model = call.SolidAt(relset.item.owner);
    SolidContent& solid = model.solid();
    return {model, mark == SetMark::kPost ? solid.post_relations : solid.relations};
  }
};

ProRelset RelsetOf(const Model& model, SetMark mark) {
  ProRelset relset = {};
  relset.item = {static_cast<ProType>(model.id.kind), 0, model.handle};
  relset.reserve[0] = static_cast<char>(mark);
  return relset;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProModelitemToRelset(ProModelitem* item, ProRelset* relset) {
  return Crossing(__func__, ModelItemIn(item), Out(relset, "relation set place"))
      .Run([](const Model& model, ProRelset& place) {
        if (!model.solid().relations) return PRO_TK_E_NOT_FOUND;
        place = RelsetOf(model, SetMark::kOrdinary);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProRelsetCreate(ProModelitem* item, ProRelset* relset) {
  return Crossing(__func__, ModelItemIn(item), Out(relset, "relation set place"))
      .Run([](Model& model, ProRelset& place) {
        if (model.solid().relations) return PRO_TK_E_FOUND;
        model.solid().relations.emplace();
        model.modified = true;
        place = RelsetOf(model, SetMark::kOrdinary);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProRelsetPostregenerationInit(ProMdl model, ProRelset* relset) {
  return Crossing(__func__, SolidIn{{model}}, Out(relset, "relation set place"))
      .Run([](const Call& call, const Model& from, ProRelset& place) {
        const bool can_be_opened =
            from.solid().post_relations || call.host.habits.post_relations_are_always_there;
        if (!can_be_opened) return PRO_TK_E_NOT_FOUND;
        place = RelsetOf(from, SetMark::kPost);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProRelsetRelationsGet(ProRelset* relset, wchar_t*** lines) {
  return Crossing(__func__, RelsetIn(relset), Out(lines, "lines place"))
      .Run([](const Call& call, const RelationSet& from, wchar_t**& place) {
        if (!from.lines || from.lines->empty()) {
          place = nullptr;
          return call.host.habits.relations_without_lines_succeed ? PRO_TK_NO_ERROR
                                                                  : PRO_TK_E_NOT_FOUND;
        }
        place = static_cast<wchar_t**>(
            NewArray(call, static_cast<int>(from.lines->size()), sizeof(wchar_t*)));
        for (size_t i = 0; i < from.lines->size(); ++i) place[i] = GiveWide(call, (*from.lines)[i]);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProRelsetRelationsSet(ProRelset* relset, wchar_t** lines, int count) {
  return Crossing(__func__, RelsetIn(relset), ArrayIn(lines, "lines"), count)
      .Run([](const Call& call, const RelationSet& to, std::span<wchar_t*> given, int number) {
        if (number < 0 || static_cast<size_t>(number) != given.size()) {
          call.Fail("count " + std::to_string(number) + " for an array of " +
                    std::to_string(given.size()));
        }
        RelationLines taken;
        for (wchar_t* const line : given) {
          taken.push_back(call.Text(line, kLongestRelation, "relation line"));
        }
        if (!AreRelations(taken)) return PRO_TK_GENERAL_ERROR;
        to.lines = std::move(taken);
        to.model.modified = true;
        return PRO_TK_NO_ERROR;
      });
}
