// Windows' own header without its macros that would rename the workbench's MessageBox and
// FindWindow, or take the word "near" away.
#pragma once

#include <windows.h>

#undef FindWindow
#undef MessageBox
#undef near
