// Asks for names in the message area.
#include "assembly/new_model/typed_copy.h"

#include <optional>
#include <string>

#include "assembly/new_model/new_name_rules.h"
#include "frame/messages/run_log.h"
#include "frame/messages/typed_name.h"
#include "toolkit/status.h"

namespace qm {
namespace {

NameReply ReadReply() {
  return ReadName(static_cast<int>(kLongestNewName));
}

// A default is offered where a reply counts for nothing, so that the host has a text for it.
// Without one it has read nothing, and the reply meant for it is the next one's.
void ReadUnused() {
  const NameReply reply = ReadReply();
  if (Ok(reply.status) && reply.text.empty()) {
    LogFailure("ProMessageStringRead has read nothing of a reply that counts for nothing");
  }
}

// Every reply is tried as a name, also an empty one, which the host refuses to take.
std::optional<std::wstring> ReadUsed() {
  const NameReply reply = ReadReply();
  if (Ok(reply.status)) return reply.text;
  LogOutcome(reply.status == PRO_TK_MSG_USER_QUIT ? "nothing made, the user quit the prompt"
                                                  : "nothing made, the prompt cannot be read");
  return std::nullopt;
}

std::optional<std::wstring> AskForName(const NamePrompt& prompt) {
  if (!ShowNamePrompt(prompt.key, prompt.offered)) {
    LogOutcome("nothing made, the prompt cannot be shown");
    return std::nullopt;
  }
  // Deliberately those before the last one count for nothing, not even when the user quits.
  for (int reply = 1; reply < prompt.replies; ++reply) ReadUnused();
  return ReadUsed();
}

}  // namespace

NewCopy CopyUnderTypedName(ProMdl source, const NamePrompt& prompt, const StillThere& still_there) {
  RefusedNames refused;
  while (const auto name = AskForName(prompt)) {
    if (!still_there()) return {nullptr, PRO_TK_GENERAL_ERROR};
    if (const ProMdl copy = CopyModel(source, *name)) return {copy};
    if (refused.AskAgain(*name)) continue;
    LogOutcome("nothing made, no name was typed");
    break;
  }
  return {};
}

}  // namespace qm
