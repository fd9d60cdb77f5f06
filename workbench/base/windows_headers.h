// Windows' own header without its macros that would rename the workbench's MessageBox and
// FindWindow.
#pragma once

#include <windows.h>

#undef FindWindow
#undef MessageBox
