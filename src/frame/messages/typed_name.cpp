// Prompts for names and their replies.
#include "frame/messages/typed_name.h"

#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "toolkit/message.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr wchar_t kRefusedName[] = L"\t名称已存在或输入非法，请重新输入\t";
constexpr int kMostEmptyReplies = 20;

}  // namespace

bool ShowNamePrompt(const char* key, const wchar_t* offered) {
  std::wstring file = kNoteFile;
  const ProError status = offered != nullptr ? ProMessageDisplay(file.data(), key, offered)
                                             : ProMessageDisplay(file.data(), key);
  if (Ok(status)) return true;
  LogFailure(std::string("the prompt cannot be shown: ProMessageDisplay answered ") +
             StatusName(status));
  return false;
}

NameReply ReadName(int longest) {
  ProLine text = {};
  const ProError status = ProMessageStringRead(longest, text);
  if (Ok(status)) return {status, std::wstring(FixedText(text))};
  if (status == PRO_TK_GENERAL_ERROR) return {PRO_TK_NO_ERROR, {}};
  if (status != PRO_TK_MSG_USER_QUIT) {
    LogFailure(std::string("the prompt cannot be read: ProMessageStringRead answered ") +
               StatusName(status));
  }
  return {status, {}};
}

bool RefusedNames::AskAgain(const std::wstring& name) {
  ShowMessage(kRefusedName);
  empty_ = name.empty() ? empty_ + 1 : 0;
  return empty_ < kMostEmptyReplies;
}

}  // namespace qm
