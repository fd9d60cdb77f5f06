// Turns a STEP file into model files that the workbench opens.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "workbench/session/model.h"

namespace wb {

struct ImportedModels {
  std::vector<Model> models;
  std::vector<ModelName> tops;     // models that are nobody's component
  std::vector<std::string> notes;  // what the file mentions but the models lack
  std::string length_unit;         // of the file, as a person reads it
};

// Assemblies with their components' placements (feature ids from 1), parts with a surface a face,
// or the six sides of their extents when they have no faces. Throws what ReadStepAssembly throws.
ImportedModels ReadStepModels(const std::filesystem::path& file);

// Writes all models into `folder`, which is made when missing, or none, even when the process is
// killed. Files that are there get a next version beside them only with `force`. Throws
// std::runtime_error with the reason.
void WriteModels(const ImportedModels& imported, const std::filesystem::path& folder,
                 bool force = false);

// A line a model: its name, its components, its surfaces, how often it is placed, and how often it
// occurs under the tops.
std::string ModelTable(const ImportedModels& imported);

// The first top that is an assembly; without one the first top.
const ModelName& MainModel(const ImportedModels& imported);

// A script, line by line, that tries the plug-in on a copy of what was imported into `folder`.
std::vector<std::string> NextScript(const ImportedModels& imported,
                                    const std::filesystem::path& folder);

}  // namespace wb
