// Model files: one readable JSON document a model, under the host's names with versions
// ("bolt.prt.1").
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

#include "workbench/base/text.h"
#include "workbench/session/model.h"

namespace wb {

// A file that cannot be taken; the text names the file, the place and what to do.
struct ModelFileError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Reads a model without its components' models. Throws ModelFileError.
Model ReadModelFile(const std::filesystem::path& file);

// Writes `model` to `file`, through a neighbour that is renamed, so that a failed write leaves what
// was there. Throws ModelFileError.
void WriteModelFile(const Model& model, const std::filesystem::path& file);

// The same into a place that nobody reads yet, without the neighbour.
void WriteNewModelFile(const Model& model, const std::filesystem::path& file);

// Refuses what `file` says of `under`, a component or the assembly of a manufacturing model: throws
// ModelFileError with the line that names it.
[[noreturn]] void RefuseModelUnder(const std::filesystem::path& file, const ModelName& under,
                                   const std::string& why);

std::string ModelDocument(const Model& model);

// "bolt.prt.3" -> bolt.prt and 3; no value for other names.
struct VersionedName {
  ModelName model;
  int version = 0;
};
std::optional<VersionedName> ParseFileName(const std::string& file_name);

}  // namespace wb
