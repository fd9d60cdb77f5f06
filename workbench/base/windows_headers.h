// Windows' own header without those of its macros that would rename what the workbench calls so.
#pragma once

#include <windows.h>

#undef FindWindow
#undef MessageBox
#undef near
