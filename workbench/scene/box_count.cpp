// Counts a model when all below it are counted.
#include "workbench/scene/box_count.h"

#include <limits>
#include <unordered_map>
#include <vector>

#include "workbench/session/extents.h"

namespace wb {
namespace {

constexpr std::size_t kMostCounted = std::numeric_limits<std::size_t>::max();

class BoxCount {
 public:
  std::size_t Of(const Model& top) {
    Begin(top);
    while (!open_.empty()) Step();
    return boxes_.at(&top);
  }

 private:
  struct Level {
    const Model* model;
    std::size_t next;
    std::size_t boxes;
  };

  void Begin(const Model& model) {
    const SolidContent* const solid = model.As<SolidContent>();
    const std::size_t own = solid != nullptr && OwnExtents(*solid) ? 1 : 0;
    boxes_[&model] = own;
    open_.push_back({&model, 0, own});
  }

  void Step() {
    Level& level = open_.back();
    const SolidContent* const solid = level.model->As<SolidContent>();
    if (solid == nullptr || level.next == solid->features.size()) {
      boxes_[level.model] = level.boxes;
      open_.pop_back();
      return;
    }
    const Feature& feature = solid->features[level.next];
    const Model* const below = IsShown(feature) ? feature.ComponentModel() : nullptr;
    if (below != nullptr && !boxes_.contains(below)) return Begin(*below);
    ++level.next;
    if (below == nullptr) return;
    const std::size_t more = boxes_.at(below);
    level.boxes = more > kMostCounted - level.boxes ? kMostCounted : level.boxes + more;
  }

  std::unordered_map<const Model*, std::size_t> boxes_;
  std::vector<Level> open_;
};

}  // namespace

std::size_t CountBoxes(const Model& top) {
  return BoxCount().Of(top);
}

}  // namespace wb
