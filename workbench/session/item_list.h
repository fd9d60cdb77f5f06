// Lists of things inside a model, found by id or by name without a search.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "workbench/base/text.h"

namespace wb {

// What an item is found by: its `id`, or its `name` without case.
template <typename Item>
auto ItemKey(const Item& item) {
  if constexpr (requires { item.id; }) {
    return item.id;
  } else {
    return FoldCase(item.name);
  }
}

// Items in the order in which they were made. Adding may move them, so that nobody keeps the
// address of one; keys stay what they are while an item is in the list.
template <typename Item>
class ItemList {
 public:
  using Key = decltype(ItemKey(std::declval<Item>()));

  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  size_t size() const { return items_.size(); }
  bool empty() const { return items_.empty(); }
  Item& operator[](size_t place) { return items_[place]; }
  const Item& operator[](size_t place) const { return items_[place]; }
  Item& back() { return items_.back(); }
  const Item& back() const { return items_.back(); }

  // The first item with this key stays the one that is found.
  Item& Add(Item item) {
    places_.emplace(ItemKey(item), items_.size());
    items_.push_back(std::move(item));
    return items_.back();
  }
  Item* Find(const Key& key) {
    const size_t place = PlaceOf(key);
    return place < items_.size() ? &items_[place] : nullptr;
  }
  const Item* Find(const Key& key) const { return const_cast<ItemList*>(this)->Find(key); }
  bool Remove(const Key& key) {
    const size_t place = PlaceOf(key);
    if (place >= items_.size()) return false;
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(place));
    Reindex();
    return true;
  }
  void Clear() { items_.clear(), places_.clear(); }
  // The first item whose key another one before it has; null: none.
  const Item* FirstRepeated() const {
    for (size_t i = 0; i < items_.size(); ++i) {
      if (places_.at(ItemKey(items_[i])) != i) return &items_[i];
    }
    return nullptr;
  }

  // As many as there are items when none has this key.
  size_t PlaceOf(const Key& key) const {
    // Ids mostly run without a gap; the index would cost more than the call it serves.
    if constexpr (std::is_same_v<Key, int>) {
      if (!items_.empty() && key >= items_.front().id) {
        const auto place = static_cast<size_t>(key) - static_cast<size_t>(items_.front().id);
        if (place < items_.size() && items_[place].id == key) return place;
      }
    }
    const auto found = places_.find(key);
    return found == places_.end() ? items_.size() : found->second;
  }

 private:
  void Reindex() {
    places_.clear();
    for (size_t i = 0; i < items_.size(); ++i) places_.emplace(ItemKey(items_[i]), i);
  }

  std::vector<Item> items_;
  std::unordered_map<Key, size_t> places_;
};

// One more than the highest id.
template <typename Item>
int NextId(const ItemList<Item>& items) {
  int highest = 0;
  for (const Item& item : items) highest = std::max(highest, item.id);
  return highest + 1;
}

}  // namespace wb
