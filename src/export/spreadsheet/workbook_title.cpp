// Asks for the current model's name.
#include "export/spreadsheet/workbook_title.h"

#include "frame/messages/message_box.h"
#include "frame/models/model_name.h"
#include "toolkit/model.h"
#include "toolkit/status.h"

namespace qm {

std::optional<std::wstring> TitleOfCurrentModel(const wchar_t* what) {
  ProMdl model = nullptr;
  std::optional<std::wstring> name;
  if (Ok(ProMdlCurrentGet(&model)) && model != nullptr) name = ModelName(model);
  if (name) return *name + what;
  ShowMessage(L"\t无法读取当前模型的名称，操作已停止。\t");
  return std::nullopt;
}

}  // namespace qm
