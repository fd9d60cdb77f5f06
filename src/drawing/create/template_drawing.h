// Drawings made of drawing templates.
#pragma once

#include <string>

#include "frame/folders/working_directory.h"
#include "toolkit/drawing.h"

namespace qm {

struct NewDrawing {
  ProError status = PRO_TK_GENERAL_ERROR;
  ProDrawing drawing = nullptr;  // never null when the status is PRO_TK_NO_ERROR
};

// A drawing of `model`, displayed, made of a template: one of the working directory by its name, or
// of any folder by its full path.
NewDrawing MakeDrawing(const std::wstring& name, ProMdl model, std::wstring template_name);

// The same, of the toolbox's own template in the folder "tp" beside the plug-in; `directory` is
// left for that long.
NewDrawing MakeToolboxDrawing(WorkingDirectory& directory, const std::wstring& name, ProMdl model);

// Shows why there is no drawing: `exists` and `no_template` for these two, the host's word for
// those that it explains itself, nothing for any other.
void ShowNoDrawing(ProError status, const wchar_t* exists, const wchar_t* no_template);

}  // namespace qm
