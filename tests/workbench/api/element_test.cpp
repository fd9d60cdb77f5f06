// Element trees: who owns what, and what the host says of a tree that is not the declared one.
#include "tests/workbench/api/host_contract.h"
#include "workbench/host/loans.h"

namespace wb {
namespace {

struct TreeRow {
  int parent;
  int id;
  char value = ' ';  // i, w, s, or none
  int number = 0;
};
const std::vector<TreeRow> kRight = {
    {0, 386},          {386, 387, 'i', 1238}, {386, 1964, 'w'},
    {386, 3386, 'i'},  {386, 3388},           {3388, 3389, 'i'},
    {3388, 3390, 's'}, {3390, 3391},          {3391, 605},
    {605, 606},        {606, 607, 'i', 13},
};

class ElementContract : public HostContract {
 protected:
  ElementContract() {
    Model& pin = host_.session.Add(Model({"pin", ModelKind::kPart}));
    pin.solid().surfaces.Add({1, {{0, 0, 0}, {1, 1, 1}}});
    Feature& feature = box_->solid().features.Add(NewComponent(11, pin.id));
    feature.component->link.model = &pin;
    source_ = OwnSelection(host_, {PRO_PART, 0, &pin, box_, {11}});
    target_ = OwnSelection(host_, {PRO_PART, 0, lid_, nullptr, {}});
  }

  static ProElement New(int id) {
    ProElement element = nullptr;
    EXPECT_EQ(ProElementAlloc(id, &element), PRO_TK_NO_ERROR);
    return element;
  }

  void Fill(ProElement element, const TreeRow& row) {
    ProValueData data{};
    wchar_t name[] = L"合并";
    if (row.value == 'i') data.type = PRO_VALUE_TYPE_INT, data.v.i = row.number;
    if (row.value == 'w') data.type = PRO_VALUE_TYPE_WSTRING, data.v.w = name;
    if (row.value == 's') data.type = PRO_VALUE_TYPE_SELECTION, data.v.r = source_;
    ProValue value = nullptr;
    EXPECT_EQ(ProValueAlloc(&value), PRO_TK_NO_ERROR);
    EXPECT_EQ(ProValueDataSet(value, &data), PRO_TK_NO_ERROR);
    EXPECT_EQ(ProElementValueSet(element, value), PRO_TK_NO_ERROR);
  }

  ProError Create(const std::vector<TreeRow>& rows) {
    std::map<int, ProElement> made;
    for (const TreeRow& row : rows) {
      made[row.id] = New(row.id);
      if (row.value != ' ') Fill(made[row.id], row);
      if (row.parent != 0) ProElemtreeElementAdd(made[row.parent], nullptr, made[row.id]);
    }
    ProElement root = made[rows[0].id];
    ProFeatureCreateOptions options[] = {PRO_FEAT_CR_NO_OPTS};
    ProFeature feature{};
    ProErrorlist errors{};
    const ProError status = ProFeatureCreate(target_, root, options, 1, &feature, &errors);
    EXPECT_EQ(ProElementFree(&root), PRO_TK_NO_ERROR);
    EXPECT_TRUE(host_.accounts.open().empty());
    return status;
  }

  static std::vector<TreeRow> Without(int id) {
    std::vector<TreeRow> rows = kRight;
    std::erase_if(rows, [&](const TreeRow& row) { return row.id == id; });
    return rows;
  }
  static std::vector<TreeRow> With(TreeRow changed) {
    std::vector<TreeRow> rows = kRight;
    for (TreeRow& row : rows) {
      if (row.id == changed.id) row = changed;
    }
    return rows;
  }

  ProSelection source_ = nullptr;
  ProSelection target_ = nullptr;
};

TEST_F(ElementContract, OnlyTheDeclaredTreeMakesAFeature) {
  const std::string misused = "ProFeatureCreate: ";
  std::vector<TreeRow> twice = kRight;
  twice.push_back({386, 3386, 'i'});
  const auto with = [&](const TreeRow& row) { return [=, this] { return Create(With(row)); }; };
  Check({
      {"a leaf is missing", [&] { return Create(Without(607)); }, PRO_TK_BAD_INPUTS,
       misused + "element 607 is missing"},
      {"another type", with({386, 387, 'w'}), PRO_TK_BAD_INPUTS,
       misused + "element 387 holds a value of type 5 instead of 1"},
      {"elsewhere", with({3388, 3391}), PRO_TK_BAD_INPUTS,
       misused + "element 3391 does not belong below 3388"},
      {"twice", [&] { return Create(twice); }, PRO_TK_BAD_INPUTS,
       misused + "element 3386 is there twice"},
      {"another feature", with({386, 387, 'i', 911}), PRO_TK_NOT_IMPLEMENTED, "",
       "ProFeatureCreate: a feature of type 911"},
      {"right", [&] { return Create(kRight); }, PRO_TK_NO_ERROR},
  });
  ASSERT_EQ(FeaturesOf(*lid_).size(), 1u);
}

TEST_F(ElementContract, AWrongOwnerIsTold) {
  ProElement root = New(386);
  ProElement child = New(387);
  ProValue value = nullptr;
  ProValueAlloc(&value);
  Check({
      {"a value without data", [&] { return ProElementValueSet(child, value); }, PRO_TK_BAD_INPUTS,
       "ProElementValueSet: a value without data"},
      {"below itself", [&] { return ProElemtreeElementAdd(root, nullptr, root); },
       PRO_TK_BAD_INPUTS, "ProElemtreeElementAdd: an element below itself"},
      {"joined", [&] { return ProElemtreeElementAdd(root, nullptr, child); }, PRO_TK_NO_ERROR},
      {"joined twice", [&] { return ProElemtreeElementAdd(root, nullptr, child); },
       PRO_TK_BAD_INPUTS, "ProElemtreeElementAdd: the element belongs to a tree already"},
      {"freed out of its tree", [&] { return ProElementFree(&child); }, PRO_TK_BAD_INPUTS,
       "ProElementFree: the element belongs to a tree"},
      {"freed", [&] { return ProElementFree(&root); }, PRO_TK_NO_ERROR},
      {"used when it is gone", [&] { return ProElementValueSet(child, value); }, PRO_TK_BAD_INPUTS,
       "ProElementValueSet: stale element handle (its object is gone)"},
  });
  EXPECT_EQ(host_.accounts.Describe(), Lines{"value from ProValueAlloc (call 3)"});
}

}  // namespace
}  // namespace wb
