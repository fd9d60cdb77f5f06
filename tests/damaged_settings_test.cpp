// Damaged settings, messages and dialogs of an installation: the plug-in starts, its commands can
// be run and left, and nothing of the host is misused. A finding names its seed, and QM_SEED=SEED
// makes it the first again.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iostream>

#include "tests/damage.h"
#include "tests/long_run.h"
#include "tests/plugin_host.h"
#include "tests/random_user.h"
#include "workbench/base/utf8_text.h"
#include "workbench/host/events.h"
#include "workbench/script/script_snapshot.h"
#include "workbench/spreadsheet/spreadsheet_server.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

constexpr unsigned kFewSeeds = 12;
constexpr unsigned kManySeeds = 600;
constexpr int kCommandsOfSeed = 8;

// What the plug-in reads itself, and what its host reads for it.
const fs::path& Settings() {
  static const fs::path folder = Installed().tree() / "QMconfig";
  return folder;
}
const fs::path& Texts() {
  static const fs::path folder = Installed().tree() / "text";
  return folder;
}

std::vector<fs::path> InstalledFiles() {
  std::vector<fs::path> files;
  for (const fs::path& folder : {Settings(), Texts()}) {
    for (const auto& item : fs::recursive_directory_iterator(folder)) {
      const fs::path kind = item.path().extension();
      if (kind == ".ini" || kind == ".txt" || kind == ".res") files.push_back(item.path());
    }
  }
  std::ranges::sort(files);
  return files;
}

class DamagedInstallation : public PluginHost {
 protected:
  DamagedInstallation() {
    host_.user = &user_;
    Model assembly({"box", ModelKind::kAssembly});
    assembly.solid().features.Add(NewComponent(7, {"lid", ModelKind::kPart}));
    host_.session.Add(Model({"lid", ModelKind::kPart}));
    Model& added = host_.session.Add(std::move(assembly));
    host_.session.ActivateWindow(host_.session.ShowInWindow(added).id);
  }

  // The command that a file bears the name of, and some others.
  Lines CommandsFor(const fs::path& damaged) {
    Lines names;
    const auto& known = host_.commands.commands;
    const std::string own = damaged.stem().string();
    if (host_.commands.Find(own) != nullptr) names = {own, own};
    for (int i = 0; i < kCommandsOfSeed && !known.empty(); ++i) {
      names.push_back(known[user_.Below(known.size())].name);
    }
    return names;
  }

  // Whatever else: no crash, and nothing is left out. Where a dialog or a text is damaged the host
  // tells of that, and of what its plug-in then asks for in vain.
  void RunSome(Plugin& plugin, const fs::path& damaged, const std::string& which) {
    const bool is_host_sound = damaged.parent_path() == Settings();
    EXPECT_EQ(plugin.Start(), 0) << which;
    for (const std::string& command : CommandsFor(damaged)) {
      const CommandRun run = RunCommand(command);
      EXPECT_EQ(run.left_out, Lines()) << which << ": " << command;
      const Lines breaches = TakeBreaches();
      if (is_host_sound) {
        EXPECT_EQ(breaches, Lines()) << which << ": " << command;
      }
    }
    plugin.Stop();
    host_.messages.Forget();
    host_.trace.Restart();
    host_.events.Forget<MessageBox>();
    host_.events.Forget<Breach>();
  }

  RandomUser user_{host_};
  SpreadsheetServer spreadsheet_{host_};
};

TEST_F(DamagedInstallation, LeavesThePluginUsable) {
  const SessionSnapshot start(host_, {Settings(), Texts(), Installed().work()});
  const std::vector<fs::path> files = InstalledFiles();
  ASSERT_FALSE(files.empty());
  Plugin plugin(Installed().dll());
  const unsigned first = FirstSeed();
  const unsigned count = IsLongRun() ? kManySeeds : kFewSeeds;
  for (unsigned seed = first; seed != first + count && !HasFailure(); ++seed) {
    const fs::path& file = files[seed % files.size()];
    const std::string which = file.filename().string() + ", QM_SEED=" + std::to_string(seed);
    // A crash would leave nothing else that names it.
    if (IsLongRun()) std::cout << "damaged: " << which << std::endl;
    const std::string sound = ReadFileBytes(file).value();
    std::ofstream(file, std::ios::binary | std::ios::trunc) << Damaged(sound, seed);
    user_.Begin(seed);
    RunSome(plugin, file, which);
    start.Restore(host_);
  }
}

}  // namespace
}  // namespace wb
