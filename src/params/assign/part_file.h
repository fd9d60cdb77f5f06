// The run of the two commands that give parts a property from a file.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "frame/models/host_name.h"
#include "params/assign/part_choice.h"

namespace qm {

// What the user is asked.
struct PartFileQuestion {
  const wchar_t* option;  // of the host's configuration: where the file choice opens
  const wchar_t* title;
  const wchar_t* filter;
};

struct PartFile {
  std::wstring folder;  // with its closing separator
  HostName name;        // without extension and version
};
// Nothing when the user cancels, or, with a word in the run log, when the file cannot be used.
std::optional<PartFile> AskPartFile(const PartFileQuestion& question);

// Chooses the parts and works on each; `work` is true when a part has got its property. Answers the
// choice; nothing when there was nothing to choose from.
std::optional<PartChoice> ForEachPart(const PartKind& kind,
                                      const std::function<bool(ProMdl, bool in_assembly)>& work);

// At the end: why the choice ended, or `done`.
void TellEnd(const std::optional<PartChoice>& choice, const wchar_t* done);

}  // namespace qm
