// What the library with the writer and the reader of workbooks offers to its tests.
#pragma once

// Writes a table of two columns and two rows; false when nothing was written.
using WriteProbe = bool (*)(const wchar_t* path);

// The same with so many rows of one column.
using WriteRowsProbe = bool (*)(const wchar_t* path, int rows);

// Reads two columns. `texts` receives each cell followed by a "|" and each row by a line feed.
// False when the workbook cannot be read.
using ReadProbe = bool (*)(const wchar_t* path, wchar_t* texts, int size);

// Whether a file may be written.
using CheckProbe = bool (*)(const wchar_t* path);

// Lets `write` begin a file that is then given up.
using BeginProbe = void (*)(const wchar_t* path, void (*write)(void*), void* data);
