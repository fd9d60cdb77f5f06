// QmVersion: what runs here, and how it is bound to its host.
#include "frame/commands/version.h"

#include <algorithm>
#include <string>

#include "frame/guard/host_binding.h"
#include "frame/messages/message_box.h"
#include "frame/text/text.h"
#include "frame/text/version.h"

namespace qm {
namespace {

constexpr std::size_t kMaxNamedFunctions = 10;

std::wstring BindingText(const HostBinding& binding) {
  if (binding.by_vendor_library) return L"\t宿主接口：已由厂商库绑定\t";
  std::wstring text = L"\t宿主接口：共 " + std::to_wstring(binding.declared) + L" 个函数，已绑定 " +
                      std::to_wstring(binding.bound) + L" 个，缺失 " +
                      std::to_wstring(binding.missing.size()) + L" 个，尚未使用 " +
                      std::to_wstring(binding.declared - binding.looked_up) + L" 个\t";
  const std::size_t named = std::min(binding.missing.size(), kMaxNamedFunctions);
  for (std::size_t i = 0; i < named; ++i) text += L"\n\t　" + FromAnsi(binding.missing[i]) + L"\t";
  if (named < binding.missing.size()) text += L"\n\t　…\t";
  return text;
}

}  // namespace

ProError QmVersion() {
  const std::wstring product = FromAnsi(QM_PRODUCT_NAME " " QM_VERSION_TEXT);
  const std::wstring build = FromAnsi(QM_BUILD_ID);
  ShowMessage(L"\t" + std::wstring(kCaption) + L" " + product + L"\t\n\t构建：" + build + L"\t\n" +
              BindingText(CurrentHostBinding()));
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
