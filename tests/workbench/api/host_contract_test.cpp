// The contract of the host functions: what each family answers, and what it holds against a
// caller. Every row is a call as a careless plug-in might make it.
#include <functional>

#include "tests/workbench/host/host_fixture.h"
#include "workbench/host/call.h"
#include "workbench/host/host_types.h"

namespace wb {
namespace {

struct Row {
  const char* what;
  std::function<ProError()> call;
  ProError status;
  std::string breach = "";        // without "plug-in misused "; empty: none
  std::string not_modelled = "";  // empty: nothing
};

// An assembly "box" of the part "lid" (component 7), a part that is missing (8) and a datum (9).
class HostContract : public HostFixture {
 protected:
  HostContract() {
    Model part({"lid", ModelKind::kPart});
    part.SetParameter("MASS", 1.5);
    part.SetParameter("COUNT", 2);
    part.SetParameter("NAME", std::string("盖"));
    part.SetParameter("BOUGHT", true);
    lid_ = &host_.session.Add(std::move(part));
    Model assembly({"box", ModelKind::kAssembly});
    ItemList<Feature>& features = assembly.solid().features;
    features.Add(NewComponent(7, lid_->id));
    features.Add(NewComponent(8, {"gone", ModelKind::kPart}));
    features.Add({.id = 9, .type = 923});
    box_ = &host_.session.Add(std::move(assembly));
    Model drawing({"sheet", ModelKind::kDrawing});
    drawing_ = &host_.session.Add(std::move(drawing));
    Model erased({"erased", ModelKind::kPart});
    Model& gone = host_.session.Add(std::move(erased));
    stale_ = gone.handle;
    host_.session.Erase(gone);
  }

  void Check(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      SCOPED_TRACE(row.what);
      EXPECT_EQ(row.call(), row.status);
      const Lines breaches = Breaches();
      host_.events.Forget<Breach>();
      EXPECT_EQ(breaches, row.breach.empty() ? Lines() : Lines{"plug-in misused " + row.breach});
      const Lines gaps = host_.events.AllTexts<Gap>();
      host_.events.Forget<Gap>();
      EXPECT_EQ(gaps, row.not_modelled.empty()
                          ? Lines()
                          : Lines{"workbench: not modelled: " + row.not_modelled});
    }
  }

  ProModelitem Item(ProType type, int id, void* owner) const { return {type, id, owner}; }
  ProModelitem LidItem() const { return {PRO_PART, 0, lid_->handle}; }
  ProParameter LidParameter(const wchar_t* name) {
    ProParameter parameter{};
    ProModelitem item = LidItem();
    ProName text{};
    std::wstring(name).copy(text, PRO_NAME_SIZE - 1);
    EXPECT_EQ(ProParameterInit(&item, text, &parameter), PRO_TK_NO_ERROR);
    return parameter;
  }
  static ProParamvalue Value(ProParamvalueType type, int number = 0) {
    ProParamvalue value{};
    value.type = type;
    if (type == PRO_PARAM_INTEGER) value.value.i_val = number;
    if (type == PRO_PARAM_BOOLEAN) value.value.l_val = static_cast<short>(number);
    return value;
  }

