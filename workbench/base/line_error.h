// A text file that cannot be used, by file, line and reason.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace wb {

// what() reads "FILE:LINE: REASON"; line 0 stands for the file as a whole.
struct LineError : std::runtime_error {
  LineError(std::string file_name, int line_number, std::string why)
      : std::runtime_error(file_name + ":" + std::to_string(line_number) + ": " + why),
        file(std::move(file_name)),
        line(line_number),
        reason(std::move(why)) {}

  std::string file;
  int line;
  std::string reason;
};

}  // namespace wb
