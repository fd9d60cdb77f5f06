// Tries one name after another.
#include "assembly/new_model/free_name.h"

#include "frame/messages/message_box.h"
#include "frame/models/retrieve.h"

namespace qm {

std::optional<std::wstring> FindFreeName(const NewNaming& naming, std::size_t longest) {
  for (int number = 1;; ++number) {
    std::wstring name = NumberedName(naming, number);
    if (name.size() > longest) {
      // Deliberately without the tabs of other refusals.
      ShowMessage(L"新建模型名称长度不能超过32位");
      return std::nullopt;
    }
    if (RetrieveIfThere(name, naming.probed_as) == nullptr) return name;
  }
}

}  // namespace qm
