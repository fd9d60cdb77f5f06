// Asks for names in the message area.
#include "assembly/new_model/typed_copy.h"

#include <optional>
#include <string>

#include "assembly/new_model/model_copy.h"
#include "assembly/new_model/new_name_rules.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "toolkit/message.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// A host that can show a prompt and never read it would ask for ever.
constexpr int kMostEmptyReplies = 20;

ProError ShowPrompt(const NamePrompt& prompt) {
  std::wstring file = kNoteFile;
  return prompt.offered != nullptr ? ProMessageDisplay(file.data(), prompt.key, prompt.offered)
                                   : ProMessageDisplay(file.data(), prompt.key);
}

// An empty name for a reply without any text, which the host refuses to take.
std::optional<std::wstring> ReadReply() {
  ProLine reply = {};
  const ProError status = ProMessageStringRead(static_cast<int>(kLongestNewName), reply);
  if (status == PRO_TK_MSG_USER_QUIT) {
    LogOutcome("nothing made, the user quit the prompt");
    return std::nullopt;
  }
  if (status == PRO_TK_GENERAL_ERROR) return L"";
  const std::wstring name(FixedText(reply));
  // Nobody can answer a prompt that reads nothing: asking again would never end.
  if (Ok(status) && !name.empty()) return name;
  LogFailure(std::wstring_view(), "ProMessageStringRead", status);
  LogOutcome("nothing made, the prompt cannot be read");
  return std::nullopt;
}

std::optional<std::wstring> AskForName(const NamePrompt& prompt) {
  const ProError status = ShowPrompt(prompt);
  if (!Ok(status)) {
    LogFailure(std::wstring_view(), "ProMessageDisplay", status);
    LogOutcome("nothing made, the prompt cannot be shown");
    return std::nullopt;
  }
  // Deliberately those before the last one count for nothing, not even when the user quits.
  for (int reply = 1; reply < prompt.replies; ++reply) {
    ProLine unused = {};
    const ProError read = ProMessageStringRead(static_cast<int>(kLongestNewName), unused);
    const bool is_answered = Ok(read) ? unused[0] != 0 : read == PRO_TK_MSG_USER_QUIT;
    if (!is_answered) LogFailure(std::wstring_view(), "ProMessageStringRead", read);
  }
  return ReadReply();
}

}  // namespace

ProMdl CopyUnderTypedName(ProMdl source, const NamePrompt& prompt) {
  int empty = 0;  // replies in a row
  while (const auto name = AskForName(prompt)) {
    if (const ProMdl copy = CopyModel(source, *name)) return copy;
    ShowMessage(L"\t名称已存在或输入非法，请重新输入\t");
    empty = name->empty() ? empty + 1 : 0;
    if (empty == kMostEmptyReplies) {
      LogOutcome("nothing made, no name was typed");
      break;
    }
  }
  return nullptr;
}

}  // namespace qm
