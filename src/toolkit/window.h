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
// As the user's Close: the window goes, its model stays in session.
PRO_FUNCTION(ProError, ProWindowCurrentClose);
// Another window than the current one, which PRO_TK_BAD_CONTEXT refuses.
PRO_FUNCTION(ProError, ProWindowDelete, int window);
PRO_FUNCTION(ProError, ProTreetoolRefresh, ProMdl model);

PRO_FUNCTION(ProError, ProDirectoryCurrentGet, ProPath path);
PRO_FUNCTION(ProError, ProDirectoryChange, ProPath path);

// The first value, into a buffer of PRO_PATH_SIZE; any failure: it has none.
PRO_FUNCTION(ProError, ProConfigoptGet, wchar_t* option, wchar_t* value);
// For this session; adds to an option that takes several values.
PRO_FUNCTION(ProError, ProConfigoptSet, wchar_t* option, wchar_t* value);
// `values` is a ProArray of ProPath that the caller frees.
PRO_FUNCTION(ProError, ProConfigoptArrayGet, ProName option, ProPath** values);

// Optional arguments may be null; PRO_TK_USER_ABORT when the user cancels.
PRO_FUNCTION(ProError, ProFileOpen, wchar_t* title, wchar_t* filter, ProPath* shortcut_paths,
             ProName* shortcut_names, wchar_t* start_folder, wchar_t* preselected, ProPath chosen);
// The same for a file that need not exist; the host may or may not add the extension.
PRO_FUNCTION(ProError, ProFileSave, wchar_t* title, wchar_t* filter, ProPath* shortcut_paths,
             ProName* shortcut_names, wchar_t* start_folder, wchar_t* preselected, ProPath chosen);
// As for files; the folder may or may not end with a separator.
PRO_FUNCTION(ProError, ProDirectoryChoose, wchar_t* title, ProPath* shortcut_paths,
             ProName* shortcut_names, wchar_t* start_folder, ProPath chosen);

// Folder that holds the application's text folder, as registered with the host.
PRO_FUNCTION(ProError, ProToolkitApplTextPathGet, ProPath path);
