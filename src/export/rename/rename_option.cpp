// Reads and sets the option.
#include "export/rename/rename_option.h"

#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr wchar_t kDefault[] = L"no";

// Empty when it has no value, for which any failure stands.
std::wstring Ask() {
  wchar_t option[] = L"override_store_back";
  ProPath value = {};
  if (!Ok(ProConfigoptGet(option, value))) return {};
  return std::wstring(FixedText(value));
}

void Set(std::wstring value) {
  wchar_t option[] = L"override_store_back";
  const ProError status = ProConfigoptSet(option, value.data());
  if (!Ok(status)) LogFailure(nullptr, "ProConfigoptSet", status);
}

}  // namespace

// Asked twice: a host that has no value has none again, and one that merely failed to tell it would
// lose the user's.
StoreBackOption::StoreBackOption() : before_(Ask()) {
  if (before_.empty()) before_ = Ask();
  if (before_.empty()) before_ = kDefault;
  Set(L"yes");
}

// The host's answer is no proof.
void StoreBackOption::Restore() {
  Set(before_);
  if (Ask() != before_) Set(before_);
}

}  // namespace qm
