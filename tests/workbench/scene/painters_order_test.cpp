// Which face covers which: compared with rays from the viewer through boxes of every kind.
#include "workbench/scene/painters_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>

namespace wb {
namespace {

// The viewer looks along z, from its upper end.
struct TurnedBox {
  Box box;
  Placement placement;  // turned, never stretched
};

using PlacedBoxes = std::vector<TurnedBox>;

Placement TurnedBy(const std::array<double, 4>& quaternion, const Point& to) {
  const double length = std::hypot(std::hypot(quaternion[0], quaternion[1]),
                                   std::hypot(quaternion[2], quaternion[3]));
  const auto [w, x, y, z] = std::array{quaternion[0] / length, quaternion[1] / length,
                                       quaternion[2] / length, quaternion[3] / length};
  return {{{1 - 2 * (y * y + z * z), 2 * (x * y + z * w), 2 * (x * z - y * w), 0},
           {2 * (x * y - z * w), 1 - 2 * (x * x + z * z), 2 * (y * z + x * w), 0},
           {2 * (x * z + y * w), 2 * (y * z - x * w), 1 - 2 * (x * x + y * y), 0},
           {to[0], to[1], to[2], 1}}};
}

class Tangle {
 public:
  explicit Tangle(unsigned seed) : random_(seed) {}

  double Number(double least, double most) {
    return std::uniform_real_distribution(least, most)(random_);
  }
  Placement AnyPlacement(double room) {
    const std::array<double, 4> turn = {Number(-1, 1), Number(-1, 1), Number(-1, 1), Number(-1, 1)};
    return TurnedBy(turn, {Number(0, room), Number(0, room), Number(0, room)});
  }
  // Of whole sizes at whole places, so that many lie in one plane.
  Box AnyBox(int room, int largest) {
    Box box;
    for (size_t k = 0; k < 3; ++k) {
      box.min[k] = std::floor(Number(0, room));
      box.max[k] = box.min[k] + 1 + std::floor(Number(0, largest));
    }
    return box;
  }