  Model* lid_ = nullptr;
  Model* box_ = nullptr;
  Model* drawing_ = nullptr;
  void* stale_ = nullptr;
};

TEST_F(HostContract, ModelsAreKnownByTheirLiveHandles) {
  ProMdlType type{};
  ProMdl model = nullptr;
  ProName name{};
  wchar_t wanted[] = L"LID";
  wchar_t other[] = L"lid2";
  wchar_t overlong[] = L"a_name_of_more_than_thirty_one_x";
  Check({
      {"nothing current", [&] { return ProMdlCurrentGet(&model); }, PRO_TK_BAD_CONTEXT},
      {"null", [&] { return ProMdlTypeGet(nullptr, &type); }, PRO_TK_BAD_INPUTS,
       "ProMdlTypeGet: null model handle"},
      {"erased", [&] { return ProMdlNameGet(stale_, name); }, PRO_TK_BAD_INPUTS,
       "ProMdlNameGet: stale model handle (its object is gone)"},
      {"no place", [&] { return ProMdlTypeGet(lid_->handle, nullptr); }, PRO_TK_BAD_INPUTS,
       "ProMdlTypeGet: null type place"},
      {"names without case", [&] { return ProMdlRetrieve(wanted, PRO_MDL_PART, &model); },
       PRO_TK_NO_ERROR},
      {"of another type", [&] { return ProMdlRetrieve(wanted, PRO_MDL_ASSEMBLY, &model); },
       PRO_TK_E_NOT_FOUND},
      {"of no type", [&] { return ProMdlRetrieve(wanted, static_cast<ProMdlType>(77), &model); },
       PRO_TK_BAD_INPUTS, "ProMdlRetrieve: model type 77"},
      {"unknown", [&] { return ProMdlRetrieve(other, PRO_MDL_PART, &model); }, PRO_TK_E_NOT_FOUND},
      {"overlong", [&] { return ProMdlRetrieve(overlong, PRO_MDL_PART, &model); },
       PRO_TK_BAD_INPUTS, "ProMdlRetrieve: model name longer than 31 characters"},
      {"no manufacturing model", [&] { return ProMfgAssemGet(box_->handle, &model); },
       PRO_TK_BAD_INPUTS, "ProMfgAssemGet: not a manufacturing model"},
  });
}

TEST_F(HostContract, FeaturesAreLookedUpInTheirOwners) {
  ProModelitem component = Item(PRO_FEATURE, 7, box_->handle);
  ProModelitem missing = Item(PRO_FEATURE, 8, box_->handle);
  ProModelitem datum = Item(PRO_FEATURE, 9, box_->handle);
  ProModelitem unknown = Item(PRO_FEATURE, 10, box_->handle);
  ProModelitem part = LidItem();
  ProModelitem in_drawing = Item(PRO_FEATURE, 1, drawing_->handle);
  ProModelitem of_erased = Item(PRO_FEATURE, 7, stale_);
  ProFeatStatus status{};
  ProBoolean hidden{};
  ProMdl model = nullptr;
  Check({
      {"a component", [&] { return ProAsmcompMdlGet(&component, &model); }, PRO_TK_NO_ERROR},
      {"a missing one", [&] { return ProAsmcompMdlGet(&missing, &model); }, PRO_TK_E_NOT_FOUND},
      {"no component", [&] { return ProAsmcompMdlGet(&datum, &model); }, PRO_TK_BAD_INPUTS,
       "ProAsmcompMdlGet: feature 9 is no component"},
      {"unknown", [&] { return ProFeatureStatusGet(&unknown, &status); }, PRO_TK_BAD_INPUTS,
       "ProFeatureStatusGet: \"box.asm\" has no feature 10"},
      {"no feature", [&] { return ProFeatureStatusGet(&part, &status); }, PRO_TK_BAD_INPUTS,
       "ProFeatureStatusGet: item of type 2 given as a feature"},
      {"of a drawing", [&] { return ProFeatureStatusGet(&in_drawing, &status); }, PRO_TK_BAD_INPUTS,
       "ProFeatureStatusGet: a drawing given where a solid is needed"},
      {"of an erased model", [&] { return ProFeatureStatusGet(&of_erased, &status); },
       PRO_TK_BAD_INPUTS, "ProFeatureStatusGet: stale model handle (its object is gone)"},
      {"a hidden part", [&] { return ProModelitemIsHidden(&part, &hidden); },
       PRO_TK_NOT_IMPLEMENTED, "", "ProModelitemIsHidden: hide state of an item of type 2"},
      {"nothing", [&] { return ProModelitemHide(nullptr); }, PRO_TK_BAD_INPUTS,
       "ProModelitemHide: null feature"},
  });
}

ProError Stop(ProFeature*, ProError, ProAppData) {
  return PRO_TK_USER_ABORT;
}
ProError GoOn(ProFeature*, ProError, ProAppData data) {
  ++*static_cast<int*>(data);
  return PRO_TK_NO_ERROR;
}
ProError PassAll(ProFeature*, ProAppData) {
  return PRO_TK_CONTINUE;
}

TEST_F(HostContract, AVisitAnswersWhatItsActionSaid) {
  int visited = 0;
  Check({
      {"all", [&] { return ProSolidFeatVisit(box_->handle, &GoOn, nullptr, &visited); },
       PRO_TK_NO_ERROR},
      {"stopped", [&] { return ProSolidFeatVisit(box_->handle, &Stop, nullptr, nullptr); },
       PRO_TK_USER_ABORT},
      {"all passed over", [&] { return ProSolidFeatVisit(box_->handle, &Stop, &PassAll, nullptr); },
       PRO_TK_E_NOT_FOUND},
      {"nothing there", [&] { return ProSolidFeatVisit(lid_->handle, &Stop, nullptr, nullptr); },
       PRO_TK_E_NOT_FOUND},
      {"no action", [&] { return ProSolidFeatVisit(box_->handle, nullptr, nullptr, nullptr); },
       PRO_TK_BAD_INPUTS, "ProSolidFeatVisit: null visit action"},
      {"a drawing", [&] { return ProSolidFeatVisit(drawing_->handle, &GoOn, nullptr, &visited); },
       PRO_TK_BAD_INPUTS, "ProSolidFeatVisit: a drawing given where a solid is needed"},
  });
  EXPECT_EQ(visited, 3);
}

TEST_F(HostContract, ParametersKeepTheirTypeAndTheirName) {
  ProModelitem owner = LidItem();
  ProModelitem feature = Item(PRO_FEATURE, 7, box_->handle);
  ProName fresh = L"NEW";
  ProName taken = L"mass";
  ProName relation = L"A+B";
  ProName empty = L"";
  ProParameter made{};
  ProParameter count = LidParameter(L"count");
  ProParameter mass = LidParameter(L"MASS");
  ProParamvalue three = Value(PRO_PARAM_INTEGER, 3);
  ProParamvalue neither = Value(PRO_PARAM_BOOLEAN, 7);
  ProParamvalue note = Value(PRO_PARAM_NOTE_ID);
  ProParamvalue read{};
  Check({
      {"created", [&] { return ProParameterCreate(&owner, fresh, &three, &made); },
       PRO_TK_NO_ERROR},
      {"again", [&] { return ProParameterCreate(&owner, fresh, &three, &made); }, PRO_TK_E_FOUND},
      {"without case", [&] { return ProParameterCreate(&owner, taken, &three, &made); },
       PRO_TK_E_FOUND},
      {"a relation", [&] { return ProParameterCreate(&owner, relation, &three, &made); },
       PRO_TK_INVALID_NAME},
      {"no name", [&] { return ProParameterCreate(&owner, empty, &three, &made); },
       PRO_TK_INVALID_NAME},
      {"no value", [&] { return ProParameterCreate(&owner, taken, nullptr, &made); },
       PRO_TK_BAD_INPUTS, "ProParameterCreate: null value"},
      {"neither yes nor no", [&] { return ProParameterCreate(&owner, taken, &neither, &made); },
       PRO_TK_BAD_INPUTS, "ProParameterCreate: yes/no value not 0 or 1"},
      {"a note", [&] { return ProParameterCreate(&owner, taken, &note, &made); }, PRO_TK_BAD_INPUTS,
       "ProParameterCreate: value type 54"},
      {"of a feature", [&] { return ProParameterInit(&feature, taken, &made); },
       PRO_TK_NOT_IMPLEMENTED, "", "ProParameterInit: parameters of items inside a model"},
      {"set", [&] { return ProParameterValueSet(&count, &three); }, PRO_TK_NO_ERROR},
      {"of another type", [&] { return ProParameterValueSet(&mass, &three); }, PRO_TK_INVALID_TYPE},
      {"deleted", [&] { return ProParameterDelete(&count); }, PRO_TK_NO_ERROR},
      {"once only", [&] { return ProParameterDelete(&count); }, PRO_TK_E_NOT_FOUND},
      {"then read", [&] { return ProParameterValueGet(&count, &read); }, PRO_TK_E_NOT_FOUND},
      {"nothing", [&] { return ProParameterValueGet(nullptr, &read); }, PRO_TK_BAD_INPUTS,
       "ProParameterValueGet: null parameter"},
  });
  EXPECT_EQ(std::get<double>(lid_->FindParameter("MASS")->value), 1.5);
  EXPECT_TRUE(lid_->modified);
}

TEST_F(HostContract, PathsLeadThroughComponents) {
  int ids[] = {7};
  ProAsmcomppath path{};
  ProAsmcomppath to_datum{};
  ProAsmcomppath to_missing{};
  ProMdl model = nullptr;
  const auto init = [&](ProAsmcomppath* place, int id) {
    ids[0] = id;
    return ProAsmcomppathInit(box_->handle, ids, 1, place);
  };
  Check({
      {"to a part", [&] { return init(&path, 7); }, PRO_TK_NO_ERROR},
      {"the part", [&] { return ProAsmcomppathMdlGet(&path, &model); }, PRO_TK_NO_ERROR},
      {"to a datum", [&] { return init(&to_datum, 9); }, PRO_TK_NO_ERROR},
      {"no part", [&] { return ProAsmcomppathMdlGet(&to_datum, &model); }, PRO_TK_BAD_INPUTS,
       "ProAsmcomppathMdlGet: \"box.asm\" has no component 9"},
      {"to a missing part", [&] { return init(&to_missing, 8); }, PRO_TK_NO_ERROR},
      {"missing", [&] { return ProAsmcomppathMdlGet(&to_missing, &model); }, PRO_TK_E_NOT_FOUND},
      {"too deep", [&] { return ProAsmcomppathInit(box_->handle, ids, 26, &path); },
       PRO_TK_BAD_INPUTS, "ProAsmcomppathInit: path of 26 levels"},
      {"no ids", [&] { return ProAsmcomppathInit(box_->handle, nullptr, 1, &path); },
       PRO_TK_BAD_INPUTS, "ProAsmcomppathInit: null id table"},
  });
}

TEST_F(HostContract, ArraysGrowAndAreCheckedAtEveryUse) {
  ProArray numbers = nullptr;
  ProArray foreign = &numbers;
  int size = 0;
  int object = 4;
  Check({
      {"made", [&] { return ProArrayAlloc(0, sizeof(int), 1, &numbers); }, PRO_TK_NO_ERROR},
      {"appended", [&] { return ProArrayObjectAdd(&numbers, PRO_VALUE_UNUSED, 1, &object); },
       PRO_TK_NO_ERROR},
      {"at the start", [&] { return ProArrayObjectAdd(&numbers, 0, 1, &(object = 3)); },
       PRO_TK_NO_ERROR},
      {"beyond the end", [&] { return ProArrayObjectAdd(&numbers, 3, 1, &object); },
       PRO_TK_BAD_INPUTS, "ProArrayObjectAdd: index 3 outside the array"},
      {"no object", [&] { return ProArrayObjectAdd(&numbers, 0, 1, nullptr); }, PRO_TK_BAD_INPUTS,
       "ProArrayObjectAdd: no objects to add"},
      {"of no size", [&] { return ProArrayAlloc(0, 0, 1, &foreign); }, PRO_TK_BAD_INPUTS,
       "ProArrayAlloc: sizes must be positive"},
      {"counted", [&] { return ProArraySizeGet(numbers, &size); }, PRO_TK_NO_ERROR},
  });
  EXPECT_EQ(size, 2);
  EXPECT_EQ(static_cast<int*>(numbers)[0], 3);
  EXPECT_EQ(static_cast<int*>(numbers)[1], 4);
  EXPECT_EQ(ProArrayFree(&numbers), PRO_TK_NO_ERROR);
  EXPECT_EQ(numbers, nullptr);
}

TEST_F(HostContract, WindowsShowWhatIsDisplayed) {
  ProMdl current = nullptr;
  int window = 0;
  ProName name = L"lid";
  Check({
      {"none yet", [&] { return ProWindowCurrentGet(&window); }, PRO_TK_E_NOT_FOUND},
      {"unknown", [&] { return ProWindowActivate(9); }, PRO_TK_BAD_INPUTS,
       "ProWindowActivate: there is no window 9"},
      {"repainted", [&] { return ProWindowRepaint(9); }, PRO_TK_BAD_INPUTS,
       "ProWindowRepaint: there is no window 9"},
      {"displayed", [&] { return ProMdlDisplay(box_->handle); }, PRO_TK_NO_ERROR},
      {"in the same window", [&] { return ProMdlDisplay(lid_->handle); }, PRO_TK_NO_ERROR},
      {"current", [&] { return ProMdlCurrentGet(&current); }, PRO_TK_NO_ERROR},
      {"its window", [&] { return ProObjectwindowCreate(name, PRO_PART, &window); },
       PRO_TK_NO_ERROR},
      {"of no assembly", [&] { return ProObjectwindowCreate(name, PRO_ASSEMBLY, &window); },
       PRO_TK_E_NOT_FOUND},
      {"erased", [&] { return ProMdlDisplay(stale_); }, PRO_TK_BAD_INPUTS,
       "ProMdlDisplay: stale model handle (its object is gone)"},
  });
  EXPECT_EQ(current, lid_->handle);
  EXPECT_EQ(host_.session.windows().size(), 1u);
}

TEST_F(HostContract, SelectionsAreTheCallersUntilFreed) {
  host_.session.selection_buffer.push_back({PRO_FEATURE, 7, box_, box_, {}});
  host_.session.selection_buffer.push_back({PRO_FEATURE, 8, nullptr, nullptr, {}});
  ProSelection* picked = nullptr;
  ProModelitem item{};
  ProAsmcomppath path{};
  ASSERT_EQ(ProSelbufferSelectionsGet(&picked), PRO_TK_NO_ERROR);
  const ProSelection first = picked[0];
  const ProSelection second = picked[1];
  Check({
      {"an item", [&] { return ProSelectionModelitemGet(first, &item); }, PRO_TK_NO_ERROR},
      {"of nothing", [&] { return ProSelectionModelitemGet(second, &item); }, PRO_TK_INVALID_ITEM},
      {"a way to nothing", [&] { return ProSelectionAsmcomppathGet(second, &path); },
       PRO_TK_INVALID_ITEM},
      {"no place", [&] { return ProSelectionModelitemGet(first, nullptr); }, PRO_TK_BAD_INPUTS,
       "ProSelectionModelitemGet: null item place"},
      {"freed", [&] { return ProSelectionarrayFree(picked); }, PRO_TK_NO_ERROR},
      {"after that", [&] { return ProSelectionModelitemGet(first, &item); }, PRO_TK_BAD_INPUTS,
       "ProSelectionModelitemGet: stale selection handle (its object is gone)"},
      {"again", [&] { return ProSelectionarrayFree(picked); }, PRO_TK_BAD_INPUTS,
       "ProSelectionarrayFree: array used after it was freed"},
      {"cleared", [&] { return ProSelbufferClear(); }, PRO_TK_NO_ERROR},
      {"empty", [&] { return ProSelbufferSelectionsGet(&picked); }, PRO_TK_E_NOT_FOUND},
  });
  EXPECT_EQ(item.id, 7);
}

constexpr const char* kFields = R"((Dialog Fields
    (Components (InputPanel name) (OptionMenu kind) (RadioGroup range) (CheckButton all)
                (PushButton Ok))
    (Resources
        (.Label "Fields")
        (.Layout (Grid (Rows 0 0 0 0 0) (Cols 1) name kind range all Ok))
        (kind.Names "text" "number") (kind.SelectedNames "text")
        (range.Names "part" "assembly") (range.SelectedNames "part")
        (name.MaxLen 5)
        (all.Label "All") (Ok.Label "OK")
    )
)
)";

