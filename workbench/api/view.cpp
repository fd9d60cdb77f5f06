// Host functions for what the windows of models show: their view matrices.
#include "workbench/api/matrix.h"
#include "workbench/host/arguments.h"

namespace wb {
namespace {

// A model and its current view: fails for one that no window shows.
struct ShownModelIn : ModelIn {
  ProView view;
  std::string Describe() const {
    return ModelIn::Describe() + ", " + DescribeArgument(static_cast<const void*>(view));
  }
  Model* Look(const Call& call) const {
    Model& model = ModelIn::Look(call);
    if (view != nullptr) throw NotModelled{"a view other than the current one"};
    return call.host.session.FindWindowOf(model) == nullptr ? nullptr : &model;
  }
};

// The screen axis with a number of the host's.
ScreenAxis AxisAt(const Call& call, int number) {
  const bool from_one = call.host.habits.rotation_axes_count_from_one;
  const int place = from_one ? number - 1 : number;
  if (place >= 0 && place <= 2) return static_cast<ScreenAxis>(place);
  if (from_one) throw RefusedByHabit{PRO_TK_BAD_INPUTS};
  call.Fail("rotation axis " + std::to_string(number));
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProViewMatrixGet(ProMdl model, ProView view, ProMatrix matrix) {
  return Crossing(__func__, ShownModelIn{{model}, view}, OutMatrix{matrix})
      .Run([](const Model* shown, MatrixPlace place) {
        if (shown == nullptr) return PRO_TK_BAD_CONTEXT;
        place = shown->view;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProViewMatrixSet(ProMdl model, ProView view, ProMatrix matrix) {
  return Crossing(__func__, ShownModelIn{{model}, view}, MatrixIn{matrix})
      .Run([](const Call& call, Model* shown, const Placement& wanted) {
        if (shown == nullptr) return PRO_TK_BAD_CONTEXT;
        const bool any_scale = call.host.habits.scaled_view_matrix_is_taken;
        if (!any_scale && !IsRotation(AxesOf(wanted))) return PRO_TK_INVALID_MATRIX;
        shown->view = wanted;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProViewRotate(ProMdl model, ProView view, ProRotationAxis axis, double angle) {
  return Crossing(__func__, ShownModelIn{{model}, view}, axis, angle)
      .Run([](const Call& call, Model* shown, ProRotationAxis number, double degrees) {
        if (shown == nullptr) return PRO_TK_BAD_CONTEXT;
        const double sense = call.host.habits.view_rotates_the_other_way ? -1 : 1;
        const Rotation turn = TurnAbout(AxisAt(call, number), sense * degrees);
        SetAxes(shown->view, Turned(AxesOf(shown->view), turn));
        return PRO_TK_NO_ERROR;
      });
}
