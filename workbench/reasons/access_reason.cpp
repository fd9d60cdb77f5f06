// Tries a command's access rule in one mode after another.
#include "workbench/reasons/access_reason.h"

#include <vector>

#include "workbench/base/text.h"
#include "workbench/language/script_words.h"
#include "workbench/plugin/plugin.h"

namespace wb {
namespace {

constexpr ModeColumn kColumns[] = {{"part", PRO_MODE_PART_1},
                                   {"assembly", PRO_MODE_ASSEMBLY},
                                   {"manufacturing", PRO_MODE_MFG},
                                   {"drawing", PRO_MODE_DRAWING},
                                   {"none", PRO_MODE_UNUSED}};

// What asking for another mode must leave as it was.
class AskedAside {
 public:
  AskedAside(Host& host, int mode)
      : host_(host),
        trace_(host.trace),
        faults_(host.faults),
        user_(host.user),
        mode_(host.forced_mode) {
    host.faults.Clear();
    host.user = nullptr;  // whose moments would count the calls
    host.forced_mode = mode;
  }
  ~AskedAside() {
    host_.trace = trace_;
    host_.faults = faults_;
    host_.user = user_;
    host_.forced_mode = mode_;
  }
  AskedAside(const AskedAside&) = delete;
  AskedAside& operator=(const AskedAside&) = delete;

 private:
  Host& host_;
  const Trace trace_;
  const Faults faults_;
  User* const user_;
  const int mode_;
};

// "assembly", "assembly or manufacturing", "part, assembly or manufacturing"
std::string Either(std::vector<std::string> words) {
  if (words.size() < 2) return Join("", words);
  const std::string last = words.back();
  words.pop_back();
  return Join(", ", words) + " or " + last;
}

std::string ModesWanted(Host& host, const std::string& command) {
  std::vector<std::string> words;
  for (const ModeColumn& mode : kColumns) {
    if (mode.mode == PRO_MODE_UNUSED) continue;  // with a model shown, nobody is in none
    if (IsAvailableIn(host, command, mode)) words.push_back(mode.word);
  }
  return words.empty() ? "the command refuses every mode"
                       : "the command wants " + Either(words) + " mode";
}

std::string ModeNow(const Host& host) {
  if (host.forced_mode >= 0) return WordOf(ModeWords(), host.forced_mode) + " mode by the script";
  return std::string(KindWord(host.session.Current()->id.kind)) + " mode";
}

}  // namespace

std::span<const ModeColumn> ModeColumns() {
  return kColumns;
}

bool IsAvailableIn(Host& host, const std::string& command, const ModeColumn& mode) {
  const AskedAside aside(host, mode.mode);
  return AskAccess(command) == ACCESS_AVAILABLE;
}

std::string WhyUnavailable(Host& host, const std::string& command) {
  const Model* const current = host.session.Current();
  std::string now =
      current == nullptr ? "no model is current" : "the current model is " + current->id.Text();
  if (current != nullptr || host.forced_mode >= 0) now += ", in " + ModeNow(host);
  return now + "; " + ModesWanted(host, command);
}

std::string CommandMeant(const Host& host, const std::string& command) {
  std::vector<std::string> names;
  for (const Command& known : host.commands.commands) names.push_back(known.name);
  const std::string meant = NearestWord(command, names);
  return meant.empty() ? meant : "; did you mean " + meant + "?";
}

}  // namespace wb
