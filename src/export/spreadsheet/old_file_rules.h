// The name under which an old file waits while its successor is written: a user who finds it after
// a crash shall see at once what it is.
#pragma once

#include <string>

namespace qm {

// The `attempt`-th name to try for the file at `path`, counted from 1, in the same folder and with
// the same extension: "bill.old.xlsx", "bill.old2.xlsx" ... Where that would be too long for
// Windows, the name is shortened before the mark.
std::wstring AsidePath(const std::wstring& path, int attempt);

}  // namespace qm
