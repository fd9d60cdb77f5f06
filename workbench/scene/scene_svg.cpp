// Paints boxes one over the other.
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
      : scene_(scene), frame_(frame[0] <= frame[2] ? frame : SceneFrame{}) {
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
    const bool are_few = scene_.boxes.size() <= kFewBoxes;
    svg_ = "<svg class=\"scene\" xmlns=\"http://www.w3.org/2000/svg\" width=\"" + Short(width_) +
           "\" viewBox=\"0 0 " + Short(width_) + " " + Short(height_) +
           "\"><rect width=\"100%\" height=\"100%\" fill=\"" + kGround + "\"/><g stroke=\"" +
           kSceneInk + "\" stroke-linejoin=\"round\" stroke-width=\"" +
           Short(are_few ? kThickEdge : kThinEdge) + "\">";
    for (const SceneBox& box : scene_.boxes) PaintBox(box, are_few);
    return svg_ + "</g></svg>";
  }

 private:
  void PaintBox(const SceneBox& box, bool is_named) {
    const double opacity = std::max(1 - std::clamp(box.transparency, 0.0, 1.0), kLeastOpacity);
    svg_ += "<g";
    if (opacity < 1) svg_ += " fill-opacity=\"" + OpacityText(opacity) + "\"";
    svg_ += ">";
    if (is_named) svg_ += "<title>" + EscapeHtml(box.model) + "</title>";
    for (const SceneFace& face : box.faces) PaintFace(face, box.colour);
    svg_ += "</g>";
  }

  void PaintFace(const SceneFace& face, const Rgb& colour) {
    svg_ += "<path d=\"M";
    for (const auto& [x, y] : face.corners) {
      svg_ += Short(kEdge + (x - frame_[0]) * scale_) + " " +
              Short(kEdge + (frame_[3] - y) * scale_) + " ";
    }
    svg_ += "Z\" fill=\"" + ColourText(colour, face.light) + "\"/>";
  }

  static std::string OpacityText(double opacity) {
    char text[16];
    std::snprintf(text, sizeof text, "%.3g", opacity);
    return text;
  }

  const Scene& scene_;
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
