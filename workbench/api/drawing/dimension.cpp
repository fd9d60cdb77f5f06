// Host functions for the dimensions of drawings.
#include "workbench/api/drawing/drawing_shared.h"

namespace wb {
namespace {

using DimensionPlace = DrawingItemPlace<Dimension>;

DrawingItemIn<Dimension> DimensionIn(const ProDimension* dimension) {
  return {dimension, PRO_DIMENSION, &DrawingContent::dimensions, "dimension"};
}

// What a host stores that takes the places of two numbers for the numbers.
constexpr double kPlaceAsNumber = 6.95e-310;

// Carries out a change of a dimension that takes it.
template <typename Change>
ProError Changed(const DimensionPlace& at, Change change) {
  if (at.item.locked) return PRO_TK_CANT_MODIFY;
  change(at.item);
  at.model.modified = true;
  return PRO_TK_NO_ERROR;
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (size_t from = 0; from <= text.size();) {
    const size_t end = std::min(text.find('\n', from), text.size());
    lines.push_back(text.substr(from, end - from));
    from = end + 1;
  }
  return lines;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProDimensionValueGet(ProDimension* dimension, double* value) {
  return Crossing(__func__, DimensionIn(dimension), Out(value, "value place"))
      .Run([](const DimensionPlace& at, double& place) { place = at.item.value; });
}

ProError ProDimensionSymbolGet(ProDimension* dimension, ProName symbol) {
  return Crossing(__func__, DimensionIn(dimension), OutText{symbol, PRO_NAME_SIZE})
      .Run([](const DimensionPlace& at, TextPlace place) {
        place = "d" + std::to_string(at.item.id);
      });
}

ProError ProDimensionTextGet(ProDimension* dimension, ProLine** text) {
  return Crossing(__func__, DimensionIn(dimension), Out(text, "text place"))
      .Run([](const Call& call, const DimensionPlace& at, ProLine*& place) {
        const bool untouched = at.item.text.empty();
        if (untouched && call.host.habits.untouched_dimension_text_fails) return PRO_TK_E_NOT_FOUND;
        std::vector<std::string> lines = LinesOf(untouched ? "@D" : at.item.text);
        if (untouched && call.host.habits.untouched_dimension_has_no_lines) lines.clear();
        place =
            static_cast<ProLine*>(NewArray(call, static_cast<int>(lines.size()), sizeof(ProLine)));
        for (size_t i = 0; i < lines.size(); ++i) call.CopyText(place[i], PRO_LINE_SIZE, lines[i]);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProDimensionTextSet(ProDimension* dimension, ProLine* text) {
  return Crossing(__func__, DimensionIn(dimension), ArrayIn(text, "text"))
      .Run([](const Call& call, const DimensionPlace& at, std::span<ProLine> given) {
        std::vector<std::string> lines;
        for (const ProLine& line : given) lines.push_back(call.Text(line, PRO_LINE_SIZE, "line"));
        if (lines.empty()) return PRO_TK_BAD_INPUTS;
        return Changed(at, [&](Dimension& changed) { changed.text = Join("\n", lines); });
      });
}

ProError ProDimensionToltypeGet(ProDimension* dimension, ProDimToleranceType* type) {
  return Crossing(__func__, DimensionIn(dimension), Out(type, "type place"))
      .Run([](const DimensionPlace& at, ProDimToleranceType& place) {
        place = static_cast<ProDimToleranceType>(at.item.tolerance);
      });
}

ProError ProDimensionToltypeSet(ProDimension* dimension, ProDimToleranceType type) {
  return Crossing(__func__, DimensionIn(dimension), type)
      .Run([](const DimensionPlace& at, ProDimToleranceType wanted) {
        if (wanted < PRO_TOL_DEFAULT || wanted > PRO_TOL_PLUS_MINUS_SYM_SUPER) {
          return PRO_TK_INVALID_TYPE;
        }
        return Changed(at, [&](Dimension& changed) {
          changed.tolerance = static_cast<ToleranceType>(wanted);
        });
      });
}

ProError ProDimensionTollabelSet(ProDimension* dimension, ProToleranceTable table,
                                 wchar_t* table_name, int column) {
  return Crossing(__func__, DimensionIn(dimension), table, DataIn{table_name}, column)
      .Run([](const DimensionPlace& at, int number, const void* name, int) {
        if (number != kNoToleranceTable || name != nullptr) throw NotModelled{"tolerance tables"};
        return Changed(at, [](Dimension& changed) { changed.tolerance_table = kNoToleranceTable; });
      });
}

ProError ProDimensionToleranceGet(ProDimension* dimension, double* upper, double* lower) {
  return Crossing(__func__, DimensionIn(dimension), Out(upper, "upper place"),
                  Out(lower, "lower place"))
      .Run([](const DimensionPlace& at, double& above, double& below) {
        above = at.item.upper;
        below = at.item.lower;
      });
}

ProError ProDimensionToleranceSet(ProDimension* dimension, double* upper, double* lower) {
  return Crossing(__func__, DimensionIn(dimension), RecordIn(upper, "upper amount"),
                  RecordIn(lower, "lower amount"))
      .Run([](const Call& call, const DimensionPlace& at, double above, double below) {
        if (at.item.tolerance == ToleranceType::kNominal) return PRO_TK_BAD_CONTEXT;
        const bool misread = call.host.habits.tolerances_are_taken_for_numbers;
        return Changed(at, [&](Dimension& changed) {
          changed.upper = misread ? kPlaceAsNumber : above;
          changed.lower = misread ? kPlaceAsNumber : below;
        });
      });
}
