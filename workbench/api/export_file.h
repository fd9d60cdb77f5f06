// A file of another program on its way to the disk: where it goes, what is in it, and how the
// host's writer of its format is told to do its work.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "workbench/companion/companion.h"
#include "workbench/host/call.h"

namespace wb {

struct ExportJob {
  FileFormat format = FileFormat::kDwg;
  const char* extension = "";  // for a file that has none
  const char* word = "";       // "DWG"
  // What the file is of, and how it was asked for: a text for what stands for the host's file.
  std::string what;
  std::string asked;
  // Asks for the real one; empty: nobody makes such files real.
  std::function<Companion::Answer()> make{};
};

// Writes it into the working directory, or where its path says.
ProError WriteExport(const Call& call, const Model& model, std::filesystem::path file,
                     const ExportJob& job);

}  // namespace wb
