// Tells where a script was when the plug-in hung: the process cannot go on then.
#pragma once

#include <string>

namespace wb {

// The statement that begins, "FILE:LINE", and what is tried there.
void NotePlace(const std::string& place);

// Ends the process with the place and a failed closing line when no place has been noted for
// `seconds`.
void WatchForHangs(unsigned seconds);

}  // namespace wb
