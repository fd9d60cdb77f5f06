// Host functions for the views of drawings.
#include "workbench/api/drawing/drawing_shared.h"
#include "workbench/api/drawing/view_display.h"
#include "workbench/api/matrix.h"

namespace wb {
namespace {

// A scale that a view can have.
bool IsScale(double scale) {
  return scale > 0;
}

// Which way a turn by an angle goes; the reference is a word of the host's.
ScreenAxis TurnAxis(const Call& call, const std::string& reference) {
  const bool swapped = call.host.habits.view_turns_about_the_other_axis;
  if (reference == "Normal") return ScreenAxis::kZ;
  if (reference == "Vertical") return swapped ? ScreenAxis::kX : ScreenAxis::kY;
  if (reference == "Horizontal") return swapped ? ScreenAxis::kY : ScreenAxis::kX;
  call.Fail("reference \"" + reference + "\"");
}

Sheet& SheetOf(const Call& call, const ViewPlace& at) {
  return SheetAt(call, at.content, at.view.sheet);
}

Box OutlineBox(const Call& call, const ViewPlace& at) {
  const Outline& outline = at.view.outline;
  const Sheet& sheet = SheetOf(call, at);
  const SheetPoint a = ToHost(call, sheet, {outline[0], outline[1]});
  const SheetPoint b = ToHost(call, sheet, {outline[2], outline[3]});
  return {{std::min(a[0], b[0]), std::min(a[1], b[1]), 0},
          {std::max(a[0], b[0]), std::max(a[1], b[1]), 0}};
}

Placement Inverse(const Placement& placement, double scale) {
  Placement inverse = kIdentityPlacement;
  for (size_t row = 0; row < 3; ++row) {
    for (size_t column = 0; column < 3; ++column) {
      inverse[row][column] = placement[column][row] / (scale * scale);
    }
  }
  for (size_t column = 0; column < 3; ++column) {
    for (size_t k = 0; k < 3; ++k) inverse[3][column] -= placement[3][k] * inverse[k][column];
  }
  return inverse;
}

void DeleteViews(const Call& call, const ViewPlace& at, std::vector<int> ids) {
  ids.push_back(at.view.id);
  for (const int id : ids) {
    call.host.handles.EndInside(HandleKind::kView, &at.model, id);
    at.content.views.Remove(id);
  }
  at.model.modified = true;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProDrawingViewsCollect(ProDrawing drawing, ProView** views) {
  return Crossing(__func__, WholeDrawingIn{{drawing}}, Out(views, "views place"))
      .Run([](const Call& call, const DrawingPlace& at, ProView*& place) {
        std::vector<ProView> handles;
        for (const DrawingView& view : at.content.views) {
          handles.push_back(ViewHandle(call, at.model, view.id));
        }
        return GiveItems(call, handles, place);
      });
}

ProError ProDrawingGeneralviewCreate(ProDrawing drawing, ProSolid solid, int sheet,
                                     ProBoolean is_exploded, wchar_t* exploded_state,
                                     Pro3dPnt position, double scale, ProMatrix orientation,
                                     ProView* view) {
  return Crossing(__func__, WholeDrawingIn{{drawing}}, SolidIn{{solid}}, sheet, is_exploded,
                  DataIn{exploded_state}, PointIn{position, "position"}, scale,
                  MatrixIn{orientation}, Out(view, "view place"))
      .Run([](const Call& call, const DrawingPlace& at, Model& shown, int number,
              ProBoolean exploded, const void* state, const double* point, double wanted,
              const Placement& turned, ProView& place) {
        if (state != nullptr) throw NotModelled{"an exploded state"};
        const Sheet* const on = FindSheet(at.content, number);
        if (on == nullptr) return PRO_TK_CRE_VIEW_BAD_SHEET;
        if (!IsDrawn(at.content, shown)) return PRO_TK_CRE_VIEW_BAD_MODEL;
        if (exploded != PRO_B_FALSE && shown.id.kind != ModelKind::kAssembly) {
          return PRO_TK_CRE_VIEW_BAD_EXPLODE;
        }
        if (!IsScale(wanted) || !IsRotation(AxesOf(turned))) return PRO_TK_BAD_INPUTS;
        DrawingView made;
        made.sheet = number;
        made.shows = ModelLink{shown.id, &shown};
        made.exploded = exploded != PRO_B_FALSE;
        made.place = FromHost(call, *on, point);
        made.own_scale = true;
        made.scale = wanted;
        made.orientation = AxesOf(turned);
        place = ViewHandle(call, at.model, AddView(at.content, std::move(made)));
        at.model.modified = true;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProDrawingProjectedviewCreate(ProDrawing drawing, ProView parent, ProBoolean is_exploded,
                                       Pro3dPnt position, ProView* view) {
  return Crossing(__func__, DrawingViewIn{drawing, parent}, is_exploded,
                  PointIn{position, "position"}, Out(view, "view place"))
      .Run([](const Call& call, const ViewPlace& at, ProBoolean exploded, const double* point,
              ProView& place) {
        if (exploded != PRO_B_FALSE) throw NotModelled{"an exploded projection"};
        const SheetPoint near = FromHost(call, SheetOf(call, at), point);
        const std::optional<int> made = AddProjection(at.content, at.view.id, near);
        if (!made) return PRO_TK_CRE_VIEW_BAD_PARENT;
        place = ViewHandle(call, at.model, *made);
        at.model.modified = true;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProDrawingViewDelete(ProDrawing drawing, ProView view, ProBoolean with_children) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, with_children)
      .Run([](const Call& call, const ViewPlace& at, ProBoolean with_all) {
        std::vector<int> below = ViewsBelow(at.content, at.view.id);
        if (!below.empty() && with_all == PRO_B_FALSE) return PRO_TK_BAD_CONTEXT;
        DeleteViews(call, at, std::move(below));
        return PRO_TK_NO_ERROR;
      });
}

ProError ProDrawingViewMove(ProDrawing drawing, ProView view, ProVector by) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, PointIn{by, "vector"})
      .Run([](const Call& call, const ViewPlace& at, const double* vector) {
        const Sheet& sheet = SheetOf(call, at);
        const double nowhere[] = {0, 0};
        const SheetPoint from = FromHost(call, sheet, nowhere);
        const SheetPoint to = FromHost(call, sheet, vector);
        MoveView(at.content, at.view.id, {to[0] - from[0], to[1] - from[1]});
        at.model.modified = true;
      });
}

ProError ProDrawingViewOrientationFromAngleSet(ProDrawing drawing, ProView view, wchar_t* reference,
                                               ProSelection axis, double angle) {
  return Crossing(__func__, DrawingViewIn{drawing, view},
                  TextIn{reference, PRO_LINE_SIZE, "reference"}, DataIn{static_cast<void*>(axis)},
                  angle)
      .Run([](const Call& call, const ViewPlace& at, const std::string& word, const void* picked,
              double degrees) {
        if (picked != nullptr) throw NotModelled{"a turn about an axis"};
        const ScreenAxis about = TurnAxis(call, word);
        if (call.host.habits.view_turn_is_refused) return PRO_TK_BAD_INPUTS;
        if (at.view.kind != ViewKind::kGeneral) return PRO_TK_INVALID_TYPE;
        const double sense = call.host.habits.view_turns_the_other_way ? -1 : 1;
        TurnView(at.content, at.view.id, TurnAbout(about, sense * degrees));
        at.model.modified = true;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProDrawingViewRegenerate(ProDrawing drawing, ProView view) {
  return Crossing(__func__, DrawingViewIn{drawing, view}).Run([](const ViewPlace& at) {
    RegenerateView(at.content, at.view.id);
  });
}

ProError ProDrawingViewOutlineGet(ProDrawing drawing, ProView view, Pro3dPnt outline[2]) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, OutCorners{outline})
      .Run([](const Call& call, const ViewPlace& at, CornersPlace place) {
        place = OutlineBox(call, at);
      });
}

ProError ProDrawingViewTransformGet(ProDrawing drawing, ProView view, ProBoolean view_to_drawing,
                                    ProMatrix matrix) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, view_to_drawing, OutMatrix{matrix})
      .Run([](const ViewPlace& at, ProBoolean forth, MatrixPlace place) {
        const Placement to_sheet = ViewToDrawing(at.content, at.view);
        const double scale = ScaleInForce(at.content, at.view);
        place = forth != PRO_B_FALSE ? to_sheet : Inverse(to_sheet, scale);
      });
}

ProError ProDrawingViewTypeGet(ProDrawing drawing, ProView view, ProViewType* type) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, Out(type, "type place"))
      .Run([](const ViewPlace& at, ProViewType& place) {
        place = static_cast<ProViewType>(at.view.kind);
      });
}

ProError ProDrawingViewSheetGet(ProDrawing drawing, ProView view, int* sheet) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, Out(sheet, "sheet place"))
      .Run([](const ViewPlace& at, int& place) { place = at.view.sheet; });
}

