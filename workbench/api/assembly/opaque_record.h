// Records of the host whose layout the plug-in does not know: what the workbench keeps in them.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>

#include "workbench/host/call.h"

namespace wb {

// `Content` has a number of its own, kMark, and begins with a member that is set to it.
template <typename Content, typename Record>
void FillOpaque(Record& place, const Content& content) {
  static_assert(std::is_trivially_copyable_v<Content> && sizeof(Content) <= sizeof(Record));
  std::memcpy(static_cast<void*>(&place), &content, sizeof(content));
}

// A record that a call of the family has filled; any other is a misuse.
template <typename Content, typename Record>
struct OpaqueIn {
  const Record* place;
  const char* what_it_is;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(place)); }
  Content Look(const Call& call) const {
    Content content;
    std::memcpy(static_cast<void*>(&content), &call.Place(place, what_it_is), sizeof(content));
    if (content.mark != Content::kMark) {
      call.Fail(std::string(what_it_is) + " that no call has filled");
    }
    return content;
  }
};

}  // namespace wb
