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

struct Reply {
  ProError status;
  std::wstring text;
};

Reply ReadReply() {
  ProLine text = {};
  const ProError status = ProMessageStringRead(static_cast<int>(kLongestNewName), text);
  return {status, Ok(status) ? std::wstring(FixedText(text)) : std::wstring()};
}

// A default is offered where a reply counts for nothing, so that the host has a text for it.
// Without one it has read nothing, and the reply meant for it is the next one's.
void ReadUnused() {
  const Reply reply = ReadReply();
  if (reply.status == PRO_TK_MSG_USER_QUIT || !reply.text.empty()) return;
  LogFailure(std::wstring_view(), "ProMessageStringRead", reply.status);
}

// Every reply is tried as a name, also an empty one, which the host refuses to take.
std::optional<std::wstring> ReadName() {
  const Reply reply = ReadReply();
  if (Ok(reply.status) || reply.status == PRO_TK_GENERAL_ERROR) return reply.text;
  if (reply.status == PRO_TK_MSG_USER_QUIT) {
    LogOutcome("nothing made, the user quit the prompt");
    return std::nullopt;
  }
  LogFailure(std::wstring_view(), "ProMessageStringRead", reply.status);
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
  for (int reply = 1; reply < prompt.replies; ++reply) ReadUnused();
  return ReadName();
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
