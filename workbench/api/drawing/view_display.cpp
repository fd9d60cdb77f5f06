// Reads and fills the record of a view's display, field by field in the order that the host has.
#include "workbench/api/drawing/view_display.h"

#include <array>
#include <cstring>
#include <span>
#include <string>

namespace wb {
namespace {

// The fields of the display record as six numbers, in the order that the host has by habit: style,
// quilts, tangent edges, cables, concept model, welds; or the three flags last.
constexpr size_t kDisplayFields = 6;
using DisplayNumbers = std::array<int, kDisplayFields>;
static_assert(sizeof(DisplayNumbers) == sizeof(ProDrawingViewDisplay));
constexpr size_t kUsualOrder[] = {0, 1, 2, 3, 4, 5};
constexpr size_t kFlagsLastOrder[] = {0, 3, 1, 2, 4, 5};
constexpr size_t kFlagFields[] = {1, 4, 5};
constexpr int kLastCableDisplay = 2;

std::span<const size_t> FieldOrder(const Call& call) {
  if (call.host.habits.view_display_has_flags_last) return kFlagsLastOrder;
  return kUsualOrder;
}

DisplayNumbers NumbersOf(const ViewDisplay& display) {
  return {static_cast<int>(display.style), display.quilt_hlr, display.tangent_edges, display.cable,
          display.concept_model,           display.weld_xsec};
}

// What is wrong with them; empty: nothing.
std::string WrongWith(const DisplayNumbers& numbers) {
  if (numbers[0] < 0 || numbers[0] > PRO_DISPSTYLE_SHADED) {
    return "display style " + std::to_string(numbers[0]);
  }
  for (const size_t flag : kFlagFields) {
    if (numbers[flag] != 0 && numbers[flag] != 1) {
      return "a flag that is " + std::to_string(numbers[flag]);
    }
  }
  if (numbers[3] >= 0 && numbers[3] <= kLastCableDisplay) return "";
  return "cable display " + std::to_string(numbers[3]);
}

ViewDisplay DisplayOf(const DisplayNumbers& numbers) {
  ViewDisplay display;
  display.style = static_cast<DisplayStyle>(numbers[0]);
  display.quilt_hlr = numbers[1] != 0;
  display.tangent_edges = numbers[2];
  display.cable = numbers[3];
  display.concept_model = numbers[4] != 0;
  display.weld_xsec = numbers[5] != 0;
  return display;
}

}  // namespace

ProError ReadDisplay(const Call& call, const ProDrawingViewDisplay& record, ViewDisplay& display) {
  DisplayNumbers as_given;
  std::memcpy(as_given.data(), &record, sizeof(record));
  DisplayNumbers numbers;
  const std::span<const size_t> order = FieldOrder(call);
  for (size_t i = 0; i < kDisplayFields; ++i) numbers[i] = as_given[order[i]];
  const std::string wrong = WrongWith(numbers);
  if (wrong.empty()) {
    display = DisplayOf(numbers);
    return PRO_TK_NO_ERROR;
  }
  if (!call.host.habits.view_display_has_flags_last) call.Fail(wrong);
  return PRO_TK_BAD_INPUTS;
}

void FillDisplay(const Call& call, const ViewDisplay& display, ProDrawingViewDisplay& record) {
  const DisplayNumbers numbers = NumbersOf(display);
  DisplayNumbers as_told;
  const std::span<const size_t> order = FieldOrder(call);
  for (size_t i = 0; i < kDisplayFields; ++i) as_told[order[i]] = numbers[i];
  std::memcpy(&record, as_told.data(), sizeof(record));
}

}  // namespace wb
