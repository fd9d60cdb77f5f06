// Where the drawings of QmExport's list come from.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace qm {

inline constexpr wchar_t kDrawingFiles[] = L"*.drw";
inline constexpr wchar_t kModelFiles[] = L"*.prt,*.asm";

struct ListedDrawings {
  std::vector<std::wstring> names;
  long long left_out = 0;  // components that could not be read
};

// The drawings that bear the name of a component of the current assembly, deliberately each name
// once, or of the current part. Nothing when the current model is neither, a manufacturing model
// standing for its assembly.
std::optional<ListedDrawings> DrawingsOfCurrentModel();

}  // namespace qm
