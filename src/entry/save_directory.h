// The working directory, kept for the next start.
#pragma once

namespace qm {

// Writes the working directory into "quillmax.ini" as one line without an end. The file is
// left empty when the host does not tell the directory or the ANSI code page of Chinese systems
// cannot hold it.
void SaveWorkingDirectory();

}  // namespace qm
