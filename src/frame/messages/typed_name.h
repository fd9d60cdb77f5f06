// A name that the user types in the message area, asked for until one is taken.
#pragma once

#include <string>

#include "toolkit/types.h"

namespace qm {

// Shows the prompt of `key`; `offered` stands behind its "%0w", null: the key has none. False,
// after a failure in the run log, where it cannot be shown: asking again would never end then.
bool ShowNamePrompt(const char* key, const wchar_t* offered);

struct NameReply {
  ProError status;    // PRO_TK_NO_ERROR: there is one
  std::wstring text;  // empty: it is without any text
};

// The user's reply to the prompt shown just before. One without any text is a reply too, whether
// the host refuses it or calls it read; no model takes an empty name. Any other failure stands in
// the run log, unless the user has quit.
NameReply ReadName(int longest);

// Replies that were no name, in a row.
class RefusedNames {
 public:
  // Tells the user that `name` is taken or wrong. False when there were too many without any text:
  // a host that can show a prompt and never read it would ask for ever.
  bool AskAgain(const std::wstring& name);

 private:
  int empty_ = 0;
};

}  // namespace qm
