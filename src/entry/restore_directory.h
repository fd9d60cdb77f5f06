// The working directory of the last run, restored two seconds after the start when the setting
// "SetLastDir" asks for it.
#pragma once

namespace qm {

// Starts the one-shot timer.
void StartDirectoryRestore();

// Stops it when it has not fired yet.
void StopDirectoryRestore();

}  // namespace qm
