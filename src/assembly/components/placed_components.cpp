// Hide states and positions.
#include "assembly/components/placed_components.h"

#include "frame/messages/run_log.h"
#include "toolkit/assembly.h"

namespace qm {
namespace {

using Place = PlacedComponents::Place;

std::optional<bool> IsShown(ProFeature& component) {
  // Neither of the two, should the host answer success without a state.
  auto hidden = static_cast<ProBoolean>(-1);
  const ProError status = ProModelitemIsHidden(&component, &hidden);
  if (Ok(status) && (hidden == PRO_B_TRUE || hidden == PRO_B_FALSE)) return hidden == PRO_B_FALSE;
  LogLeftOut(component, "ProModelitemIsHidden", status);
  return std::nullopt;
}

std::optional<Matrix> PositionOf(ProFeature& component) {
  Matrix matrix;
  const ProError status = ProAsmcompPositionGet(&component, matrix.rows);
  // The last entry of every placement is 1: a success without it has filled nothing in.
  if (Ok(status) && matrix.rows[kAxisCount][kAxisCount] == 1.0) return matrix;
  LogLeftOut(component, "ProAsmcompPositionGet", status);
  return std::nullopt;
}

std::optional<Place> PlaceOf(ProFeature component) {
  const auto is_shown = IsShown(component);
  if (!is_shown) return std::nullopt;
  if (!*is_shown) return Place{false, Identity()};
  const auto matrix = PositionOf(component);
  if (!matrix) return std::nullopt;
  return Place{true, *matrix};
}

}  // namespace

const Place* PlacedComponents::At(int level, size_t component) {
  const auto number = static_cast<size_t>(level);
  if (answers_.size() <= number) answers_.resize(number + 1);
  const auto& components = levels_.at(level);
  if (answers_[number].empty()) answers_[number].resize(components.size());
  Answer& answer = answers_[number][component];
  if (!answer.is_asked) answer = {true, PlaceOf(components[component].feature)};
  return answer.place ? &*answer.place : nullptr;
}

}  // namespace qm
