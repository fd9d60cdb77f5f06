// Host functions for element trees, and for the merge features that are made of them.
#include "workbench/api/assembly/element_tree.h"
#include "workbench/assembly/merging.h"
#include "workbench/host/arguments.h"
#include "workbench/session/extents.h"

namespace wb {
namespace {

constexpr size_t kLongestFeatureName = 80;

struct ElementIn {
  ProElement handle;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(handle)); }
  TreeElement& Look(const Call& call) const {
    return *static_cast<TreeElement*>(call.Look(handle, HandleKind::kElement).object);
  }
};

struct ValueIn {
  ProValue handle;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(handle)); }
  TreeValue& Look(const Call& call) const {
    return *static_cast<TreeValue*>(call.Look(handle, HandleKind::kValue).object);
  }
};

// What the call takes over. Who is told that it was taken cannot give it back.
template <typename In>
struct TakenOver : In {
  void Forgive(Host& host) const {
    if (host.faults.claims_success()) host.accounts.Forgive(this->handle);
  }
};

void FreeValue(const Call& call, ProValue handle) {
  delete &ValueIn{handle}.Look(call);
  call.host.handles.End(handle);
}

void SetData(const Call& call, TreeValue& value, const ProValueData& data) {
  TreeValue now{data.type, 0, "", nullptr};
  switch (data.type) {
    case PRO_VALUE_TYPE_INT:
      now.number = data.v.i;
      break;
    case PRO_VALUE_TYPE_WSTRING:
      now.text = call.Text(data.v.w, kLongestFeatureName, "text of a value");
      break;
    case PRO_VALUE_TYPE_SELECTION:
      call.SelectionAt(data.v.r);
      now.selection = data.v.r;
      break;
    default:
      throw NotModelled{"a value of type " + std::to_string(data.type)};
  }
  value = now;
}

void Join(const Call& call, TreeElement& parent, TreeElement& element) {
  if (element.parent != nullptr) call.Fail("the element belongs to a tree already");
  for (const TreeElement* above = &parent; above != nullptr; above = above->parent) {
    if (above == &element) call.Fail("an element below itself");
  }
  call.TakeBack(element.handle, Resource::kElement);
  element.parent = &parent;
  parent.children.push_back(&element);
}

// What the host makes of a tree that is right. It knows both parts by the assembly above them.
ProError Merge(const Call& call, const PickedItem& into, const TreeElement& tree,
               ProFeature& place) {
  const TreeValue& selected = *ValueAt(tree, {PRO_E_MERGE_3388, PRO_E_MERGE_SOURCE});
  const PickedItem& source = call.SelectionAt(selected.selection);
  const bool is_part = source.type == PRO_PART && source.owner != nullptr;
  if (!is_part || HasGeometryOf(call.host.session, *source.owner, *into.owner)) {
    return PRO_TK_INVALID_ITEM;
  }
  if (source.root == nullptr) throw NotModelled{"merging a part that is selected without a path"};
  const auto from = PlacementAt(*source.root, source.path);
  const auto to = FirstPlacementOf(*source.root, *into.owner);
  if (!from || !to) return PRO_TK_BAD_CONTEXT;
  if (!IsRigid(*from) || !IsRigid(*to)) {
    throw NotModelled{"merging under assemblies of other length units"};
  }
  const std::string& name = ValueAt(tree, {PRO_E_FEATURE_NAME})->text;
  const int id =
      AddMergeFeature(*into.owner, *source.owner, PlacedWithin(*from, Inverse(*to)), name);
  place = {PRO_FEATURE, id, into.owner->handle};
  return PRO_TK_NO_ERROR;
}

void CheckMergeTree(const Call& call, const TreeElement& tree) {
  const std::string wrong = WrongInMergeTree(tree);
  if (!wrong.empty()) call.FailUnlessMisled(wrong);
  const int type = ValueAt(tree, {PRO_E_FEATURE_TYPE})->number;
  if (type != PRO_FEAT_MERGE) throw NotModelled{"a feature of type " + std::to_string(type)};
}

