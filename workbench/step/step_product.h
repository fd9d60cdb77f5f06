// Reads a STEP file as what it is to a user: models, how they are assembled, where their
// components stand and how large they are.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "workbench/step/shape/step_geometry.h"

namespace wb {

// One component of an assembly. `placement` is in millimetres; see StepPlacement for its rows.
struct StepOccurrence {
  int child;  // index into StepAssembly::models
  StepPlacement placement;
  std::string name;  // of the occurrence, UTF-8; may be empty
};

// A product. Its own geometry is what its shape representation holds itself: that of components
// is not counted. Boxes are in the model's own coordinates, in millimetres; how exact they are is
// told in step_face.h.
struct StepModel {
  std::string name;  // PRODUCT.name or else its id, UTF-8, not yet fit for the host
  bool assembly = false;
  std::vector<StepOccurrence> components;  // in the order of the file
  std::optional<StepBox> extents;          // of the faces, or of wires and points when none
  std::vector<StepBox> faces;
};

struct StepAssembly {
  std::vector<StepModel> models;
  std::vector<int> tops;           // models that are nobody's component; never empty
  std::string schema;              // "AUTOMOTIVE_DESIGN { ... }"
  std::vector<std::string> notes;  // what the file mentions but the models lack, for the user
  std::vector<std::string> length_units;  // "inch (25.4 mm)"; empty: the file names none
};

// Throws StepError, with file and line, on a file that cannot be read, is no complete STEP file,
// names instances that do not exist where they matter, or contains itself.
StepAssembly ReadStepAssembly(const std::filesystem::path& path);
StepAssembly ReadStepAssembly(const StepFile& file);

}  // namespace wb
