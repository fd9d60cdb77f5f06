// Message-file arguments as the message and command families of host functions share them.
#pragma once

#include "workbench/host/call.h"

namespace wb {

// The name of a message file, as given by the plug-in.
std::string MessageFileArgument(const Call& call, const wchar_t* file);

// The record of `key`; null when the file or the key is missing (PRO_TK_MSG_NOT_FOUND is the
// answer). A broken file is reported as a breach, and counts as missing.
const MessageRecord* MessageArgument(const Call& call, const std::string& file, const char* key);

}  // namespace wb
