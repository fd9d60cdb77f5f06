// Host functions of the array family, and of the texts the host hands out.
#include "workbench/host/arguments.h"

namespace wb {
namespace {

// An array of texts on account, each text by itself. A fault that keeps the array from being given
// back does so with the texts in it.
struct TextsGivenBack : GivenBack<wchar_t*> {
  using GivenBack::GivenBack;
  void Forgive(Host& host) const {
    if (!host.accounts.Check(lent, Resource::kArray).empty()) return;
    const int count = ArraySize(Call(host, "ProWstringproarrayFree", 0), lent);
    for (int i = 0; i < count; ++i) host.accounts.Forgive(lent[i]);
    GivenBack::Forgive(host);
  }
};

// Who is not told how many elements there are cannot free the constraints among them, but may ask
// again.
struct CountedArrayIn : DataIn {
  void Forgive(Host& host) const {
    if (!host.accounts.Check(data, Resource::kArray).empty()) return;
    if (ArrayObjectSize(data) != static_cast<int>(sizeof(void*))) return;
    const int count = ArraySize(Call(host, "ProArraySizeGet", 0), data);
    for (int i = 0; i < count; ++i) {
      const void* const element = static_cast<void**>(data)[i];
      if (host.accounts.Check(element, Resource::kConstraint).empty()) {
        host.accounts.Excuse(element);
      }
    }
  }
};

}  // namespace
}  // namespace wb

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
  return Crossing(__func__, CountedArrayIn{{array}}, Out(size, "size place"))
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

ProError ProWstringproarrayFree(wchar_t** texts) {
  return Crossing(__func__, TextsGivenBack(texts)).Run([](const Call& call, wchar_t** lent) {
    const int count = ArraySize(call, lent);
    for (int i = 0; i < count; ++i) {
      call.TakeBack(lent[i], Resource::kWideText);
      std::free(lent[i]);
    }
    FreeArray(call, lent);
  });
}
