// The tables of facts of drawings and formats.
#include "workbench/session/fact_traits.h"
#include "workbench/session/model_facts.h"

namespace wb {

template <>
std::span<const EnumerationWord<ViewKind>> WordsOf() {
  static constexpr EnumerationWord<ViewKind> kWords[] = {
      {ViewKind::kGeneral, "general"},     {ViewKind::kProjection, "projection"},
      {ViewKind::kAuxiliary, "auxiliary"}, {ViewKind::kDetail, "detail"},
      {ViewKind::kRevolved, "revolved"},   {ViewKind::kCopyAndAlign, "copy_and_align"},
      {ViewKind::kFlat, "flat"},
  };
  return kWords;
}

template <>
std::span<const EnumerationWord<ViewSide>> WordsOf() {
  static constexpr EnumerationWord<ViewSide> kWords[] = {
      {ViewSide::kNone, "none"},   {ViewSide::kLeft, "left"},   {ViewSide::kRight, "right"},
      {ViewSide::kAbove, "above"}, {ViewSide::kBelow, "below"},
  };
  return kWords;
}

template <>
std::span<const EnumerationWord<DisplayStyle>> WordsOf() {
  static constexpr EnumerationWord<DisplayStyle> kWords[] = {
      {DisplayStyle::kDefault, "default"},        {DisplayStyle::kWireframe, "wireframe"},
      {DisplayStyle::kHiddenLine, "hidden_line"}, {DisplayStyle::kNoHidden, "no_hidden"},
      {DisplayStyle::kShaded, "shaded"},
  };
  return kWords;
}

template <>
std::span<const EnumerationWord<ToleranceType>> WordsOf() {
  static constexpr EnumerationWord<ToleranceType> kWords[] = {
      {ToleranceType::kNominal, "nominal"},
      {ToleranceType::kLimits, "limits"},
      {ToleranceType::kPlusMinus, "plus_minus"},
      {ToleranceType::kSymmetric, "symmetric"},
      {ToleranceType::kSymmetricSuperscript, "symmetric_superscript"},
  };
  return kWords;
}

template <>
const RecordType& RecordTypeOf<ModelScale>() {
  static constexpr FactRow kFacts[] = {
      Fact<&ModelScale::name>("name", InFile::kRequired),
      Fact<&ModelScale::scale>("scale", InFile::kRequired),
  };
  static const RecordType kType = TypeWith<ModelScale>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<Sheet>() {
  static constexpr FactRow kFacts[] = {
      Fact<&Sheet::size>("size", InFile::kRequired), Fact<&Sheet::scale>("scale", InFile::kAlways),
      Fact<&Sheet::transform>("transform"),          Fact<&Sheet::format>("format"),
      Fact<&Sheet::format_sheet>("format_sheet"),    Fact<&Sheet::format_shown>("format_shown"),
  };
  static constexpr ListRow kLists[] = {List<&Sheet::scales>("scales")};
  static const RecordType kType = TypeWith<Sheet>(kFacts, kLists);
  return kType;
}

template <>
const RecordType& RecordTypeOf<DrawnModel>() {
  static constexpr FactRow kFacts[] = {Fact<&DrawnModel::link>("model", InFile::kRequired)};
  static const RecordType kType = TypeWith<DrawnModel>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<DrawingView>() {
  static constexpr FactRow kFacts[] = {
      Fact<&DrawingView::id>("id", InFile::kRequired),
      Fact<&DrawingView::kind>("kind", InFile::kAlways),
      Fact<&DrawingView::sheet>("sheet"),
      Fact<&DrawingView::shows>("model"),
      Fact<&DrawingView::parent>("parent"),
      Fact<&DrawingView::side>("side"),
      Fact<&DrawingView::orientation>("orientation"),
      Fact<&DrawingView::own_scale>("own_scale"),
      Fact<&DrawingView::scale>("scale"),
      Fact<&DrawingView::exploded>("exploded"),
      Fact<&DrawingView::place>("place", InFile::kAlways),
      Fact<&DrawingView::display, &ViewDisplay::style>("style"),
      Fact<&DrawingView::display, &ViewDisplay::quilt_hlr>("quilt_hlr"),
      Fact<&DrawingView::display, &ViewDisplay::tangent_edges>("tangent_edges"),
      Fact<&DrawingView::display, &ViewDisplay::cable>("cable"),
      Fact<&DrawingView::display, &ViewDisplay::concept_model>("concept_model"),
      Fact<&DrawingView::display, &ViewDisplay::weld_xsec>("weld_xsec"),
      Fact<&DrawingView::outline>("outline"),
  };
  static const RecordType kType = TypeWith<DrawingView>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<DrawingCell>() {
  static constexpr FactRow kFacts[] = {
      Fact<&DrawingCell::row>("row", InFile::kAlways),
      Fact<&DrawingCell::column>("column", InFile::kAlways),
      Fact<&DrawingCell::text>("text", InFile::kRequired),
  };
  static const RecordType kType = TypeWith<DrawingCell>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<DrawingTable>() {
  static constexpr FactRow kFacts[] = {
      Fact<&DrawingTable::id>("id", InFile::kRequired),
      Fact<&DrawingTable::format>("format"),
      Fact<&DrawingTable::segments>("segments"),
      Fact<&DrawingTable::place>("place"),
      Fact<&DrawingTable::widths>("widths"),
      Fact<&DrawingTable::heights>("heights"),
  };
  static constexpr ListRow kLists[] = {List<&DrawingTable::cells>("cells")};
  static const RecordType kType = TypeWith<DrawingTable>(kFacts, kLists);
  return kType;
}

template <>
const RecordType& RecordTypeOf<Dimension>() {
  static constexpr FactRow kFacts[] = {
      Fact<&Dimension::id>("id", InFile::kRequired),
      Fact<&Dimension::sheet>("sheet"),
      Fact<&Dimension::view>("view"),
      Fact<&Dimension::place>("place"),
      Fact<&Dimension::value>("value", InFile::kAlways),
      Fact<&Dimension::text>("text"),
      Fact<&Dimension::tolerance>("tolerance"),
      Fact<&Dimension::upper>("upper"),
      Fact<&Dimension::lower>("lower"),
      Fact<&Dimension::tolerance_table>("tolerance_table"),
      Fact<&Dimension::locked>("locked"),
  };
  static const RecordType kType = TypeWith<Dimension>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<SheetNote>() {
  static constexpr FactRow kFacts[] = {
      Fact<&SheetNote::id>("id", InFile::kRequired),
      Fact<&SheetNote::sheet>("sheet"),
      Fact<&SheetNote::place>("place"),
      Fact<&SheetNote::text>("text", InFile::kAlways),
  };
  static const RecordType kType = TypeWith<SheetNote>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<DrawingContent>() {
  static constexpr FactRow kFacts[] = {
      Fact<&DrawingContent::shows>("drawing_of"),
      Fact<&DrawingContent::current_sheet>("current_sheet"),
      Fact<&DrawingContent::template_errors>("template_errors"),
  };
  static constexpr ListRow kLists[] = {
      List<&DrawingContent::models>("models"),         List<&DrawingContent::sheets>("sheets"),
      List<&DrawingContent::views>("views"),           List<&DrawingContent::tables>("tables"),
      List<&DrawingContent::dimensions>("dimensions"), List<&DrawingContent::notes>("notes"),
  };
  static const RecordType kType = TypeWith<DrawingContent>(kFacts, kLists);
  return kType;
}

template <>
const RecordType& RecordTypeOf<FormatSheet>() {
  static constexpr FactRow kFacts[] = {Fact<&FormatSheet::size>("size", InFile::kRequired)};
  static constexpr ListRow kLists[] = {List<&FormatSheet::tables>("tables")};
  static const RecordType kType = TypeWith<FormatSheet>(kFacts, kLists);
  return kType;
}

template <>
const RecordType& RecordTypeOf<FormatContent>() {
  static constexpr ListRow kLists[] = {List<&FormatContent::sheets>("sheets")};
  static const RecordType kType = TypeWith<FormatContent>({}, kLists);
  return kType;
}

}  // namespace wb
