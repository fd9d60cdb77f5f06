// Where the test program and the little plug-ins built beside it lie.
#pragma once

#include <filesystem>

#include "workbench/base/windows_headers.h"

inline std::filesystem::path TestBinaryFolder() {
  wchar_t path[MAX_PATH] = {};
  ::GetModuleFileNameW(nullptr, path, MAX_PATH - 1);
  return std::filesystem::path(path).parent_path();
}
