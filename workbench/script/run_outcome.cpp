// Outcomes gathered and compared.
#include "workbench/script/run_outcome.h"

#include <algorithm>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/session/model_file.h"

namespace wb {
namespace {

std::string NameOf(const Model* model) {
  return model == nullptr ? "nothing" : model->id.Text();
}

std::vector<std::string> Said(const Host& host, size_t mark) {
  std::vector<std::string> said = host.events.TextsSince<Note>(mark);
  for (const MessageBox& box : host.events.Since<MessageBox>(mark)) said.push_back(box.text);
  return said;
}

std::vector<std::string> Started(const Host& host, size_t mark) {
  std::vector<std::string> started;
  for (const ShellCall& call : host.events.Since<ShellCall>(mark)) {
    started.push_back(call.program + " " + call.parameters);
  }
  return started;
}

// Whether all of `some` is in `all`, each as often.
bool Holds(std::vector<std::string> all, std::vector<std::string> some) {
  std::sort(all.begin(), all.end());
  std::sort(some.begin(), some.end());
  return std::includes(all.begin(), all.end(), some.begin(), some.end());
}

bool DidItsWork(const RunOutcome& outcome, const RunOutcome& clean) {
  return outcome.status == clean.status && outcome.session == clean.session &&
         outcome.started == clean.started && Holds(outcome.said, clean.said);
}

}  // namespace

std::string SessionText(Host& host, const std::vector<FolderSnapshot>& folders) {
  std::string text;
  for (const auto& model : host.session.models()) {
    text += model->id.Text() + (model->modified ? " modified\n" : "\n") + ModelDocument(*model);
  }
  for (const Window& window : host.session.windows()) {
    text += "window " + std::to_string(window.id) + " " + NameOf(window.model) + "\n";
  }
  text += "current " + std::to_string(host.session.current_window()) + "\n";
  for (const PickedItem& pick : host.session.selection_buffer) {
    text += "selected " + std::to_string(pick.type) + " " + std::to_string(pick.id) + " of " +
            NameOf(pick.owner) + "\n";
  }
  for (const auto& [name, values] : host.options) text += name + " " + Join(" ", values) + "\n";
  for (const FolderSnapshot& folder : folders) text += folder.TextNow();
  return text + PathToUtf8(host.session.working_directory());
}

RunOutcome OutcomeOf(Host& host, const CommandRun& result, size_t mark,
                     const std::vector<FolderSnapshot>& folders) {
  RunOutcome outcome;
  outcome.refused = !result.available || result.status != 0;
  outcome.status = result.status;
  outcome.said = Said(host, mark);
  outcome.started = Started(host, mark);
  outcome.session = SessionText(host, folders);
  return outcome;
}

std::string SilentHarm(const RunOutcome& outcome, const RunOutcome& clean,
                       const std::string& session_before) {
  if (DidItsWork(outcome, clean) || !Holds(clean.said, outcome.said)) return "";
  const bool is_untouched = outcome.session == session_before;
  if (outcome.refused && is_untouched) return "";
  if (is_untouched) return "it answered success without its work and without a word";
  return "it left its work half done without a word";
}

}  // namespace wb
