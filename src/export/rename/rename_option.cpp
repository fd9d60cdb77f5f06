// Reads and sets the option, without memory of its own.
#include "export/rename/rename_option.h"

#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr wchar_t kDefault[] = L"no";

// Empty when it has no value, for which any failure stands.
void Ask(ProPath& value) {
  wchar_t option[] = L"override_store_back";
  value[0] = L'\0';
  if (!Ok(ProConfigoptGet(option, value))) value[0] = L'\0';
}

void Set(wchar_t* value) {
  wchar_t option[] = L"override_store_back";
  const ProError status = ProConfigoptSet(option, value);
  if (!Ok(status)) LogFailure(nullptr, "ProConfigoptSet", status);
}

}  // namespace

// Asked twice: a host that has no value has none again, and one that merely failed to tell it would
// lose the user's.
StoreBackOption::StoreBackOption() {
  Ask(before_);
  if (FixedText(before_).empty()) Ask(before_);
  if (FixedText(before_).empty()) static_cast<void>(FillFixedText(kDefault, before_));
  wchar_t yes[] = L"yes";
  Set(yes);
}

// The host's answer is no proof.
void StoreBackOption::Restore() {
  if (is_done_) return;
  is_done_ = true;
  Set(before_);
  ProPath now = {};
  Ask(now);
  if (FixedText(now) != FixedText(before_)) Set(before_);
}

}  // namespace qm
