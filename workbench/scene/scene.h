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

struct SceneCorner {
  ScenePoint at{};
  bool is_edge = true;  // whether the line to the next corner is an edge of the box
  bool operator==(const SceneCorner&) const = default;
};

// A face that looks at the viewer, or a piece of one.
struct SceneFace {
  std::size_t box = 0;  // whose it is
  std::vector<SceneCorner> corners;
  double light = 1;  // what of its colour is seen, 0 to 1
  bool operator==(const SceneFace&) const = default;
};

struct SceneBox {
  std::string model;  // "bolt.prt"
  Rgb colour{};
  double transparency = 0;
  // Whether it looks the same, under whatever name.
  bool operator==(const SceneBox& other) const {
    return colour == other.colour && transparency == other.transparency;
  }
};

struct Scene {
  std::string model;             // "pump.asm"; empty: nothing is shown
  std::vector<SceneBox> boxes;   // some of which others may hide
  std::vector<SceneFace> faces;  // what is behind first
  std::size_t left_out = 0;      // boxes beyond those kept, the smallest ones
  bool are_all_met = true;       // else the largest of those that were met first are kept
  bool operator==(const Scene&) const = default;
};

inline constexpr std::size_t kMostSceneBoxes = 2'000;
// An assembly may hold the same models over and over at many levels: the largest are looked for
// among so many occurrences.
inline constexpr std::size_t kMostOccurrencesMet = 50'000;

// Each shown part at every level is the box around its surfaces. A part looks like its own
// appearance, or that of its surfaces where each has one; otherwise like the nearest assembly above
// it that has one, or grey.
Scene TakeScene(const Model& solid, std::size_t most = kMostSceneBoxes);

// Of a scene without boxes one that holds nothing.
SceneFrame FrameOf(const Scene& scene);
SceneFrame Around(const SceneFrame& a, const SceneFrame& b);

}  // namespace wb
