// Paints faces one over the other. Pieces of a face are filled without a smoothed rim, which would
// show where they meet, and only the edges of the box are drawn.
#include "workbench/scene/scene_svg.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "workbench/base/html_text.h"

namespace wb {
namespace {

// In pixels.
constexpr double kWidest = 540;
constexpr double kHighest = 440;
constexpr double kEdge = 8;
constexpr double kThickEdge = 1.1;
constexpr double kThinEdge = 0.35;
// Of more boxes than these the edges are thin, and they are not named one by one.
constexpr std::size_t kFewBoxes = 300;
// A clear box is still seen by its edges, and a little by its faces.
constexpr double kLeastOpacity = 0.06;

constexpr const char* kGround = "#f3f5f8";
constexpr const char* kSceneInk = "#1b222b";

std::string Short(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", value == 0 ? 0 : value);
  std::string shown = text;
  if (shown.ends_with(".0")) shown.resize(shown.size() - 2);
  return shown == "-0" ? "0" : shown;
}

std::string ColourText(const Rgb& colour, double light) {
  char text[8];
  int channels[3];
  for (std::size_t i = 0; i < 3; ++i) {
    const double lit = std::clamp(colour[i], 0.0, 1.0) * light;
    channels[i] = static_cast<int>(std::lround(255 * std::clamp(lit, 0.0, 1.0)));
  }
  std::snprintf(text, sizeof text, "#%02x%02x%02x", channels[0], channels[1], channels[2]);
  return text;
}

class ScenePainter {
 public:
  ScenePainter(const Scene& scene, const SceneFrame& frame)
      : scene_(scene),
        are_few_(scene.boxes.size() <= kFewBoxes),
        frame_(frame[0] <= frame[2] ? frame : SceneFrame{}) {
    const double width = frame_[2] - frame_[0];
    const double height = frame_[3] - frame_[1];
    const double by_width = width > 0 ? (kWidest - 2 * kEdge) / width : HUGE_VAL;
    const double by_height = height > 0 ? (kHighest - 2 * kEdge) / height : HUGE_VAL;
    scale_ = std::min(by_width, by_height);
    if (!std::isfinite(scale_)) scale_ = 1;
    width_ = width * scale_ + 2 * kEdge;
    height_ = height * scale_ + 2 * kEdge;
  }

  std::string Paint() {
    svg_ = "<svg class=\"scene\" xmlns=\"http://www.w3.org/2000/svg\" width=\"" + Short(width_) +
           "\" viewBox=\"0 0 " + Short(width_) + " " + Short(height_) +
           "\"><rect width=\"100%\" height=\"100%\" fill=\"" + kGround + "\"/><g stroke=\"" +
           kSceneInk + "\" stroke-linejoin=\"round\" stroke-width=\"" +
           Short(are_few_ ? kThickEdge : kThinEdge) + "\">";
    for (std::size_t i = 0; i < scene_.faces.size(); ++i) {
      if (StartsRun(i)) StartRun(i);
      PaintFace(scene_.faces[i]);
    }
    return svg_ + (scene_.faces.empty() ? "</g></svg>" : "</g></g></svg>");
  }

 private:
  // Faces that come after each other are one thing: those of a box, which bears its name, or of
  // many boxes those that are as clear.
  bool StartsRun(std::size_t i) const {
    if (i == 0) return true;
    const std::size_t box = scene_.faces[i].box;
    const std::size_t last = scene_.faces[i - 1].box;
    return are_few_ ? box != last : Opacity(box) != Opacity(last);
  }

  void StartRun(std::size_t i) {
    const std::size_t box = scene_.faces[i].box;
    svg_ += i == 0 ? "<g" : "</g><g";
    if (Opacity(box) < 1) svg_ += " fill-opacity=\"" + OpacityText(Opacity(box)) + "\"";
    svg_ += ">";
    if (are_few_) svg_ += "<title>" + EscapeHtml(scene_.boxes[box].model) + "</title>";
  }

  double Opacity(std::size_t box) const {
    return std::max(1 - std::clamp(scene_.boxes[box].transparency, 0.0, 1.0), kLeastOpacity);
  }

  void PaintFace(const SceneFace& face) {
    const auto is_edge = [](const SceneCorner& corner) { return corner.is_edge; };
    if (std::ranges::all_of(face.corners, is_edge)) {
      svg_ += "<path d=\"" + Outline(face) + "\"" + Fill(face) + "/>";
      return;
    }
    svg_ += "<path d=\"" + Outline(face) + "\"" + Fill(face) +
            " stroke=\"none\" shape-rendering=\"crispEdges\"/>";
    if (std::ranges::any_of(face.corners, is_edge)) {
      svg_ += "<path d=\"" + Edges(face) + "\" fill=\"none\"/>";
    }
  }

  std::string At(const SceneCorner& corner) const {
    return Short(kEdge + (corner.at[0] - frame_[0]) * scale_) + " " +
           Short(kEdge + (frame_[3] - corner.at[1]) * scale_) + " ";
  }

  std::string Outline(const SceneFace& face) const {
    std::string path = "M";
    for (const SceneCorner& corner : face.corners) path += At(corner);
    return path + "Z";
  }

  std::string Edges(const SceneFace& face) const {
    std::string path;
    for (std::size_t i = 0; i < face.corners.size(); ++i) {
      if (!face.corners[i].is_edge) continue;
      const bool goes_on = i > 0 && face.corners[i - 1].is_edge;
      if (!goes_on) path += "M" + At(face.corners[i]);
      path += "L" + At(face.corners[(i + 1) % face.corners.size()]);
    }
    return path;
  }

  std::string Fill(const SceneFace& face) const {
    return " fill=\"" + ColourText(scene_.boxes[face.box].colour, face.light) + "\"";
  }

  static std::string OpacityText(double opacity) {
    char text[16];
    std::snprintf(text, sizeof text, "%.3g", opacity);
    return text;
  }

  const Scene& scene_;
  bool are_few_;
  SceneFrame frame_;
  double scale_ = 1;
  double width_ = 0;
  double height_ = 0;
  std::string svg_;
};

}  // namespace

std::string DrawScene(const Scene& scene, const SceneFrame& frame) {
  return ScenePainter(scene, frame).Paint();
}

}  // namespace wb
