// What the files of an assembly's components are called.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qm {

struct NamedComponent {
  std::wstring name;
  bool is_assembly = false;
};

// The file of each, in order: its name and the extension. Where a part has the name of an assembly,
// in whatever case of letters, the assembly's file has "_asm" behind its name.
std::vector<std::wstring> ComponentFileNames(const std::vector<NamedComponent>& components,
                                             std::wstring_view extension);

// Whether the class of a radio button ("AsmAndPart", "Part" or "Asm") takes in an assembly or a
// part.
bool IsOfClass(std::string_view class_name, bool is_assembly);

// A setting's text as the host's number of a file format: digits alone.
std::optional<int> FormatNumber(std::wstring_view text);

}  // namespace qm
