// Makes the views and puts them in their places.
#include "drawing/create/twe_views_sheet.h"

#include <array>
#include <optional>

#include "drawing/create/sheet_view.h"
#include "drawing/create/twe_views_rules.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/text/text.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

constexpr double kMainViewTurn = 90.0;
// The model as seen from the left and above.
constexpr double kAboutVertical = -45.0;
constexpr double kAboutHorizontal = 35.0;

// Why there is no main view, in the host's word, for the failures that it explains.
void ShowNoView(ProError status) {
  constexpr ProError kExplained[] = {PRO_TK_BAD_INPUTS, PRO_TK_CRE_VIEW_BAD_SHEET,
                                     PRO_TK_CRE_VIEW_BAD_MODEL, PRO_TK_CRE_VIEW_BAD_EXPLODE,
                                     PRO_TK_GENERAL_ERROR};
  for (const ProError explained : kExplained) {
    if (status == explained) return ShowShortMessage(FromAnsi(StatusName(status)));
  }
}

// One set of views: their places so far. A view that could not be made has none, and neither has
// what stands beside it.
class ViewSet {
 public:
  // `style` is given to each view as it is made; nothing leaves them as they come.
  ViewSet(ProDrawing drawing, ProSolid solid, std::optional<ProDisplayStyle> style)
      : drawing_(drawing), solid_(solid), style_(style) {}

  std::optional<SheetBox>& At(SetView view) { return boxes_[static_cast<size_t>(view)]; }
  const std::optional<SheetBox>& pictorial() const { return pictorial_; }

  // The main view must have its place.
  void MakeOthers(const Matrix& orientation) {
    const SheetPoint centre = At(SetView::kMain)->Centre();
    for (const ProjectionRow& row : Projections()) MakeProjection(row, centre);
    if (At(SetView::k1)) MakePictorial(orientation, *At(SetView::k1));
  }

  // A projection needs the view that it is taken from.
  void set_main_view(ProView view) { views_[static_cast<size_t>(SetView::kMain)] = view; }

 private:
  void MakeProjection(const ProjectionRow& row, SheetPoint centre) {
    const auto& parent = At(row.parent);
    ProView const parent_view = views_[static_cast<size_t>(row.parent)];
    if (!parent || parent_view == nullptr) return;
    const SheetPoint point = ProjectionPoint(row.side, *parent, centre);
    Pro3dPnt position = {point.x, point.y, 0};
    ProView view = nullptr;
    const ProError status =
        ProDrawingProjectedviewCreate(drawing_, parent_view, PRO_B_FALSE, position, &view);
    if (!Ok(status) || view == nullptr) {
      LogFailure(std::string("ProDrawingProjectedviewCreate answered ") + StatusName(status));
      return;
    }
    views_[static_cast<size_t>(row.view)] = view;
    At(row.view) =
        Settle(view, [&](const SheetBox& made) { return ProjectionMove(row.side, *parent, made); });
    if (style_) ShowAs(drawing_, view, *style_);
  }

  void MakePictorial(const Matrix& orientation, const SheetBox& view1) {
    const ProDisplayStyle style = style_.value_or(PRO_DISPSTYLE_NO_HIDDEN);
    GeneralView pictorial(drawing_, solid_, PictorialPoint(view1), orientation);
    pictorial.Make();
    pictorial.Turn(SheetAxis::kVertical, kAboutVertical);
    pictorial.Turn(SheetAxis::kHorizontal, kAboutHorizontal);
    if (pictorial.view() == nullptr) return;
    ShowAs(drawing_, pictorial.view(), style);
    pictorial_ = Settle(pictorial.view(),
                        [&](const SheetBox& turned) { return PictorialMove(view1, turned); });
    if (style_) ShowAs(drawing_, pictorial.view(), style);
  }