 private:
  std::mt19937 random_;
};

std::vector<SeenFace> FacesOfAll(const PlacedBoxes& boxes, bool are_opaque) {
  std::vector<SeenFace> faces;
  for (size_t i = 0; i < boxes.size(); ++i) {
    for (SeenFace& face : FacesTowardsViewer(SeenFrom(boxes[i].box, boxes[i].placement))) {
      face.box = i;
      face.is_opaque = are_opaque;
      faces.push_back(face);
    }
  }
  return faces;
}

// Where a ray from the viewer enters a box; nothing where it passes beside it.
std::optional<double> MetAt(const TurnedBox& placed, double x, double y) {
  double furthest = -HUGE_VAL, nearest = HUGE_VAL;
  for (size_t k = 0; k < 3; ++k) {
    const auto& row = placed.placement[k];
    const auto& origin = placed.placement[3];
    const double start = (x - origin[0]) * row[0] + (y - origin[1]) * row[1] - origin[2] * row[2];
    const double one = (placed.box.min[k] - start) / row[2];
    const double two = (placed.box.max[k] - start) / row[2];
    furthest = std::max(furthest, std::min(one, two));
    nearest = std::min(nearest, std::max(one, two));
  }
  return furthest < nearest ? std::optional(nearest) : std::nullopt;
}

enum class Place { kInside, kOutside, kOnTheLine };

Place PlaceIn(const SeenFace& face, double x, double y) {
  double least = HUGE_VAL;
  for (size_t i = 0; i < face.corners.size(); ++i) {
    const Point& a = face.corners[i].at;
    const Point& b = face.corners[(i + 1) % face.corners.size()].at;
    const double length = std::hypot(b[0] - a[0], b[1] - a[1]);
    if (length < 1e-4) continue;
    const double inside = (b[0] - a[0]) * (y - a[1]) - (b[1] - a[1]) * (x - a[0]);
    least = std::min(least, inside / length);
  }
  if (std::abs(least) < 1e-4) return Place::kOnTheLine;
  return least > 0 ? Place::kInside : Place::kOutside;
}

// At points all over the picture everything that is painted lies before what was painted there
// earlier, the nearest box comes last, and of clear ones none is missing.
void ExpectTrue(const PlacedBoxes& boxes, bool are_opaque, const std::string& what) {
  const std::vector<SeenFace> painted = PaintersOrder(FacesOfAll(boxes, are_opaque));
  Tangle points(7);
  int compared = 0;
  for (int i = 0; i < 1500; ++i) {
    const double x = points.Number(-20, 60), y = points.Number(-20, 60);
    size_t met = 0, shown = 0;
    double nearest = -HUGE_VAL, last = -HUGE_VAL;
    for (const TurnedBox& box : boxes) {
      const std::optional<double> at = MetAt(box, x, y);
      met += at ? 1 : 0;
      nearest = std::max(nearest, at.value_or(-HUGE_VAL));
    }
    bool is_on_a_line = false, is_in_order = true;
    for (const SeenFace& face : painted) {
      const Place place = PlaceIn(face, x, y);
      is_on_a_line = is_on_a_line || place == Place::kOnTheLine;
      if (place != Place::kInside) continue;
      const double at = MetAt(boxes[face.box], x, y).value_or(-HUGE_VAL);
      is_in_order = is_in_order && at > last - 1e-3;
      last = at;
      ++shown;
    }
    if (is_on_a_line) continue;
    compared += met > 1 ? 1 : 0;
    ASSERT_TRUE(is_in_order) << what << " at " << x << ", " << y;
    ASSERT_TRUE(met == 0 || last > nearest - 1e-3) << what << " at " << x << ", " << y;
    ASSERT_TRUE(are_opaque || shown == met) << what << " at " << x << ", " << y;
  }
  EXPECT_GT(compared, 50) << what;
}

TEST(PaintersOrder, PaintsLastWhatARayMeetsFirst) {
  for (const bool are_opaque : {true, false}) {
    for (unsigned seed = 1; seed <= 4; ++seed) {
      Tangle tangle(seed);
      PlacedBoxes askew, parallel;
      const Placement corner = tangle.AnyPlacement(10);
      for (int i = 0; i < 40; ++i) {
        askew.push_back({tangle.AnyBox(10, 20), tangle.AnyPlacement(30)});
        parallel.push_back({tangle.AnyBox(25, 15), corner});
      }
      ExpectTrue(askew, are_opaque, "askew " + std::to_string(seed));
      ExpectTrue(parallel, are_opaque, "parallel " + std::to_string(seed));
    }
  }
}

TEST(PaintersOrder, StopsCuttingAtItsBound) {
  Tangle tangle(5);
  PlacedBoxes boxes;
  for (int i = 0; i < 150; ++i) boxes.push_back({tangle.AnyBox(5, 20), tangle.AnyPlacement(20)});
  const std::vector<SeenFace> faces = FacesOfAll(boxes, false);
  EXPECT_GT(PaintersOrder(faces).size(), 1000u);
  const std::vector<SeenFace> bounded = PaintersOrder(faces, {.pieces = 1000});
  EXPECT_LE(bounded.size(), 1000u);
  EXPECT_GE(bounded.size(), faces.size());
}

TEST(PaintersOrder, StopsComparingThousandsOfClearBoxesInOnePlace) {
  Tangle tangle(17);
  PlacedBoxes boxes;
  for (int i = 0; i < 2000; ++i) boxes.push_back({tangle.AnyBox(5, 20), tangle.AnyPlacement(5)});
  const std::vector<SeenFace> painted =
      PaintersOrder(FacesOfAll(boxes, false), {.comparisons = 50'000});
  ASSERT_EQ(painted.size(), 3 * boxes.size());
  const auto middle = [](const SeenFace& face) {
    double sum = 0;
    for (const SeenCorner& corner : face.corners) sum += corner.at[2];
    return sum / static_cast<double>(face.corners.size());
  };
  EXPECT_TRUE(std::ranges::is_sorted(painted, {}, middle));
}

}  // namespace
}  // namespace wb
