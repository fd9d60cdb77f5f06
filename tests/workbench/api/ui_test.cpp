// Dialogs by name, and their fields by kind.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

constexpr const char* kFields = R"((Dialog Fields
    (Components (InputPanel name) (OptionMenu kind) (RadioGroup range)
                (PushButton Ok))
    (Resources
        (.Label "Fields")
        (.Layout (Grid (Rows 0 0 0 0) (Cols 1) name kind range Ok))
        (kind.Names "text" "number") (kind.SelectedNames "text")
        (range.Names "part" "assembly") (range.SelectedNames "part")
        (name.MaxLen 5)
        (Ok.Label "OK")
    )
)
)";

TEST_F(HostContract, DialogsAreKnownByNameAndTheirFieldsByKind) {
  WriteFile("text/resource/Fields.res", kFields);
  char sphere[] = "sphere";
  char* sphere_name[] = {sphere};
  wchar_t short_text[] = L"abcde";
  wchar_t* text = nullptr;
  const char* const dialog = "Fields";
  Check({
      {"no resource", [&] { return ProUIDialogCreate("None", "None"); }, PRO_TK_E_NOT_FOUND},
      {"created", [&] { return ProUIDialogCreate(dialog, dialog); }, PRO_TK_NO_ERROR},
      {"twice", [&] { return ProUIDialogCreate(dialog, dialog); }, PRO_TK_E_FOUND},
      {"ended before it was shown", [&] { return ProUIDialogExit(dialog, 0); }, PRO_TK_BAD_INPUTS,
       "ProUIDialogExit: the dialog is not active"},
      {"typed", [&] { return ProUIInputpanelValueSet(dialog, "name", short_text); },
       PRO_TK_NO_ERROR},
      {"no component", [&] { return ProUIInputpanelValueSet(dialog, "title", short_text); },
       PRO_TK_BAD_INPUTS, "ProUIInputpanelValueSet: the dialog has no component \"title\""},
      {"another kind", [&] { return ProUIInputpanelValueSet(dialog, "kind", short_text); },
       PRO_TK_BAD_INPUTS, "ProUIInputpanelValueSet: component \"kind\" is of another kind"},
      {"no item", [&] { return ProUIOptionmenuValueSet(dialog, "kind", short_text); },
       PRO_TK_E_NOT_FOUND},
      {"no button",
       [&] { return ProUIRadiogroupSelectednamesSet(dialog, "range", 1, sphere_name); },
       PRO_TK_E_NOT_FOUND},
      {"no choice",
       [&] { return ProUIRadiogroupSelectednamesSet(dialog, "range", 0, sphere_name); },
       PRO_TK_BAD_INPUTS, "ProUIRadiogroupSelectednamesSet: a radio group takes one name"},
      {"read", [&] { return ProUIInputpanelValueGet(dialog, "name", &text); }, PRO_TK_NO_ERROR},
      {"freed", [&] { return ProWstringFree(text); }, PRO_TK_NO_ERROR},
      {"twice", [&] { return ProWstringFree(text); }, PRO_TK_BAD_INPUTS,
       "ProWstringFree: wide text used after it was freed"},
      {"destroyed", [&] { return ProUIDialogDestroy(dialog); }, PRO_TK_NO_ERROR},
  });
}

TEST_F(HostContract, WhatAChoiceAnswersIsAHabit) {
  WriteFile("text/resource/Choices.res",
            "(Dialog Choices\n  (Components (OptionMenu kind) (RadioGroup range))\n  (Resources\n"
            "    (.Layout (Grid (Rows 0 0) (Cols 1) kind range))\n"
            "    (kind.Names \"text\" \"number\") (kind.Labels \"Text\" \"Number\")\n"
            "    (kind.SelectedNames \"number\") (range.Names \"part\" \"assembly\")\n  )\n)\n");
  const char* const dialog = "Choices";
  ASSERT_EQ(ProUIDialogCreate(dialog, dialog), PRO_TK_NO_ERROR);
  const auto kind = [&] {
    wchar_t* text = nullptr;
    EXPECT_EQ(ProUIOptionmenuValueGet(dialog, "kind", &text), PRO_TK_NO_ERROR);
    const std::wstring answer = text == nullptr ? L"" : text;
    ProWstringFree(text);
    return answer;
  };
  const auto choices = [&] {
    int count = -1;
    char** names = nullptr;
    const ProError status = ProUIRadiogroupSelectednamesGet(dialog, "range", &count, &names);
    EXPECT_EQ(count, 0);
    if (names != nullptr) ProStringarrayFree(names, count);
    return status;
  };
  EXPECT_EQ(kind(), L"number");
  EXPECT_EQ(choices(), PRO_TK_E_NOT_FOUND);
  host_.habits.option_menu_answers_label = true;
  host_.habits.radio_without_choice_succeeds = true;
  EXPECT_EQ(kind(), L"Number");
  EXPECT_EQ(choices(), PRO_TK_NO_ERROR);
}

}  // namespace
}  // namespace wb
