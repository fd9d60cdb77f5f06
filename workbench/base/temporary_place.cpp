// Windows takes 259 characters for a path; copies of the plug-in need a hundred of them.
#include "workbench/base/temporary_place.h"

#include <stdexcept>

#include "workbench/base/text.h"

namespace wb {
namespace {

constexpr size_t kLongestPath = 259;

}  // namespace

void RefuseLongPlace(const std::filesystem::path& place, const std::string& name) {
  const size_t length = place.native().size();
  if (length <= kLongestPlace) return;
  throw std::runtime_error(
      name + " is a folder of " + std::to_string(length) + " characters, " + PathToUtf8(place) +
      ": with what the workbench puts there, paths would exceed the " +
      std::to_string(kLongestPath) + " that Windows takes; choose a folder of at most " +
      std::to_string(kLongestPlace));
}

std::filesystem::path TemporaryPlace() {
  std::error_code error;
  const std::filesystem::path place = std::filesystem::temp_directory_path(error);
  if (error) {
    throw std::runtime_error(
        "TEMP names no folder that can be used; set it to one that is there, "
        "of at most " +
        std::to_string(kLongestPlace) + " characters");
  }
  RefuseLongPlace(place, "TEMP");
  return place;
}

}  // namespace wb
