// Windows' own header without its macros that would rename what the workbench has of that name.
#pragma once

#include <windows.h>

#undef MessageBox
#undef FindWindow