struct FeatureOptions {
  std::vector<int> numbers;
};
struct FeatureOptionsIn {
  const ProFeatureCreateOptions* options;
  int count;
  std::string Describe() const { return DescribeArgument(count) + " options"; }
  FeatureOptions Look(const Call& call) const {
    if (count < 1 || options == nullptr) call.Fail("no options");
    FeatureOptions given;
    for (int i = 0; i < count; ++i) given.numbers.push_back(options[i]);
    return given;
  }
};

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProElementAlloc(ProElemId id, ProElement* element) {
  return Crossing(__func__, id, Out(element, "element place"))
      .Run([](const Call& call, int number, ProElement& place) {
        auto* const made = new TreeElement{number, nullptr, std::nullopt, {}, nullptr};
        made->handle = call.host.handles.Give(HandleKind::kElement, made);
        place = static_cast<ProElement>(made->handle);
        call.Give(place, Resource::kElement);
      });
}

ProError ProElementFree(ProElement* element) {
  return Crossing(__func__, PlaceGivenBack(element, "element place"))
      .Run([](const Call& call, ProElement& place) {
        TreeElement& freed = ElementIn{place}.Look(call);
        if (freed.parent != nullptr) call.Fail("the element belongs to a tree");
        call.TakeBack(place, Resource::kElement);
        FreeTree(call.host, &freed);
        place = nullptr;
      });
}

ProError ProValueAlloc(ProValue* value) {
  return Crossing(__func__, Out(value, "value place")).Run([](const Call& call, ProValue& place) {
    place = static_cast<ProValue>(call.host.handles.Give(HandleKind::kValue, new TreeValue));
    call.Give(place, Resource::kValue);
  });
}

ProError ProValueFree(ProValue value) {
  return Crossing(__func__, GivenBack(value)).Run([](const Call& call, ProValue lent) {
    call.TakeBack(lent, Resource::kValue);
    FreeValue(call, lent);
  });
}

ProError ProValueDataSet(ProValue value, ProValueData* data) {
  return Crossing(__func__, ValueIn{value}, RecordIn(data, "data"))
      .Run([](const Call& call, TreeValue& of, const ProValueData& given) {
        SetData(call, of, given);
      });
}

ProError ProElementValueSet(ProElement element, ProValue value) {
  return Crossing(__func__, ElementIn{element}, TakenOver<ValueIn>{{value}})
      .Run([&](const Call& call, TreeElement& of, const TreeValue& given) {
        if (given.type == 0) call.FailUnlessMisled("a value without data");
        of.value = given;
        call.TakeBack(value, Resource::kValue);
        FreeValue(call, value);
      });
}

ProError ProElemtreeElementAdd(ProElement parent, ProElempath path, ProElement element) {
  return Crossing(__func__, ElementIn{parent}, DataIn{path}, TakenOver<ElementIn>{{element}})
      .Run([](const Call& call, TreeElement& above, void* way, TreeElement& added) {
        if (way != nullptr) throw NotModelled{"a path below the element"};
        Join(call, above, added);
      });
}

ProError ProFeatureCreate(ProSelection model, ProElement tree, ProFeatureCreateOptions* options,
                          int option_count, ProFeature* feature, ProErrorlist* errors) {
  return Crossing(__func__, SelectionIn{model}, ElementIn{tree},
                  FeatureOptionsIn{options, option_count}, Out(feature, "feature place"),
                  Out(errors, "errors place"))
      .Run([](const Call& call, const PickedItem& into, const TreeElement& root,
              const FeatureOptions& given, ProFeature& place, ProErrorlist& list) {
        if (given.numbers != std::vector<int>{PRO_FEAT_CR_NO_OPTS}) {
          throw NotModelled{"options of a feature"};
        }
        if (into.owner == nullptr || into.type != PRO_PART || into.root != nullptr) {
          throw NotModelled{"a feature in something else than a part selected without a path"};
        }
        CheckMergeTree(call, root);
        call.host.events.Add(ElementTree{TreeText(call, root)});
        list = {};
        return Merge(call, into, root, place);
      });
}
