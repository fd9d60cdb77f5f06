// The drawings in the working directory, for commands that go through a folder.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/types.h"

namespace qm {

// Names of the drawings in the order of the host's list, each once. Empty when there are none; the
// user then reads so.
std::vector<std::wstring> DrawingsOfFolder();

// Calls `work` with each drawing in turn, retrieved by its name, and tells the user every 20
// drawings how far it is. One that cannot be retrieved is passed over with a line in the run log.
void ForEachDrawing(const std::vector<std::wstring>& names,
                    const std::function<void(ProDrawing drawing, const std::wstring& name)>& work);

// The name of the file in a path, without folder, extension and version; empty, after a line in the
// run log, when the host cannot part the path.
std::wstring NameInPath(const std::wstring& path);

}  // namespace qm
