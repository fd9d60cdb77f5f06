// Names as the host takes them, in buffers that its calls may change. None is ever cut: it would be
// another one's.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "frame/text/fixed_text.h"
#include "toolkit/types.h"

namespace qm {

// In a fixed buffer.
struct HostName {
  // Nothing when the text is longer than 31 characters.
  static std::optional<HostName> From(std::wstring_view text) {
    HostName host;
    if (!FillFixedText(text, host.name)) return std::nullopt;
    return host;
  }
  ProName name{};
};

// What a model is retrieved by: its name, or the full path of its file, which the host takes in the
// same place.
struct RetrievalName {
  // Nothing when the text is too long for a path, for a model's name, or for that of an instance
  // with its generic's behind it ("instance<generic>").
  static std::optional<RetrievalName> From(std::wstring_view text) {
    RetrievalName host;
    if (text.size() >= SizeFor(text) || !FillFixedText(text, host.name)) return std::nullopt;
    return host;
  }
  ProPath name{};  // room for all that the host's type holds, and for a path

 private:
  static std::size_t SizeFor(std::wstring_view text) {
    if (text.find_first_of(L"\\/:") != std::wstring_view::npos) return PRO_PATH_SIZE;
    return text.find(L'<') != std::wstring_view::npos ? PRO_FAMILY_NAME_SIZE : PRO_NAME_SIZE;
  }
};

}  // namespace qm
