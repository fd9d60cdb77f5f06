// What a dialog resource file may say, and how each mistake in one is told.
#include "workbench/dialog/dialog_resource.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/workbench/error_from.h"
#include "tests/workbench/temporary_folder.h"

namespace wb {
namespace {

constexpr const char* kGoodResource = R"(! comment before the dialog
(Dialog Sample
    (Components
        (SubLayout Target) (RadioGroup Kind) (InputPanel Field) (PushButton Ok) (CheckButton Deep)
    )
    (Resources
        (.Label "say \"hi\"\\now\nthere")  ! comment to the end of the line
        (.DefaultButton "Ok")
        (.Layout (Grid (Rows 1 0) (Cols 1) Target (Grid (Rows 0) (Cols 0 2) (Pos 1 2) Ok)))
        (Target.Layout (Grid (Rows 1 1) (Cols 0 1) Kind Field (Pos 2 2) Deep))
        (Kind.Names "a" "b") (Kind.Labels "甲" "乙") (Kind.SelectedNames "b")
        (Field.Columns 24) (Field.MaxLen 3) (Field.Value "千米") (Deep.Set True)
    )
)
)";

TEST(DialogResource, ReadsComponentsAttributesAndLayout) {
  const DialogResource resource = ParseDialogResource(kGoodResource, "Sample.res");
  EXPECT_EQ(resource.name, "Sample");
  EXPECT_EQ(resource.dialog.Text("Label"), "say \"hi\"\\now\nthere");
  ASSERT_EQ(resource.components.size(), 5u);
  EXPECT_EQ(resource.Find("Kind")->Texts("Labels"), (std::vector<std::string>{"甲", "乙"}));
  EXPECT_EQ(resource.Find("Field")->Number("Columns", 0), 24);
  EXPECT_TRUE(resource.Find("Deep")->Flag("Set", false));
  EXPECT_EQ(resource.Find("Field")->parent, "Target");
  const LayoutCell& deep = resource.Find("Target")->layout.cells[2];
  EXPECT_EQ(deep.component, "Deep");
  EXPECT_EQ(deep.row, 1);
  EXPECT_EQ(deep.column, 1);
  const LayoutGrid& nested = resource.dialog.layout.cells[1].nested.at(0);
  EXPECT_EQ(nested.column_weights, (std::vector<int>{0, 2}));
  EXPECT_EQ(nested.cells[0].column, 1);
}

// A resource of one line a row, so that every mistake below has a line of its own.
std::string ResourceWith(const std::string& components, const std::string& resources) {
  return "(Dialog D\n(Components\n" + components + "\n)(Resources\n" + resources + "\n))";
}

struct BadResource {
  std::string text;
  int line;
  const char* reason;  // a stretch of it
};

const char* const kOneButton = "(PushButton B)";
const char* const kOneRadio = "(RadioGroup R)";
const char* const kPlaceB = "(.Layout (Grid (Rows 1) (Cols 1) B))\n";
const char* const kPlaceR = "(.Layout (Grid (Rows 1) (Cols 1) R))\n";

const BadResource kBadResources[] = {
    {"! nothing\n", 2, "no (Dialog"},
    {"(Dialog D\n(Components", 2, "never closed"},
    {ResourceWith("", "(.Label \"\xC3(\")"), 5, "not UTF-8"},
    {std::string(100000, '('), 1, "nested too deeply"},
    {ResourceWith("(Pushbutton B)", ""), 3, "unknown component kind Pushbutton"},
    {ResourceWith("(PushButton B)\n(Label B)", ""), 4, "declared twice"},
    {ResourceWith(kOneButton, "(C.Label \"x\")"), 5, "C is not declared"},
    {ResourceWith(kOneButton, "(B.Lable \"x\")"), 5, "no attribute Lable"},
    {ResourceWith(kOneButton, "(B.Label \"x\")\n(B.Label \"y\")"), 6, "given twice"},
    {ResourceWith(kOneButton, "(B.Visible Yes)"), 5, "True or False"},
    {ResourceWith("(InputPanel I)", "(I.Columns 12x)"), 5, "number from 1 to 500"},
    {ResourceWith(kOneButton, "(B.Label \"x\")"), 1, "no .Layout"},
    {ResourceWith(kOneButton, "(.Layout (Grid (Rows 1) (Cols 1 1)\nB\nB))"), 7, "placed twice"},
    {ResourceWith("(Label L)\n(PushButton B)", "(.Layout (Grid (Rows 1) (Cols 1) B\nL))"), 7,
     "too many cells for a grid of 1 rows and 1 columns"},
    {ResourceWith("(Label L)\n(PushButton B)",
                  "(.Layout (Grid (Rows 1) (Cols 1 1) B (Pos 1 1)\nL))"),
     7, "already taken"},
    {ResourceWith("(SubLayout S)\n(SubLayout T)",
                  "(.Layout (Grid (Rows 1) (Cols 1)))\n"
                  "(S.Layout (Grid (Rows 1) (Cols 1) T))\n"
                  "(T.Layout (Grid (Rows 1) (Cols 1) S))"),
     3, "S is placed in no layout of the dialog"},
    {ResourceWith(kOneRadio, kPlaceR), 3, "has no buttons"},
    {ResourceWith(kOneRadio, std::string(kPlaceR) + "(R.Names \"a\" \"b\")\n(R.Labels \"x\")"), 7,
     "2 Names but 1 Labels"},
    {ResourceWith(kOneRadio, std::string(kPlaceR) + "(R.Names \"a\")\n(R.SelectedNames \"A\")"), 7,
     "no item named A"},
    {ResourceWith(kOneRadio, std::string(kPlaceR) + "(R.Names \"a\" \"b\")\n"
                                                    "(R.SelectedNames \"a\" \"b\")"),
     7, "one selected item"},
    {ResourceWith("(InputPanel B)", std::string(kPlaceB) + "(B.MaxLen 2)\n(B.Value \"千米数\")"), 7,
     "longer than its MaxLen"},
    {ResourceWith("(Label B)", std::string(kPlaceB) + "(.DefaultButton \"B\")"), 6,
     "no push button"},
};

TEST(DialogResource, MistakesAreToldWithLineAndReason) {
  for (const BadResource& bad : kBadResources) {
    const std::string error = ErrorFrom([&] { ParseDialogResource(bad.text, "bad.res"); });
    ExpectError(error, "bad.res:" + std::to_string(bad.line) + ": ", bad.reason);
  }
}

TEST(DialogResource, FileMustBeNamedAsItsDialogAndMarkedAsUtf8) {
  const TemporaryFolder temporary("dialog_resource_test");
  const std::filesystem::path& folder = temporary.path;
  for (const char* name : {"Sample.res", "Other.res"})
    std::ofstream(folder / name) << "\xEF\xBB\xBF" << kGoodResource;
  EXPECT_EQ(LoadDialogResource(folder / "Sample.res").name, "Sample");
  EXPECT_THROW(LoadDialogResource(folder / "Other.res"), ResourceError);
  EXPECT_THROW(LoadDialogResource(folder / "Missing.res"), ResourceError);
  std::ofstream(folder / "Sample.res") << kGoodResource;  // read in the code page of the system
  EXPECT_THROW(LoadDialogResource(folder / "Sample.res"), ResourceError);
}

}  // namespace
}  // namespace wb
