// What one sees of an assembly at one moment: its parts as coloured boxes, from a corner above.
// Plain data, so that it can be laid beside the picture from before a command.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "workbench/session/model.h"

namespace wb {

// In the picture: to the right and up, in the model's own units.
using ScenePoint = std::array<double, 2>;
// The left lower and the right upper corner of what is to be seen.
using SceneFrame = std::array<double, 4>;

// A face that looks at the viewer.
struct SceneFace {
  std::array<ScenePoint, 4> corners;
  double light = 1;  // what of its colour is seen, 0 to 1
  bool operator==(const SceneFace&) const = default;
};

struct SceneBox {
  std::string model;  // "bolt.prt"
  Rgb colour{};
  double transparency = 0;
  std::vector<SceneFace> faces;
  // Whether it looks the same, under whatever name.
  bool operator==(const SceneBox& other) const {
    return colour == other.colour && transparency == other.transparency && faces == other.faces;
  }
};

struct Scene {
  std::string model;            // "pump.asm"; empty: nothing is shown
  std::vector<SceneBox> boxes;  // each may lie before those that stand in front of it in the list
  std::size_t left_out = 0;     // boxes beyond those kept, the smallest ones
  bool operator==(const Scene&) const = default;
};

inline constexpr std::size_t kMostSceneBoxes = 2'000;

// Each shown part at every level is the box around its surfaces. A part looks like its own
// appearance, or that of its surfaces where each has one; otherwise like the nearest assembly above
// it that has one, or grey.
Scene TakeScene(const Model& solid, std::size_t most = kMostSceneBoxes);

// Of a scene without boxes one that holds nothing.
SceneFrame FrameOf(const Scene& scene);
SceneFrame Around(const SceneFrame& a, const SceneFrame& b);

}  // namespace wb
