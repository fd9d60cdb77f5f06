// Lends arrays, texts and selections, and takes them back.
#include "workbench/host/loans.h"

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

template <typename Character>
Character* CopyText(const std::basic_string<Character>& text) {
  const size_t bytes = (text.size() + 1) * sizeof(Character);
  auto* const copy = static_cast<Character*>(std::malloc(bytes));
  std::memcpy(copy, text.c_str(), bytes);
  return copy;
}

template <typename Character, typename Convert>
Character** GiveTexts(const Call& call, const std::vector<std::string>& texts, Resource resource,
                      Convert convert) {
  auto** const copies =
      static_cast<Character**>(std::malloc((texts.size() + 1) * sizeof(Character*)));
  for (size_t i = 0; i < texts.size(); ++i) copies[i] = CopyText(convert(texts[i]));
  copies[texts.size()] = nullptr;
  call.Give(copies, resource);
  return copies;
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

void* AddToArray(const Call& call, void* array, int index, int count, const void* objects) {
  ArrayHeader* header = Checked(call, array);
  if (index != PRO_VALUE_UNUSED && (index < 0 || index > header->size)) {
    call.Fail("index " + std::to_string(index) + " outside the array");
  }
  header = Grown(call, header, header->size + count);
  Insert(header, index == PRO_VALUE_UNUSED ? header->size : index, count, objects);
  return header + 1;
}

int ArrayObjectSize(const void* array) {
  return HeaderOf(array)->object_size;
}

ProSelection OwnSelection(Host& host, const PickedItem& item) {
  auto* const copy = new PickedItem(item);
  host.picked.insert(copy);
  return static_cast<ProSelection>(host.handles.Give(HandleKind::kSelection, copy));
}

void EndSelection(Host& host, ProSelection selection) {
  const HandleTable::Found found = host.handles.Look(selection, HandleKind::kSelection);
  if (found.object == nullptr) return;
  auto* const item = static_cast<PickedItem*>(found.object);
  host.handles.End(selection);
  host.picked.erase(item);
  delete item;
}

ProSelection NewSelection(const Call& call, const PickedItem& item) {
  const ProSelection selection = OwnSelection(call.host, item);
  call.Give(selection, Resource::kSelection);
  return selection;
}

void FreeSelection(const Call& call, ProSelection selection) {
  call.SelectionAt(selection);
  call.TakeBack(selection, Resource::kSelection);
  EndSelection(call.host, selection);
}

wchar_t* GiveWide(const Call& call, const std::string& text) {
  wchar_t* const copy = CopyText(ToWide(text));
  call.Give(copy, Resource::kWideText);
  return copy;
}

char* GiveNarrow(const Call& call, const std::string& text) {
  char* const copy = CopyText(ToAnsi(text));
  call.Give(copy, Resource::kNarrowText);
  return copy;
}

char** GiveNames(const Call& call, const std::vector<std::string>& names) {
  return GiveTexts<char>(call, names, Resource::kStringArray, ToAnsi);
}

wchar_t** GiveWideTexts(const Call& call, const std::vector<std::string>& texts) {
  return GiveTexts<wchar_t>(call, texts, Resource::kWideTextArray,
                            [](const std::string& text) { return ToWide(text); });
}

}  // namespace wb
