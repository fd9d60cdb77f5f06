// A fresh host around the shipping plug-in, for tests of what scripts cannot say. The plug-in lies
// in a private copy of the install tree that all tests of this process share.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/absent_user.h"
#include "tests/workbench/test_paths.h"
#include "workbench/host/host.h"
#include "workbench/plugin/install_copy.h"
#include "workbench/plugin/plugin.h"

namespace wb {

inline const InstallCopy& Installed() {
  static const InstallCopy copy(TestBinaryFolder() / "quillmax-5.1-C3", "tests");
  return copy;
}

class PluginHost : public testing::Test {
 protected:
  PluginHost() {
    host_.user = &user_;
    host_.install_folder = Installed().tree();
    host_.windows.local_app_folder = Installed().work();
    host_.session.ChangeDirectory(Installed().work());
  }

  // What the plug-in did wrong since the last call.
  std::vector<std::string> TakeBreaches() {
    const std::vector<std::string> lines = host_.events.AllTexts<Breach>();
    host_.events.Forget<Breach>();
    return lines;
  }

  AbsentUser user_;
  Host host_;
};

using Lines = std::vector<std::string>;

}  // namespace wb
