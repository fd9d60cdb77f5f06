// Windows' own header without its macro that would rename the workbench's MessageBox.
#pragma once

#include <windows.h>

#undef MessageBox
