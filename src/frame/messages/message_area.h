// Notes in the host's message area, by the English keys of the plug-in's message files.
#pragma once

#include "toolkit/message.h"

namespace qm {

inline constexpr wchar_t kNoteFile[] = L"qmmsg_display.txt";

// Shows the text of `key`. `argument` fills a "%0w" of the key, `second` a "%1w". A failure is not
// reported: a note is never a reason to stop.
void DisplayNote(const char* key, const wchar_t* argument = nullptr,
                 const wchar_t* second = nullptr);

// Says how many components, rows or cells a command could not work on, and that the run log has the
// reasons; nothing when it has worked on all. Once, at a command's end.
void NoteLeftOut(long long count);

}  // namespace qm
