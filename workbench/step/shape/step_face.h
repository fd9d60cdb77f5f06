// The box around one face of a STEP solid, from its edges and from where its surface bulges out
// between them.
#pragma once

#include "workbench/step/shape/step_geometry.h"

namespace wb {

// Box of an ADVANCED_FACE, FACE_SURFACE or plain FACE. Planes, cylinders, cones and other ruled
// surfaces are as exact as their edges. Of spheres, tori, surfaces of revolution and splines those
// outermost points count that lie on the face. Spline surfaces are searched from a grid of samples,
// so a bulge smaller than the grid can be missed; a free profile of a surface of revolution is
// sampled (measured: a thousandth of the size). Offset surfaces count by their edges.
// Empty when the face has no edges and its surface no extent.
StepBox ReadStepFaceBox(const StepFile& file, const StepRecord& face, double scale);

// Points of an EDGE_CURVE from its start to its end.
std::vector<StepPoint> ReadStepEdge(const StepFile& file, const StepRecord& edge, double scale);

}  // namespace wb
