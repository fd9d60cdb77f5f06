// Looks up sheets and views of drawings, and turns places between sheet and screen.
#include "workbench/api/drawing/drawing_shared.h"

namespace wb {

Sheet& SheetAt(const Call& call, DrawingContent& drawing, int number) {
  Sheet* const sheet = FindSheet(drawing, number);
  if (sheet == nullptr) call.Fail("the drawing has no sheet " + std::to_string(number));
  return *sheet;
}

std::string SheetIn::Describe() const {
  return DescribeArgument(drawing) + ", " + DescribeArgument(number);
}

SheetPlace SheetIn::Look(const Call& call) const {
  const DrawingPlace at = WholeDrawingIn{{drawing}}.Look(call);
  return {{at.model, at.content}, SheetAt(call, at.content, number), number};
}

std::string DrawingViewIn::Describe() const {
  return DescribeArgument(drawing) + ", " + DescribeArgument(static_cast<const void*>(handle));
}

ViewPlace DrawingViewIn::Look(const Call& call) const {
  const DrawingPlace at = WholeDrawingIn{{drawing}}.Look(call);
  const HandleTable::Found found = call.Look(handle, HandleKind::kView);
  if (found.object != &at.model) call.Fail("a view of another drawing");
  DrawingView* const view = at.content.views.Find(found.id);
  if (view == nullptr) call.Fail("stale view handle (its object is gone)");
  return {{at.model, at.content}, *view};
}

ProView ViewHandle(const Call& call, Model& drawing, int id) {
  return static_cast<ProView>(call.host.handles.GiveInside(HandleKind::kView, &drawing, id));
}

SheetPoint FromHost(const Call& call, const Sheet& sheet, const double* point) {
  const SheetPoint given = {point[0], point[1]};
  return call.host.habits.view_places_are_on_the_screen ? OnSheet(sheet, given) : given;
}

SheetPoint ToHost(const Call& call, const Sheet& sheet, const SheetPoint& point) {
  return call.host.habits.view_places_are_on_the_screen ? OnScreen(sheet, point) : point;
}

}  // namespace wb
