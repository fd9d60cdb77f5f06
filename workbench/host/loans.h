// What the host lends to the plug-in, on account: arrays, texts, selections.
#pragma once

#include <cstdlib>
#include <string>
#include <vector>

#include "workbench/host/call.h"

namespace wb {

// A new array, its elements zeroed.
void* NewArray(const Call& call, int count, int object_size);
// Checks that `array` is out and gives its element count.
int ArraySize(const Call& call, const void* array);
int ArrayObjectSize(const void* array);
// Adds `count` objects at `index`; gives the array's new place.
void* AddToArray(const Call& call, void* array, int index, int count, const void* objects);
// Ends an array that the plug-in gives back.
void FreeArray(const Call& call, void* array);

ProSelection NewSelection(const Call& call, const PickedItem& item);
void FreeSelection(const Call& call, ProSelection selection);
// A selection that stays the host's own, and its end.
ProSelection OwnSelection(Host& host, const PickedItem& item);
void EndSelection(Host& host, ProSelection selection);

// Arrays of texts end with a null, by which FreeTexts knows their count.
wchar_t* GiveWide(const Call& call, const std::string& text);
char* GiveNarrow(const Call& call, const std::string& text);
char** GiveNames(const Call& call, const std::vector<std::string>& names);
wchar_t** GiveWideTexts(const Call& call, const std::vector<std::string>& texts);

// Ends an array of texts that the plug-in gives back with the count it was given.
template <typename Character>
void FreeTexts(const Call& call, Character** texts, int count, Resource resource) {
  const std::string wrong = call.host.accounts.Check(texts, resource);
  if (!wrong.empty()) call.Fail(wrong);
  int given = 0;
  while (texts[given] != nullptr) ++given;
  if (count != given) {
    call.Fail("count " + std::to_string(count) + " for an array of " + std::to_string(given));
  }
  call.TakeBack(texts, resource);
  for (int i = 0; i < count; ++i) std::free(texts[i]);
  std::free(texts);
}

}  // namespace wb