ProError ProDrawingViewSolidGet(ProDrawing drawing, ProView view, ProSolid* solid) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, Out(solid, "solid place"))
      .Run([](const ViewPlace& at, ProSolid& place) {
        if (!at.view.shows || at.view.shows->model == nullptr) return PRO_TK_E_NOT_FOUND;
        place = at.view.shows->model->handle;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProDrawingViewParentGet(ProDrawing drawing, ProView view, ProView* parent) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, Out(parent, "view place"))
      .Run([](const Call& call, const ViewPlace& at, ProView& place) {
        if (at.content.views.Find(at.view.parent) == nullptr) return PRO_TK_E_NOT_FOUND;
        place = ViewHandle(call, at.model, at.view.parent);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProDrawingViewScaleGet(ProDrawing drawing, ProView view, double* scale) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, Out(scale, "scale place"))
      .Run([](const ViewPlace& at, double& place) { place = ScaleInForce(at.content, at.view); });
}

ProError ProDrawingViewScaleIsUserdefined(ProDrawing drawing, ProView view, ProBoolean* is_own) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, Out(is_own, "answer place"))
      .Run([](const ViewPlace& at, ProBoolean& place) { place = AsBoolean(at.view.own_scale); });
}

ProError ProDrawingViewScaleSet(ProDrawing drawing, ProView view, double scale) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, scale)
      .Run([](const ViewPlace& at, double wanted) {
        if (!IsScale(wanted)) return PRO_TK_BAD_INPUTS;
        if (!at.view.own_scale) return PRO_TK_CANT_MODIFY;
        at.view.scale = wanted;
        at.model.modified = true;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProDrawingViewDisplayGet(ProDrawing drawing, ProView view,
                                  ProDrawingViewDisplay* display) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, Out(display, "display place"))
      .Run([](const Call& call, const ViewPlace& at, ProDrawingViewDisplay& place) {
        FillDisplay(call, at.view.display, place);
      });
}

