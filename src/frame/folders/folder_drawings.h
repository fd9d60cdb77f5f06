// The files of models in the working directory, and its drawings for commands that go through them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/types.h"

namespace qm {

inline constexpr wchar_t kNoDrawings[] = L"当前工作目录下无工程图";

// Files of models by patterns like "*.drw", several parted by commas: paths with versions in the
// order of the host's list, in which one name may stand more than once.
std::vector<std::wstring> FilesOfFolder(std::wstring filter);

// Names of the drawings in the order of the host's list, each once. Empty when there are none; the
// user then reads so.
std::vector<std::wstring> DrawingsOfFolder();

// Calls `work` with each drawing in turn, retrieved by its name, and tells the user every 20
// drawings how far it is. One that cannot be retrieved is passed over with a line in the run log.
void ForEachDrawing(const std::vector<std::wstring>& names,
                    const std::function<void(ProDrawing drawing, const std::wstring& name)>& work);

struct FileParts {
  std::wstring name;       // without folder, extension and version
  std::wstring extension;  // without its dot
};
// Nothing, after a line in the run log, when the host cannot part the path.
std::optional<FileParts> PartsOfPath(const std::wstring& path);

// The name alone; empty when the host cannot part the path.
std::wstring NameInPath(const std::wstring& path);

}  // namespace qm
