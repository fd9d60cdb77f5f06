// Groups of surfaces, and blocks as solids with faces, edges and corners.
#include "workbench/step/write/step_blocks.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

namespace wb {
namespace {

// Millimetres; what is nearer touches, and what is thinner is flat.
constexpr double kTouching = 1e-6;

bool Touch(const Box& a, const Box& b) {
  for (size_t axis = 0; axis < 3; ++axis) {
    if (a.min[axis] > b.max[axis] + kTouching || b.min[axis] > a.max[axis] + kTouching)
      return false;
  }
  return true;
}

Box Around(const Box& a, const Box& b) {
  Box both;
  for (size_t axis = 0; axis < 3; ++axis) {
    both.min[axis] = std::min(a.min[axis], b.min[axis]);
    both.max[axis] = std::max(a.max[axis], b.max[axis]);
  }
  return both;
}

bool IsFlat(const Box& box, size_t axis) {
  return box.max[axis] - box.min[axis] < kTouching;
}

long FlatAxes(const Box& box) {
  long flat = 0;
  for (size_t axis = 0; axis < 3; ++axis) flat += IsFlat(box, axis) ? 1 : 0;
  return flat;
}

size_t LongestAxis(const std::vector<Box>& boxes) {
  Box whole = boxes.front();
  for (const Box& box : boxes) whole = Around(whole, box);
  const auto length = [&](size_t axis) { return whole.max[axis] - whole.min[axis]; };
  size_t longest = 0;
  for (const size_t axis : {1U, 2U}) {
    if (length(axis) > length(longest)) longest = axis;
  }
  return longest;
}

// Takes from `open` what touches `box`, into it; true when there was something.
bool Absorb(std::vector<Box>& open, Box& box) {
  const auto touching = std::ranges::partition(open, [&](const Box& o) { return !Touch(o, box); });
  for (const Box& block : touching) box = Around(box, block);
  const bool some = !touching.empty();
  open.erase(touching.begin(), touching.end());
  return some;
}

// Passes once along the longest axis; only blocks that reach the present place are looked at.
std::vector<Box> MergedOnce(std::vector<Box> boxes) {
  const size_t along = LongestAxis(boxes);
  std::ranges::sort(boxes, {}, [along](const Box& box) { return box.min[along]; });
  std::vector<Box> open, passed;
  for (Box box : boxes) {
    const auto reaching = std::ranges::partition(
        open, [&](const Box& o) { return o.max[along] + kTouching >= box.min[along]; });
    passed.insert(passed.end(), reaching.begin(), reaching.end());
    open.erase(reaching.begin(), reaching.end());
    while (Absorb(open, box)) {
    }
    open.push_back(box);
  }
  passed.insert(passed.end(), open.begin(), open.end());
  return passed;
}

// Corners are numbered by three bits, x first: set where the corner is at the box's maximum.
class BlockWriter {
 public:
  BlockWriter(const Box& box, StepRecords& records) : box_(box), records_(records) {}

  // A face across `axis`, at the box's maximum or minimum there, that looks outwards.
  int Face(size_t axis, bool at_maximum) {
    const unsigned base = at_maximum ? 1U << axis : 0;
    const unsigned u = 1U << (axis + 1) % 3, v = 1U << (axis + 2) % 3;
    std::array<unsigned, 4> around = {base, base | u, base | u | v, base | v};
    if (!at_maximum) std::ranges::reverse(around);
    std::vector<int> edges;
    for (size_t i = 0; i < 4; ++i) edges.push_back(Edge(around[i], around[(i + 1) % 4]));
    const int loop = records_.Add("EDGE_LOOP", {kStepNoText, StepRefs(edges)});
    const int bound = records_.Add("FACE_OUTER_BOUND", {kStepNoText, StepRef(loop), ".T."});
    const int place =
        records_.Add("AXIS2_PLACEMENT_3D", {kStepNoText, StepRef(PointAt(base)),
                                            StepRef(Direction(axis, at_maximum ? 1 : -1)),
                                            StepRef(Direction((axis + 1) % 3, 1))});
    const int plane = records_.Add("PLANE", {kStepNoText, StepRef(place)});
    return records_.Add("ADVANCED_FACE", {kStepNoText, StepRefs({bound}), StepRef(plane), ".T."});
  }

