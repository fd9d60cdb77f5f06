// What a drawing and a drawing format hold: sheets, views, tables, dimensions, notes. What follows
// from them, such as where a view's outline is, stands in drawing_views.h.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/numbers.h"
#include "workbench/session/item_list.h"
#include "workbench/session/model_link.h"
#include "workbench/session/rotation.h"

namespace wb {

// In millimetres.
struct SheetSize {
  const char* name;
  double width;
  double height;
};
// A4 stands upright, A4H lies. Null for a size that has no measures here.
const SheetSize* FindSheetSize(std::string_view name);

using SheetPoint = std::array<double, 2>;
// Lower left and upper right corner: x1, y1, x2, y2.
using Outline = std::array<double, 4>;

// Values are the host's numbers of view types.
enum class ViewKind {
  kGeneral = PRO_VIEW_GENERAL,
  kProjection = PRO_VIEW_PROJECTION,
  kAuxiliary = PRO_VIEW_AUXILIARY,
  kDetail = PRO_VIEW_DETAIL,
  kRevolved = PRO_VIEW_REVOLVE,
  kCopyAndAlign = PRO_VIEW_COPY_AND_ALIGN,
  kFlat = PRO_VIEW_OF_FLAT_TYPE,
};

// Where a projection lies beside its parent.
enum class ViewSide { kNone, kLeft, kRight, kAbove, kBelow };

// Values are the host's numbers of display styles.
enum class DisplayStyle {
  kDefault = PRO_DISPSTYLE_DEFAULT,
  kWireframe = PRO_DISPSTYLE_WIREFRAME,
  kHiddenLine = PRO_DISPSTYLE_HIDDEN_LINE,
  kNoHidden = PRO_DISPSTYLE_NO_HIDDEN,
  kShaded = PRO_DISPSTYLE_SHADED,
};

struct ViewDisplay {
  DisplayStyle style = DisplayStyle::kDefault;
  bool quilt_hlr = false;
  int tangent_edges = 0;
  int cable = 0;
  bool concept_model = false;
  bool weld_xsec = false;
};

struct DrawingView {
  int id = 0;
  ViewKind kind = ViewKind::kGeneral;
  int sheet = kFirstSheet;
  std::optional<ModelLink> shows{};  // none: what the drawing shows
  int parent = 0;                    // id of a view; 0: none
  ViewSide side = ViewSide::kNone;
  Rotation orientation = kNoRotation;
  bool own_scale = false;  // otherwise its parent's, or that of its sheet for its model
  double scale = 1.0;
  bool exploded = false;
  SheetPoint place{};  // the middle of its outline
  ViewDisplay display{};
  // As the last regeneration left it; all zero: never regenerated.
  Outline outline{};
};

struct DrawingCell {
  int row = 1;
  int column = 1;
  std::string text{};
};

// Rows count from the top, columns from the left; `place` is the upper left corner.
struct DrawingTable {
  int id = 0;
  std::string format{};             // the format it came with, "frame.frm"; empty: none
  std::vector<int> segments = {1};  // the sheet of each segment
  SheetPoint place{};
  std::vector<double> widths{};
  std::vector<double> heights{};
  std::vector<DrawingCell> cells{};
};

// Values are the host's numbers of tolerance types.
enum class ToleranceType {
  kNominal = PRO_TOL_DEFAULT,
  kLimits = PRO_TOL_LIMITS,
  kPlusMinus = PRO_TOL_PLUS_MINUS,
  kSymmetric = PRO_TOL_PLUS_MINUS_SYM,
  kSymmetricSuperscript = PRO_TOL_PLUS_MINUS_SYM_SUPER,
};

struct Dimension {
  int id = 0;
  int sheet = kFirstSheet;
  int view = 0;  // id of the view that shows it; 0: none
  SheetPoint place{};
  double value = 0;
  // Lines parted by line breaks; empty: nobody has changed it.
  std::string text{};
  ToleranceType tolerance = ToleranceType::kNominal;
  double upper = 0;
  double lower = 0;  // a positive amount below
  int tolerance_table = kNoToleranceTable;
  bool locked = false;  // it refuses every change
};

struct SheetNote {
  int id = 0;
  int sheet = kFirstSheet;
  SheetPoint place{};
  std::string text{};
};

// The scale of a sheet for one of the drawing's models, "pump.asm".
struct ModelScale {
  std::string name;
  double scale = 1.0;
};

struct Sheet {
  std::string size = "A4";
  double scale = 1.0;  // for models that have none of their own below
  ItemList<ModelScale> scales{};
  Placement transform = kIdentityPlacement;  // from the screen to the sheet
  std::string format{};                      // "frame.frm"; empty: none
  int format_sheet = kFirstSheet;
  bool format_shown = true;
};

struct DrawnModel {
  ModelLink link;
};

struct DrawingContent {
  std::optional<ModelLink> shows;  // the current model
  // In the order of adding; the current one stands before them when it is none of them.
  std::vector<DrawnModel> models;
  int current_sheet = kFirstSheet;
  std::vector<Sheet> sheets;
  ItemList<DrawingView> views;
  ItemList<DrawingTable> tables;
  ItemList<Dimension> dimensions;
  ItemList<SheetNote> notes;
  int template_errors = 0;  // a drawing made of this one comes with so many errors
};

struct FormatSheet {
  std::string size = "A4";
  ItemList<DrawingTable> tables{};
};

struct FormatContent {
  std::vector<FormatSheet> sheets;
};

// Null for no such sheet; sheets count from 1.
Sheet* FindSheet(DrawingContent& drawing, int number);
const Sheet* FindSheet(const DrawingContent& drawing, int number);

// The models of a drawing that are in session, in the order of adding.
std::vector<Model*> DrawnModels(const DrawingContent& drawing);
bool IsDrawn(const DrawingContent& drawing, const Model& model);
void ShowModel(DrawingContent& drawing, const ModelLink& model);

// A drawing of one model, made of another one: its sheets, tables and notes.
DrawingContent MadeOf(const DrawingContent& pattern, const ModelLink& model);

// The scale of a sheet for a model.
double SheetScale(const Sheet& sheet, const ModelName& model);
void SetSheetScale(Sheet& sheet, const ModelName& model, double scale);

// A point of the screen on the sheet, by the sheet's transform, and the way back.
SheetPoint OnSheet(const Sheet& sheet, const SheetPoint& on_screen);
SheetPoint OnScreen(const Sheet& sheet, const SheetPoint& on_sheet);

// Puts a format's sheet on a sheet of the drawing, in place of the format before; tables of that
// one stay. Sheets 0 and 1 of a format are both its first one. False: it has no such sheet.
bool PlaceFormat(DrawingContent& drawing, int sheet, const ModelName& format,
                 const FormatContent& content, int format_sheet);

}  // namespace wb