TEST_F(HostContract, DialogsAreKnownByNameAndTheirFieldsByKind) {
  WriteFile("text/resource/Fields.res", kFields);
  char part[] = "part";
  char sphere[] = "sphere";
  char* part_name[] = {part};
  char* sphere_name[] = {sphere};
  wchar_t number[] = L"number";
  wchar_t short_text[] = L"abcde";
  wchar_t* text = nullptr;
  ProBoolean state{};
  const char* const dialog = "Fields";
  Check({
      {"no resource", [&] { return ProUIDialogCreate("None", "None"); }, PRO_TK_E_NOT_FOUND},
      {"created", [&] { return ProUIDialogCreate(dialog, dialog); }, PRO_TK_NO_ERROR},
      {"twice", [&] { return ProUIDialogCreate(dialog, dialog); }, PRO_TK_E_FOUND},
      {"ended before it was shown", [&] { return ProUIDialogExit(dialog, 0); }, PRO_TK_BAD_INPUTS,
       "ProUIDialogExit: the dialog is not active"},
      {"shown to nobody", [&] { return ProUIDialogActivate(dialog, nullptr); },
       PRO_TK_NOT_IMPLEMENTED, "", "ProUIDialogActivate: a dialog that nobody works"},
      {"bound", [&] { return ProUIPushbuttonActivateActionSet(dialog, "Ok", nullptr, nullptr); },
       PRO_TK_BAD_INPUTS, "ProUIPushbuttonActivateActionSet: null action"},
      {"typed", [&] { return ProUIInputpanelValueSet(dialog, "name", short_text); },
       PRO_TK_NO_ERROR},
      {"no component", [&] { return ProUIInputpanelValueSet(dialog, "title", short_text); },
       PRO_TK_BAD_INPUTS, "ProUIInputpanelValueSet: the dialog has no component \"title\""},
      {"another kind", [&] { return ProUIInputpanelValueSet(dialog, "kind", short_text); },
       PRO_TK_BAD_INPUTS, "ProUIInputpanelValueSet: component \"kind\" is of another kind"},
      {"no value", [&] { return ProUIInputpanelValueSet(dialog, "name", nullptr); },
       PRO_TK_BAD_INPUTS, "ProUIInputpanelValueSet: null value"},
      {"chosen", [&] { return ProUIOptionmenuValueSet(dialog, "kind", number); }, PRO_TK_NO_ERROR},
      {"no item", [&] { return ProUIOptionmenuValueSet(dialog, "kind", short_text); },
       PRO_TK_E_NOT_FOUND},
      {"a button", [&] { return ProUIRadiogroupSelectednamesSet(dialog, "range", 1, part_name); },
       PRO_TK_NO_ERROR},
      {"no button",
       [&] { return ProUIRadiogroupSelectednamesSet(dialog, "range", 1, sphere_name); },
       PRO_TK_E_NOT_FOUND},
      {"no choice", [&] { return ProUIRadiogroupSelectednamesSet(dialog, "range", 0, part_name); },
       PRO_TK_BAD_INPUTS, "ProUIRadiogroupSelectednamesSet: a radio group takes one name"},
      {"checked", [&] { return ProUICheckbuttonSet(dialog, "all"); }, PRO_TK_NO_ERROR},
      {"is it", [&] { return ProUICheckbuttonGetState(dialog, "all", &state); }, PRO_TK_NO_ERROR},
      {"read", [&] { return ProUIInputpanelValueGet(dialog, "name", &text); }, PRO_TK_NO_ERROR},
      {"freed", [&] { return ProWstringFree(text); }, PRO_TK_NO_ERROR},
      {"twice", [&] { return ProWstringFree(text); }, PRO_TK_BAD_INPUTS,
       "ProWstringFree: wide text used after it was freed"},
      {"destroyed", [&] { return ProUIDialogDestroy(dialog); }, PRO_TK_NO_ERROR},
      {"twice", [&] { return ProUIDialogDestroy(dialog); }, PRO_TK_BAD_INPUTS,
       "ProUIDialogDestroy: there is no dialog \"Fields\""},
  });
  EXPECT_EQ(state, PRO_B_TRUE);
}

