// Copies of the files that commands wrote, in a folder beside the report that is named after it:
// the page and that folder move together, and its links hold wherever they lie. A script's own
// folders may be gone after the run, and later commands write over what earlier ones wrote.
#pragma once

#include <filesystem>
#include <string>

namespace wb {

struct KeptFile {
  std::string link;     // from the page's folder, as a page writes it; empty: no copy
  std::string trouble;  // why not
};

// `name` is the file's path below the folder of the command with that number, with slashes.
KeptFile KeepFile(const std::filesystem::path& page, int command, const std::string& name,
                  const std::filesystem::path& file);

}  // namespace wb
