// The run that the component exports share: a file for each model, and at the end what became of
// them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "export/components/component_models.h"
#include "toolkit/types.h"

namespace qm {

struct ComponentFormat {
  const wchar_t* extension;
  const wchar_t* done;  // what is said at the end
  std::function<ProError(ProMdl model, ProPath file)> write;
  // Asked after each file; a text ends the run, and is said instead.
  std::function<const wchar_t*(ProMdl model, bool is_there)> objection = {};
};

// What the host writes by its number of a 3D format, as it does for STEP and IGES.
std::function<ProError(ProMdl, ProPath)> OutputFileWriter(int type);

// The files of `components` are named beside each other; `chosen` says which of them are written.
ProError ExportComponents(const ComponentModels& components, const std::vector<bool>& chosen,
                          const std::wstring& folder, const ComponentFormat& format);
ProError ExportAllComponents(const ComponentModels& components, const std::wstring& folder,
                             const ComponentFormat& format);

}  // namespace qm
