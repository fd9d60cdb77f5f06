// Host functions of the array family, and of the texts the host hands out.
#include "workbench/host/loans.h"

using namespace wb;

ProError ProArrayAlloc(int n_objects, int object_size, int reallocation_size, ProArray* array) {
  return Crossing("ProArrayAlloc", n_objects, object_size, reallocation_size, Out(array))
      .Run([&](Call& call) {
        ProArray& place = call.Place(array, "array place");
        if (n_objects < 0 || object_size <= 0 || reallocation_size <= 0) {
          call.Fail("sizes must be positive");
        }
        place = NewArray(call, n_objects, object_size);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProArrayFree(ProArray* array) {
  return Crossing("ProArrayFree", array).Run([&](Call& call) {
    ProArray& place = call.Place(array, "array place");
    FreeArray(call, place);
    place = nullptr;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProArraySizeGet(ProArray array, int* size) {
  return Crossing("ProArraySizeGet", array, Out(size)).Run([&](Call& call) {
    call.Place(size, "size place") = ArraySize(call, array);
    return PRO_TK_NO_ERROR;
  });
}

ProError ProArrayObjectAdd(ProArray* array, int index, int n_objects, void* object) {
  return Crossing("ProArrayObjectAdd", array, index, n_objects, object).Run([&](Call& call) {
    ProArray& place = call.Place(array, "array place");
    ArraySize(call, place);
    if (n_objects <= 0 || object == nullptr) call.Fail("no objects to add");
    place = AddToArray(call, place, index, n_objects, object);
    return PRO_TK_NO_ERROR;
  });
}

ProError ProStringarrayFree(char** strings, int count) {
  return Crossing("ProStringarrayFree", strings, count).Run([&](Call& call) {
    FreeTexts(call, strings, count, Resource::kStringArray);
    return PRO_TK_NO_ERROR;
  });
}

ProError ProWstringFree(wchar_t* text) {
  return Crossing("ProWstringFree", static_cast<const void*>(text)).Run([&](Call& call) {
    call.TakeBack(text, Resource::kWideText);
    std::free(text);
    return PRO_TK_NO_ERROR;
  });
}
