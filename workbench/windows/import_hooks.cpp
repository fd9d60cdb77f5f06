// Patches the import table of a loaded module, so that its calls of a few Windows functions come
// here. Neither the file nor anybody else's calls are touched.
#include <cstring>

#include "workbench/base/windows_headers.h"
#include "workbench/host/windows_calls.h"
#include "workbench/windows/windows_hooks.h"

namespace wb {
namespace {

const Hook* HookOf(HookRows hooks, const char* name) {
  for (const Hook& hook : hooks) {
    if (std::strcmp(hook.name, name) == 0) return &hook;
  }
  return nullptr;
}

void Replace(ULONGLONG& slot, void* replacement) {
  DWORD before = 0;
  ::VirtualProtect(&slot, sizeof(slot), PAGE_READWRITE, &before);
  slot = reinterpret_cast<ULONGLONG>(replacement);
  ::VirtualProtect(&slot, sizeof(slot), before, &before);
}

class ImportTable {
 public:
  explicit ImportTable(void* module) : base_(static_cast<BYTE*>(module)) {}

  const IMAGE_IMPORT_DESCRIPTOR* Descriptors() const {
    const auto* const dos = At<IMAGE_DOS_HEADER>(0);
    const auto* const headers = At<IMAGE_NT_HEADERS64>(static_cast<DWORD>(dos->e_lfanew));
    const IMAGE_DATA_DIRECTORY& directory =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    return directory.Size == 0 ? nullptr : At<IMAGE_IMPORT_DESCRIPTOR>(directory.VirtualAddress);
  }

  void Intercept(const IMAGE_IMPORT_DESCRIPTOR& library, HookRows hooks,
                 Interception& result) const {
    const auto* name = At<IMAGE_THUNK_DATA64>(library.OriginalFirstThunk);
    auto* slot = At<IMAGE_THUNK_DATA64>(library.FirstThunk);
    for (; name->u1.AddressOfData != 0; ++name, ++slot) {
      if (IMAGE_SNAP_BY_ORDINAL64(name->u1.Ordinal)) {
        result.by_ordinal.push_back(std::string(At<char>(library.Name)) + "#" +
                                    std::to_string(IMAGE_ORDINAL64(name->u1.Ordinal)));
        continue;
      }
      const auto* const by_name =
          At<IMAGE_IMPORT_BY_NAME>(static_cast<DWORD>(name->u1.AddressOfData));
      const auto* const name_text = reinterpret_cast<const char*>(by_name->Name);
      const Hook* const hook = HookOf(hooks, name_text);
      if (hook == nullptr) {
        result.left.emplace_back(name_text);
        continue;
      }
      Replace(slot->u1.Function, hook->replacement);
      result.replaced.push_back(hook->name);
    }
  }

 private:
  template <typename T>
  T* At(DWORD offset) const {
    return reinterpret_cast<T*>(base_ + offset);
  }

  BYTE* base_;
};

}  // namespace

Interception InterceptImports(void* module) {
  return InterceptImports(module, Hooks());
}

Interception InterceptImports(void* module, HookRows hooks) {
  const ImportTable table(module);
  Interception result;
  const IMAGE_IMPORT_DESCRIPTOR* library = table.Descriptors();
  // A library without its table of names has nothing to go by.
  for (; library != nullptr && library->FirstThunk != 0; ++library) {
    if (library->OriginalFirstThunk != 0) table.Intercept(*library, hooks, result);
  }
  return result;
}

}  // namespace wb
