// Pieces that several families of host functions share.
#pragma once

#include "workbench/call.h"

namespace wb {

// A new array of the host's, on account of the plug-in, its elements zeroed.
void* NewArray(const Call& call, int count, int object_size);
// Checks that `array` is out and gives its element count.
int ArraySize(const Call& call, const void* array);
int ArrayObjectSize(const void* array);
// Ends an array that the plug-in gives back.
void FreeArray(const Call& call, void* array);

// A selection on account of the plug-in.
ProSelection NewSelection(const Call& call, const PickedItem& item);
void FreeSelection(const Call& call, ProSelection selection);

ProModelitem ModelItemOf(const Model& model);
std::filesystem::path PathArgument(const Call& call, const wchar_t* path, const char* what);

}  // namespace wb
