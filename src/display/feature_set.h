// Which component features a command has met already: a subassembly that is placed several times
// brings the same features into a component list several times.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <unordered_set>

namespace qm {

class FeatureSet {
 public:
  // True when the feature, known by its id and owning model, is new.
  bool Insert(int id, const void* owner) { return features_.insert({id, owner}).second; }

 private:
  struct Key {
    int id;
    const void* owner;
    bool operator==(const Key&) const = default;
  };
  // Ids are small and owners aligned, so they are spread before they are mixed.
  struct Hash {
    size_t operator()(const Key& key) const {
      const uint64_t spread = static_cast<uint32_t>(key.id) * UINT64_C(0x9E3779B97F4A7C15);
      return std::hash<const void*>()(key.owner) ^ static_cast<size_t>(spread);
    }
  };
  std::unordered_set<Key, Hash> features_;
};

}  // namespace qm
