// Message-file arguments as the message and command families of host functions share them.
#pragma once

#include "workbench/host/arguments.h"

namespace wb {

// The name of a message file, as given by the plug-in.
struct MessageFileIn {
  const wchar_t* file;
  std::string Describe() const { return DescribeArgument(file); }
  std::string Look(const Call& call) const;
};

struct MessageKeyIn : NarrowIn {
  explicit MessageKeyIn(const char* key) : NarrowIn{key, "message key"} {}
};

// The record of `key`; null when the file or the key is missing (PRO_TK_MSG_NOT_FOUND is the
// answer). A broken file is reported as a breach, and counts as missing.
const MessageRecord* FindMessage(const Call& call, const std::string& file, const std::string& key);

}  // namespace wb
