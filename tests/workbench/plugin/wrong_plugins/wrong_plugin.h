// A plug-in with one command, `Wrong`, which breaks one rule of the host's interface.
#pragma once

#include "tests/workbench/plugin/small_plugin.h"

int Wrong();

void RegisterCommands() {
  Register<&Wrong>("Wrong");
}
