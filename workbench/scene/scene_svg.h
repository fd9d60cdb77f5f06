// A scene as a picture for the report.
#pragma once

#include <string>

#include "workbench/scene/scene.h"

namespace wb {

// An SVG element that needs nothing around it, on a light ground whatever the page's colours are.
// `frame` is what is shown, so that two moments of one assembly are shown alike.
std::string DrawScene(const Scene& scene, const SceneFrame& frame);

}  // namespace wb
