// Outermost points of spline surfaces, found from a grid of samples.
#pragma once

#include "workbench/step/shape/step_bulge.h"
#include "workbench/step/shape/step_spline.h"

namespace wb {

bool IsStepSplineSurface(const StepType& type);
StepBulges SplineBulges(StepSplineSurface surface);

}  // namespace wb
