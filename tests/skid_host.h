// The plug-in's host with the demo's pump skid in a folder of its own, for tests that run many
// commands, whatever they need.
#pragma once

#include <iterator>

#include "tests/plugin_host.h"
#include "tests/source_folder.h"

namespace wb {

// Of this process.
inline DWORD HandleCount() {
  DWORD count = 0;
  ::GetProcessHandleCount(::GetCurrentProcess(), &count);
  return count;
}

class SkidHost : public PluginHost {
 protected:
  // `name` is that of the folder, which no other test may have.
  explicit SkidHost(const char* name) : folder_(Installed().work() / name) {
    namespace fs = std::filesystem;
    fs::create_directories(folder_);
    for (const auto& file : fs::directory_iterator(SourceFolder() / "demo" / "pump_skid")) {
      fs::copy_file(file, folder_ / file.path().filename(), fs::copy_options::overwrite_existing);
    }
    host_.session.ChangeDirectory(folder_);
    for (const ModelName& name_of : kShown) host_.session.Retrieve(name_of);
  }
  ~SkidHost() override {
    host_.session.ChangeDirectory(Installed().work());
    std::error_code held;
    std::filesystem::remove_all(folder_, held);
  }

  // What commands may change beside the session.
  std::vector<std::filesystem::path> Folders() const {
    return {folder_, Installed().tree() / "QMconfig"};
  }
  void Show(Model& model) { host_.session.ActivateWindow(host_.session.ShowInWindow(model).id); }

  // Each command is available with one of them.
  static inline const ModelName kShown[] = {{"pump", ModelKind::kAssembly},
                                            {"drive_unit", ModelKind::kAssembly},
                                            {"impeller", ModelKind::kPart},
                                            {"pump", ModelKind::kDrawing}};
  const std::filesystem::path folder_;
};

}  // namespace wb
