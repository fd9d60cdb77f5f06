// Host functions of the array family, and of the texts the host hands out.
#include "workbench/host/arguments.h"

using namespace wb;

ProError ProArrayAlloc(int n_objects, int object_size, int reallocation_size, ProArray* array) {
  return Crossing(__func__, n_objects, object_size, reallocation_size, Out(array, "array place"))
      .Run([](const Call& call, int count, int size, int step, ProArray& place) {
        if (count < 0 || size <= 0 || step <= 0) call.Fail("sizes must be positive");
        place = NewArray(call, count, size);
      });
}

ProError ProArrayFree(ProArray* array) {
  return Crossing(__func__, PlaceGivenBack(array, "array place"))
      .Run([](const Call& call, ProArray& place) {
        FreeArray(call, place);
        place = nullptr;
      });
}

ProError ProArraySizeGet(ProArray array, int* size) {
  return Crossing(__func__, DataIn{array}, Out(size, "size place"))
      .Run([](const Call& call, ProArray from, int& place) { place = ArraySize(call, from); });
}

ProError ProArrayObjectAdd(ProArray* array, int index, int n_objects, void* object) {
  return Crossing(__func__, RecordIn(array, "array place"), index, n_objects, DataIn{object})
      .Run([](const Call& call, ProArray& place, int at, int count, const void* objects) {
        ArraySize(call, place);
        if (count <= 0 || objects == nullptr) call.Fail("no objects to add");
        place = AddToArray(call, place, at, count, objects);
      });
}

ProError ProStringarrayFree(char** strings, int count) {
  return Crossing(__func__, GivenBack(strings), count)
      .Run([](const Call& call, char** texts, int given) {
        FreeTexts(call, texts, given, Resource::kStringArray);
      });
}

ProError ProStringFree(char* text) {
  return Crossing(__func__, GivenBack(text)).Run([](const Call& call, char* lent) {
    call.TakeBack(lent, Resource::kNarrowText);
    std::free(lent);
  });
}

ProError ProWstringarrayFree(wchar_t** strings, int count) {
  return Crossing(__func__, GivenBack(strings), count)
      .Run([](const Call& call, wchar_t** texts, int given) {
        FreeTexts(call, texts, given, Resource::kWideTextArray);
      });
}

ProError ProWstringFree(wchar_t* text) {
  return Crossing(__func__, GivenBack(text)).Run([](const Call& call, wchar_t* lent) {
    call.TakeBack(lent, Resource::kWideText);
    std::free(lent);
  });
}
