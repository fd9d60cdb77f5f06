// Modes, windows, model tree, working directory, configuration options and file choice.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

PRO_FUNCTION(ProError, ProModeCurrentGet, ProMode* mode);

// 0 is a window as well.
PRO_FUNCTION(ProError, ProWindowCurrentGet, int* window);
// Decides what the current model is, not what the user sees as active.
PRO_FUNCTION(ProError, ProWindowCurrentSet, int window);
PRO_FUNCTION(ProError, ProWindowActivate, int window);
PRO_FUNCTION(ProError, ProWindowMdlGet, int window, ProMdl* model);
PRO_FUNCTION(ProError, ProWindowRepaint, int window);
PRO_FUNCTION(ProError, ProObjectwindowCreate, ProName name, ProType type, int* window);
PRO_FUNCTION(ProError, ProTreetoolRefresh, ProMdl model);

PRO_FUNCTION(ProError, ProDirectoryCurrentGet, ProPath path);
PRO_FUNCTION(ProError, ProDirectoryChange, ProPath path);

// `values` is a ProArray of ProPath that the caller frees.
PRO_FUNCTION(ProError, ProConfigoptArrayGet, ProName option, ProPath** values);

// Optional arguments may be null; PRO_TK_USER_ABORT when the user cancels.
PRO_FUNCTION(ProError, ProFileOpen, wchar_t* title, wchar_t* filter, ProPath* shortcut_paths,
             ProName* shortcut_names, wchar_t* start_folder, wchar_t* preselected, ProPath chosen);

// Folder that holds the application's text folder, as registered with the host.
PRO_FUNCTION(ProError, ProToolkitApplTextPathGet, ProPath path);