  // Moves a view as its outline wants it and regenerates it. Its outline then, which is that before
  // the move, moved along, where the host tells it no longer.
  template <typename MoveOf>
  std::optional<SheetBox> Settle(ProView view, MoveOf move_of) {
    const auto made = OutlineOf(drawing_, view);
    if (made) MoveView(drawing_, view, move_of(*made));
    RegenerateView(drawing_, view);
    const auto settled = OutlineOf(drawing_, view);
    if (settled || !made) return settled;
    return MovedBy(*made, move_of(*made));
  }

  ProDrawing drawing_;
  ProSolid solid_;
  std::optional<ProDisplayStyle> style_;
  std::array<ProView, kProjectedViews + 1> views_ = {};
  std::array<std::optional<SheetBox>, kProjectedViews + 1> boxes_;
  std::optional<SheetBox> pictorial_;
};

void ShowAllAs(ProDrawing drawing, ProDisplayStyle style) {
  HostArray<ProView> views;
  ProError status = ProDrawingViewsCollect(drawing, views.put());
  const auto count = ToldArraySize(views.get());
  if (Ok(status) && !count) status = PRO_TK_GENERAL_ERROR;
  if (!Ok(status)) return LogFailure(drawing, "ProDrawingViewsCollect", status);
  for (int i = 0; i < *count; ++i) ShowAs(drawing, views[i], style);
}

void MakeSecondSet(ProDrawing drawing, ProMdl model, const Matrix& orientation, ViewSet& first) {
  const SheetBox& main = *first.At(SetView::kMain);
  const SheetPoint point =
      SecondMainViewPoint(main, first.At(SetView::k3).value_or(main),
                          first.At(SetView::k5).value_or(main), first.pictorial().value_or(main));
  GeneralView second_main(drawing, model, point, orientation);
  second_main.Make();
  if (second_main.view() == nullptr) return;
  ShowAs(drawing, second_main.view(), PRO_DISPSTYLE_HIDDEN_LINE);
  const SheetPoint centre = main.Centre();
  const SheetBox likely = MovedBy(main, {point.x - centre.x, point.y - centre.y});
  ViewSet second(drawing, model, PRO_DISPSTYLE_HIDDEN_LINE);
  second.At(SetView::kMain) = OutlineOf(drawing, second_main.view()).value_or(likely);
  second.set_main_view(second_main.view());
  second.MakeOthers(orientation);
}

// Makes the main view and lays it as the user wants it. Its place; nothing when there is no main
// view, or when the host does not tell how large it is.
std::optional<SheetBox> LayMainView(ProDrawing drawing, const std::string& direction,
                                    GeneralView& main) {
  main.Make();
  if (main.view() == nullptr) return std::nullopt;
  const auto made = OutlineOf(drawing, main.view());
  if (!made) return std::nullopt;
  const bool turns = MainViewWantsTurn(direction, made->Width(), made->Height());
  if (turns) main.Turn(SheetAxis::kNormal, kMainViewTurn);
  if (main.view() == nullptr) return std::nullopt;
  main.ReadOrientation();
  return OutlineOf(drawing, main.view()).value_or(turns ? QuarterTurned(*made) : *made);
}

}  // namespace

ProError DrawTweViews(ProDrawing drawing, ProMdl model, const Matrix& orientation,
                      const TweViewsWishes& wishes) {
  GeneralView main(drawing, model, kMainViewPoint, orientation);
  ViewSet first(drawing, model, std::nullopt);
  first.At(SetView::kMain) = LayMainView(drawing, wishes.direction, main);
  if (!Ok(main.status())) ShowNoView(main.status());
  if (!first.At(SetView::kMain)) return Ok(main.status()) ? PRO_TK_GENERAL_ERROR : main.status();
  first.set_main_view(main.view());
  first.MakeOthers(main.orientation());
  if (wishes.views == "six-hidden") ShowAllAs(drawing, PRO_DISPSTYLE_HIDDEN_LINE);
  if (wishes.views == "six-nohidden") ShowAllAs(drawing, PRO_DISPSTYLE_NO_HIDDEN);
  if (wishes.views == "twelve") {
    ShowAllAs(drawing, PRO_DISPSTYLE_NO_HIDDEN);
    MakeSecondSet(drawing, model, main.orientation(), first);
  }
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
