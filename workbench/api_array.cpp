// Host functions of the array family, and of the texts the host hands out.
#include <cstdlib>

#include "workbench/api_ui_shared.h"

namespace wb {
namespace {

// Stands before the first element. Its size keeps the elements aligned.
struct ArrayHeader {
  int size;
  int object_size;
  int capacity;
  int unused[5];
};
static_assert(sizeof(ArrayHeader) == 32);

ArrayHeader* HeaderOf(const void* array) {
  return reinterpret_cast<ArrayHeader*>(static_cast<char*>(const_cast<void*>(array)) -
                                        sizeof(ArrayHeader));
}

ArrayHeader* Checked(const Call& call, const void* array) {
  const std::string wrong = call.host.accounts.Check(array, Resource::kArray);
  if (!wrong.empty()) call.Fail(wrong);
  return HeaderOf(array);
}

size_t Bytes(int count, int object_size) {
  return static_cast<size_t>(count) * static_cast<size_t>(object_size);
}

// Grows by doubling whatever step was asked for: the step is a hint of the host's interface.
ArrayHeader* Grown(const Call& call, ArrayHeader* header, int wanted) {
  if (wanted <= header->capacity) return header;
  const int capacity = wanted * 2;
  auto* const grown = static_cast<ArrayHeader*>(
      std::malloc(sizeof(ArrayHeader) + Bytes(capacity, header->object_size)));
  std::memcpy(grown, header, sizeof(ArrayHeader) + Bytes(header->size, header->object_size));
  grown->capacity = capacity;
  call.host.accounts.MoveTo(header + 1, grown + 1);
  std::free(header);
  return grown;
}

void Insert(ArrayHeader* header, int index, int count, const void* objects) {
  char* const first = reinterpret_cast<char*>(header + 1);
  char* const place = first + Bytes(index, header->object_size);
  std::memmove(place + Bytes(count, header->object_size), place,
               Bytes(header->size - index, header->object_size));
  std::memcpy(place, objects, Bytes(count, header->object_size));
  header->size += count;
}

}  // namespace

void* NewArray(const Call& call, int count, int object_size) {
  auto* const header =
      static_cast<ArrayHeader*>(std::calloc(1, sizeof(ArrayHeader) + Bytes(count, object_size)));
  header->size = count;
  header->object_size = object_size;
  header->capacity = count;
  call.Give(header + 1, Resource::kArray);
  return header + 1;
}

int ArraySize(const Call& call, const void* array) {
  return Checked(call, array)->size;
}

void FreeArray(const Call& call, void* array) {
  call.TakeBack(array, Resource::kArray);
  std::free(HeaderOf(array));
}

int ArrayObjectSize(const void* array) {
  return HeaderOf(array)->object_size;
}

}  // namespace wb

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
    ArrayHeader* header = Checked(call, place);
    if (n_objects <= 0 || object == nullptr) call.Fail("no objects to add");
    if (index != PRO_VALUE_UNUSED && (index < 0 || index > header->size)) {
      call.Fail("index " + std::to_string(index) + " outside the array");
    }
    header = Grown(call, header, header->size + n_objects);
    place = header + 1;
    Insert(header, index == PRO_VALUE_UNUSED ? header->size : index, n_objects, object);
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
