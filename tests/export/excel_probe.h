// What the library with the writer and the reader of workbooks offers to its tests.
#pragma once

// Writes a table of two columns and two rows; false when nothing was written.
using WriteProbe = bool (*)(const wchar_t* path);

// Reads two columns. `texts` receives each cell followed by a "|" and each row by a line feed.
// False when the workbook cannot be read.
using ReadProbe = bool (*)(const wchar_t* path, wchar_t* texts, int size);
