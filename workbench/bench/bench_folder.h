// Measures the commands that go through the drawings of a folder, or through the files of an
// assembly's components.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace wb {

struct FolderRow {
  std::string command;
  int drawings = 0;  // or components
  long calls = 0;
  long notes = 0;  // in the message area
  double seconds = 0;
};

// Runs each of them once over a folder with so many drawings of two sheets, three views and two
// tables of a format, made below `work_folder` and removed again, and those on components on an
// assembly of a quarter as many parts that have such drawings. Throws std::runtime_error when a
// command does not do what a benchmark needs.
std::vector<FolderRow> MeasureFolder(int drawings, const std::filesystem::path& plugin,
                                     const std::filesystem::path& work_folder);

}  // namespace wb