ProError ProDrawingViewDisplaySet(ProDrawing drawing, ProView view,
                                  ProDrawingViewDisplay* display) {
  return Crossing(__func__, DrawingViewIn{drawing, view}, RecordIn(display, "display record"))
      .Run([](const Call& call, const ViewPlace& at, const ProDrawingViewDisplay& record) {
        const ProError read = ReadDisplay(call, record, at.view.display);
        if (read == PRO_TK_NO_ERROR) at.model.modified = true;
        return read;
      });
}

ProError ProSelectionViewGet(ProSelection selection, ProView* view) {
  return Crossing(__func__, SelectionIn{selection}, Out(view, "view place"))
      .Run([](const Call& call, const PickedItem& picked, ProView& place) {
        DrawingContent* const drawing =
            picked.owner == nullptr ? nullptr : picked.owner->As<DrawingContent>();
        if (drawing == nullptr) return PRO_TK_E_NOT_FOUND;
        const Dimension* const dimension = drawing->dimensions.Find(picked.id);
        const bool of_dimension = picked.type == PRO_DIMENSION && dimension != nullptr;
        const int id = of_dimension ? dimension->view : picked.id;
        const bool shown = of_dimension || picked.type == PRO_VIEW;
        if (!shown || drawing->views.Find(id) == nullptr) return PRO_TK_E_NOT_FOUND;
        place = ViewHandle(call, *picked.owner, id);
        return PRO_TK_NO_ERROR;
      });
}
