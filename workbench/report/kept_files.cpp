// Copies files beside the report and writes their links.
#include "workbench/report/kept_files.h"

#include "workbench/base/text.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

// A page is to be passed on; what is larger stays where it is.
constexpr std::uintmax_t kMostBytes = 64u << 20;

bool IsPlain(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
         std::string_view("/-._~").find(c) != std::string_view::npos;
}

std::string Encoded(const std::string& path) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string link;
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    link += IsPlain(c) ? std::string(1, c)
                       : std::string("%") + kDigits[byte >> 4] + kDigits[byte & 0xF];
  }
  return link;
}

}  // namespace

KeptFile KeepFile(const fs::path& page, int command, const std::string& name,
                  const fs::path& file) {
  std::error_code error;
  const std::uintmax_t bytes = fs::file_size(file, error);
  if (!error && bytes > kMostBytes) return {"", "larger than 64 MB"};
  const std::string below =
      PathToUtf8(page.stem()) + "_files/" + std::to_string(command) + "/" + name;
  const fs::path copy = page.parent_path() / PathFromUtf8(below);
  if (!error) fs::create_directories(copy.parent_path(), error);
  // Over a file that exists the library of the cross build refuses to copy.
  if (!error) fs::remove(copy, error);
  if (!error) fs::copy_file(file, copy, error);
  if (error) return {"", error.message()};
  return {Encoded(below), ""};
}

}  // namespace wb
