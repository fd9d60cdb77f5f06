// The commands that only show information.
#include "frame/commands/information_commands.h"

#include <string>

#include "frame/dialogs/dialog.h"
#include "frame/guard/host_binding.h"
#include "frame/messages/message_box.h"
#include "frame/text/text.h"
#include "frame/text/version.h"

namespace qm {
namespace {

constexpr std::size_t kMaxNamedFunctions = 10;

ProError ShowInformationDialog(const char* name) {
  Dialog dialog(name);
  if (!dialog.Create()) return PRO_TK_GENERAL_ERROR;
  dialog.BindClose();
  dialog.BindCloseButton();
  const bool was_shown = dialog.Activate();
  dialog.Destroy();
  return was_shown ? PRO_TK_NO_ERROR : PRO_TK_GENERAL_ERROR;
}

std::wstring BindingText(const HostBinding& binding) {
  if (binding.by_vendor_library) return L"\t宿主接口：已由厂商库绑定\t";
  std::wstring text = L"\t宿主接口：已查找 " + std::to_wstring(binding.looked_up) +
                      L" 个函数，已绑定 " + std::to_wstring(binding.bound) + L" 个，缺失 " +
                      std::to_wstring(binding.missing.size()) + L" 个\t";
  const std::size_t named = std::min(binding.missing.size(), kMaxNamedFunctions);
  for (std::size_t i = 0; i < named; ++i) text += L"\n\t　" + FromAnsi(binding.missing[i]) + L"\t";
  if (named < binding.missing.size()) text += L"\n\t　…\t";
  return text;
}

}  // namespace

ProError QmQQGroup() {
  return ShowInformationDialog("QmQQGroup");
}

ProError AboutQm() {
  return ShowInformationDialog("AboutQm");
}

ProError QmVersion() {
  const std::wstring product = FromAnsi(QM_PRODUCT_NAME " " QM_VERSION_TEXT);
  const std::wstring build = FromAnsi(QM_BUILD_ID);
  ShowMessage(L"\t" + std::wstring(kCaption) + L" " + product + L"\t\n\t构建：" + build + L"\t\n" +
              BindingText(CurrentHostBinding()));
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
