// Windows and what they show, and the views of the models in them.
#include "tests/workbench/api/drawing_contract.h"

namespace wb {
namespace {

TEST_F(HostContract, WindowsShowWhatIsDisplayed) {
  ProMdl current = nullptr;
  int window = 0;
  ProName name = L"lid";
  Check({
      {"none yet", [&] { return ProWindowCurrentGet(&window); }, PRO_TK_E_NOT_FOUND},
      {"unknown", [&] { return ProWindowActivate(9); }, PRO_TK_BAD_INPUTS,
       "ProWindowActivate: there is no window 9"},
      {"displayed", [&] { return ProMdlDisplay(box_->handle); }, PRO_TK_NO_ERROR},
      {"in the same window", [&] { return ProMdlDisplay(lid_->handle); }, PRO_TK_NO_ERROR},
      {"current", [&] { return ProMdlCurrentGet(&current); }, PRO_TK_NO_ERROR},
      {"of no assembly", [&] { return ProObjectwindowCreate(name, PRO_ASSEMBLY, &window); },
       PRO_TK_E_NOT_FOUND},
  });
  EXPECT_EQ(current, lid_->handle);
  EXPECT_EQ(host_.session.windows().size(), 1u);
}

std::string Text(const ProMatrix matrix) {
  return FactText(std::vector<double>(matrix[0], matrix[3] + 4));
}

TEST_F(DrawingContract, ViewMatricesAreThoseOfModelsInAWindow) {
  ProMatrix matrix = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {5, 6, 7, 1}};
  ProMatrix scaled = {{2, 0, 0, 0}, {0, 2, 0, 0}, {0, 0, 2, 0}, {0, 0, 0, 1}};
  const ProMdl model = plate_->handle;
  Check({
      {"no window", [&] { return ProViewMatrixGet(model, nullptr, matrix); }, PRO_TK_BAD_CONTEXT},
      {"shown", [&] { return ProMdlDisplay(model); }, PRO_TK_NO_ERROR},
      {"scaled", [&] { return ProViewMatrixSet(model, nullptr, scaled); }, PRO_TK_INVALID_MATRIX},
      {"set", [&] { return ProViewMatrixSet(model, nullptr, matrix); }, PRO_TK_NO_ERROR},
      {"turned", [&] { return ProViewRotate(model, nullptr, PRO_X_ROTATION, 90); },
       PRO_TK_NO_ERROR},
      {"and again", [&] { return ProViewRotate(model, nullptr, PRO_Z_ROTATION, 90); },
       PRO_TK_NO_ERROR},
      {"about what",
       [&] { return ProViewRotate(model, nullptr, static_cast<ProRotationAxis>(3), 90); },
       PRO_TK_BAD_INPUTS, "ProViewRotate: rotation axis 3"},
      {"read", [&] { return ProViewMatrixGet(model, nullptr, matrix); }, PRO_TK_NO_ERROR},
  });
  // x of the model points up, y to who looks, z to the right.
  EXPECT_EQ(Text(matrix), "0 1 0 0 0 0 1 0 1 0 0 0 5 6 7 1");
  host_.habits.view_rotates_the_other_way = host_.habits.rotation_axes_count_from_one = true;
  EXPECT_EQ(ProViewRotate(model, nullptr, PRO_X_ROTATION, 90), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProViewRotate(model, nullptr, PRO_Y_ROTATION, 90), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProViewMatrixGet(model, nullptr, matrix), PRO_TK_NO_ERROR);
  EXPECT_EQ(Text(matrix), "0 0 -1 0 0 1 0 0 1 0 0 0 5 6 7 1");
  EXPECT_EQ(Breaches(), Lines());
  host_.habits.scaled_view_matrix_is_taken = true;
  EXPECT_EQ(ProViewMatrixSet(model, nullptr, scaled), PRO_TK_NO_ERROR);
}

TEST_F(DrawingContract, TheFirstWindowIsZeroAndTheCurrentOneNeedNotBeTheActiveOne) {
  int window = -1;
  ProName name = L"plate";
  ProMdl current = nullptr;
  EXPECT_EQ(ProMdlWindowGet(drw_->handle, &window), PRO_TK_NO_ERROR);
  EXPECT_EQ(window, 0);
  EXPECT_EQ(ProMdlWindowGet(plate_->handle, &window), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(ProWindowActivate(0), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProObjectwindowCreate(name, PRO_PART, &window), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProWindowCurrentSet(window), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProMdlCurrentGet(&current), PRO_TK_NO_ERROR);
  EXPECT_EQ(current, plate_->handle);
  EXPECT_EQ(host_.session.active_window(), 0);
}

}  // namespace
}  // namespace wb
