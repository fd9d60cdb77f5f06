// Names as the host takes them, in buffers that its calls may change. None is ever cut: it would be
// another one's.
#pragma once

#include <optional>
#include <string>
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
// same place whatever its length.
struct RetrievalName {
  // Nothing when a name is too long for a model's, or for that of an instance with its generic's
  // behind it ("instance<generic>").
  static std::optional<RetrievalName> From(std::wstring_view text) {
    const bool is_path = text.find_first_of(L"\\/:") != std::wstring_view::npos;
    const bool has_generic = text.find(L'<') != std::wstring_view::npos;
    const std::size_t size = has_generic ? PRO_FAMILY_NAME_SIZE : PRO_NAME_SIZE;
    if (!is_path && text.size() >= size) return std::nullopt;
    return RetrievalName{std::wstring(text)};
  }
  std::wstring text;
};

}  // namespace qm