 private:
  double At(unsigned corner, size_t axis) const {
    return (corner >> axis & 1) != 0 ? box_.max[axis] : box_.min[axis];
  }
  int PointAt(unsigned corner) {
    int& point = points_[corner];
    if (point == 0) {
      point = records_.Add("CARTESIAN_POINT",
                           {kStepNoText, StepReals(At(corner, 0), At(corner, 1), At(corner, 2))});
    }
    return point;
  }
  int VertexAt(unsigned corner) {
    int& vertex = vertices_[corner];
    if (vertex == 0) {
      vertex = records_.Add("VERTEX_POINT", {kStepNoText, StepRef(PointAt(corner))});
    }
    return vertex;
  }
  int Direction(size_t axis, double sign) {
    Point direction{};
    direction[axis] = sign;
    return records_.AddOnce("DIRECTION",
                            {kStepNoText, StepReals(direction[0], direction[1], direction[2])});
  }
  // An edge runs along its axis; faces go along it either way.
  int Edge(unsigned from, unsigned to) {
    const unsigned low = std::min(from, to), bit = from ^ to;
    const size_t axis = bit >> 1;
    int& edge = edges_[low][axis];
    if (edge == 0) {
      const int way =
          records_.AddOnce("VECTOR", {kStepNoText, StepRef(Direction(axis, 1)), StepReal(1)});
      const int line = records_.Add("LINE", {kStepNoText, StepRef(PointAt(low)), StepRef(way)});
      edge = records_.Add("EDGE_CURVE", {kStepNoText, StepRef(VertexAt(low)),
                                         StepRef(VertexAt(low | bit)), StepRef(line), ".T."});
    }
    return records_.Add("ORIENTED_EDGE",
                        {kStepNoText, "*", "*", StepRef(edge), from == low ? ".T." : ".F."});
  }

  const Box& box_;
  StepRecords& records_;
  std::array<int, 8> points_{}, vertices_{};
  std::array<std::array<int, 3>, 8> edges_{};  // by their lower corner and their axis
};

int WriteSolid(const Box& box, StepRecords& records) {
  BlockWriter writer(box, records);
  std::vector<int> faces;
  for (size_t axis = 0; axis < 3; ++axis) {
    for (const bool at_maximum : {false, true}) faces.push_back(writer.Face(axis, at_maximum));
  }
  const int shell = records.Add("CLOSED_SHELL", {kStepNoText, StepRefs(faces)});
  return records.Add("MANIFOLD_SOLID_BREP", {kStepNoText, StepRef(shell)});
}

int WriteFace(const Box& box, StepRecords& records) {
  size_t axis = 0;
  while (!IsFlat(box, axis)) ++axis;
  const int face = BlockWriter(box, records).Face(axis, true);
  const int shell = records.Add("OPEN_SHELL", {kStepNoText, StepRefs({face})});
  return records.Add("SHELL_BASED_SURFACE_MODEL", {kStepNoText, StepRefs({shell})});
}

}  // namespace

std::vector<Box> BlocksAround(const ItemList<Surface>& surfaces) {
  std::vector<Box> blocks;
  for (const Surface& surface : surfaces) blocks.push_back(surface.box);
  if (blocks.empty()) return blocks;
  // A block that has grown may touch one that was passed already.
  size_t before = 0;
  do {
    before = blocks.size();
    blocks = MergedOnce(std::move(blocks));
  } while (blocks.size() < before);
  for (Box& block : blocks) {
    for (size_t axis = 0; axis < 3; ++axis) {
      if (IsFlat(block, axis)) block.max[axis] = block.min[axis];
    }
  }
  std::ranges::sort(blocks, {}, [](const Box& box) { return std::tie(box.min, box.max); });
  return blocks;
}

StepBodies WriteStepBodies(const std::vector<Box>& blocks, StepRecords& records) {
  StepBodies bodies;
  for (const Box& block : blocks) {
    const long flat = FlatAxes(block);
    if (flat == 0) bodies.solids.push_back(WriteSolid(block, records));
    if (flat == 1) bodies.faces.push_back(WriteFace(block, records));
  }
  return bodies;
}

}  // namespace wb