ProError NoteSurface(ProSurface surface, ProError, ProAppData data) {
  *static_cast<ProSurface*>(data) = surface;
  return PRO_TK_NO_ERROR;
}

TEST_F(HostContract, SurfacesAndSheetsAreThoseOfTheirModels) {
  lid_->solid().surfaces.Add({1, {{0, 0, 0}, {10, 20, 0}}});
  drawing_->As<DrawingContent>()->sheets = {{"A3", 0.5}};
  ProSurface surface = nullptr;
  ProGeomitemdata* data = nullptr;
  ProName size{};
  ProMatrix matrix{};
  const auto find = [&] {
    return ProSolidSurfaceVisit(lid_->handle, &NoteSurface, nullptr, &surface);
  };
  Check({
      {"found", find, PRO_TK_NO_ERROR},
      {"none", [&] { return ProSolidSurfaceVisit(box_->handle, &NoteSurface, nullptr, &data); },
       PRO_TK_E_NOT_FOUND},
      {"its data", [&] { return ProSurfaceDataGet(surface, &data); }, PRO_TK_NO_ERROR},
      {"freed", [&] { return ProGeomitemdataFree(&data); }, PRO_TK_NO_ERROR},
      {"of a model",
       [&] { return ProSurfaceDataGet(static_cast<ProSurface>(lid_->handle), &data); },
       PRO_TK_BAD_INPUTS, "ProSurfaceDataGet: a model handle given as a surface handle"},
      {"a sheet", [&] { return ProDrawingSheetTrfGet(drawing_->handle, 1, size, matrix); },
       PRO_TK_NO_ERROR},
      {"no sheet", [&] { return ProDrawingSheetTrfGet(drawing_->handle, 2, size, matrix); },
       PRO_TK_BAD_INPUTS, "ProDrawingSheetTrfGet: the drawing has no sheet 2"},
      {"no drawing", [&] { return ProDrawingSheetTrfGet(lid_->handle, 1, size, matrix); },
       PRO_TK_BAD_INPUTS, "ProDrawingSheetTrfGet: not a drawing"},
  });
  EXPECT_EQ(FromWide(size), "A3");
}

// The order that makes the trace useful: a fault strikes before the arguments are looked at.
TEST_F(HostContract, AFaultStrikesWhateverTheArgumentsAre) {
  host_.faults.Order({.function = "ProMdlTypeGet", .nth = 2, .status = PRO_TK_OUT_OF_MEMORY});
  ProMdlType type{};
  EXPECT_EQ(ProMdlTypeGet(lid_->handle, &type), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProMdlTypeGet(nullptr, nullptr), PRO_TK_OUT_OF_MEMORY);
  EXPECT_EQ(Breaches(), Lines());
  EXPECT_EQ(ProMdlTypeGet(nullptr, &type), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Breaches(), Lines{"plug-in misused ProMdlTypeGet: null model handle"});
}

}  // namespace
}  // namespace wb
