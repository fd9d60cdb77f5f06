// What tests ask of a page.
#pragma once

#include <cstddef>
#include <string>

namespace wb {

inline std::size_t Count(const std::string& html, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = html.find(part); at != std::string::npos; at = html.find(part, at + 1)) {
    ++count;
  }
  return count;
}

inline bool Shows(const std::string& html, const std::string& part) {
  return html.find(part) != std::string::npos;
}

}  // namespace wb
