// The host's writers of other programs' files, and how a script lets them do their work.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace wb {

enum class FileFormat { kDwg, kDxf, kPdf, kStep, kIges, kSat };

enum class WriterConduct {
  kWorks,
  kFails,          // with "cannot write"
  kWritesNothing,  // and claims success
  kWritesEmpty,    // a file of no bytes, and claims success
};

class FileWriters {
 public:
  // No format: all of them; no file: all files, otherwise those of this name in any folder.
  void Order(std::optional<FileFormat> format, WriterConduct conduct, const std::string& file);
  // By the last order that fits.
  WriterConduct ConductFor(FileFormat format, const std::filesystem::path& file) const;

  // The number of the SAT format, which nobody knows: a host of a script has the one it is told.
  std::optional<int> sat_type{};

 private:
  struct Ordered {
    std::optional<FileFormat> format;
    WriterConduct conduct;
    std::string file;
  };
  std::vector<Ordered> orders_;
};

}  // namespace wb
