// A fresh host with an install folder of its own, for tests that need no more than one model and
// one message file.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "tests/workbench/test_paths.h"
#include "workbench/base/text.h"
#include "workbench/host/host.h"

namespace wb {

class HostFixture : public testing::Test {
 protected:
  HostFixture() {
    std::filesystem::remove_all(folder_);
    WriteFile("text/chinese_cn/menu.txt",
              "Label\nEnglish label\n中文标签\n\n"
              "Label_Help\nEnglish help\n\n\n"
              "Moved %0w\nFrom %1s to %0w, %2d of %3f\n\n\n");
    WriteFile("text/resource/icon.png", "not looked into");
    host_.install_folder = folder_;
    host_.session.ChangeDirectory(folder_);
  }
  ~HostFixture() override { std::filesystem::remove_all(folder_); }

  void WriteFile(const std::string& name, const std::string& content) {
    const std::filesystem::path file = folder_ / PathFromUtf8(name);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
  }

  // An assembly "box.asm" with one component, shown in the current window.
  Model& ShowAssembly() {
    Model assembly({"box", ModelKind::kAssembly});
    assembly.solid().features.Add(NewComponent(7, {"lid", ModelKind::kPart}));
    Model& added = host_.session.Add(std::move(assembly));
    host_.session.ActivateWindow(host_.session.ShowInWindow(added).id);
    return added;
  }

  std::vector<std::string> Breaches() const { return host_.events.AllTexts<Breach>(); }

  const std::filesystem::path folder_ =
      std::filesystem::temp_directory_path() /
      ("workbench test " + std::to_string(::GetCurrentProcessId()));
  Host host_;
};

using Lines = std::vector<std::string>;

}  // namespace wb
