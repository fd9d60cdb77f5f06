// What of a sheet a command changed: each thing on it beside its like at the other moment.
#pragma once

#include <algorithm>
#include <vector>

namespace wb {

enum class SheetMoment { kBefore, kAfter };

enum class SheetMark { kSame, kChanged, kAdded, kRemoved };

// `others`: the things of the other moment; null: there is nothing to compare with.
template <typename Item>
SheetMark MarkOf(const Item& item, const std::vector<Item>* others, SheetMoment moment) {
  if (others == nullptr) return SheetMark::kSame;
  const auto like = std::ranges::find(*others, item.id, &Item::id);
  if (like != others->end()) return *like == item ? SheetMark::kSame : SheetMark::kChanged;
  return moment == SheetMoment::kBefore ? SheetMark::kRemoved : SheetMark::kAdded;
}

}  // namespace wb
