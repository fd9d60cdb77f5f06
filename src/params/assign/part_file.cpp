// Asks for the file, and works on the parts.
#include "params/assign/part_file.h"

#include "frame/dialogs/file_choice.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/progress.h"
#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

std::optional<PartFile> Parted(const std::wstring& path) {
  ProPath full = {};
  ProPath folder = {};
  ProPath name = {};
  ProPath extension = {};
  int version = 0;
  if (!FillFixedText(path, full)) return std::nullopt;
  if (!Ok(ProFilenameParse(full, folder, name, extension, &version))) return std::nullopt;
  const auto host_name = HostName::From(FixedText(name));
  if (!host_name || FixedText(name).empty() || FixedText(folder).empty()) return std::nullopt;
  return PartFile{std::wstring(FixedText(folder)), *host_name};
}

}  // namespace

std::optional<PartFile> AskPartFile(const PartFileQuestion& question) {
  // The spelling is the key's.
  DisplayNote("Wether change the bend table while assigning a material to a sheetmetal part");
  const auto path = PickFile(question.title, question.filter, OptionFolder(question.option));
  if (!path) return std::nullopt;
  auto file = Parted(*path);
  if (!file) LogOutcome("nothing done, the file's path cannot be used");
  return file;
}

std::optional<PartChoice> ForEachPart(const PartKind& kind,
                                      const std::function<bool(ProMdl, bool in_assembly)>& work) {
  auto choice = ChooseParts(kind);
  if (!choice) return choice;
  Progress progress(choice->parts.size());
  long long changed = 0;
  for (const ProMdl part : choice->parts) {
    if (work(part, choice->in_assembly)) ++changed;
    progress.Step();
  }
  LogCount("parts", static_cast<long long>(choice->parts.size()));
  LogCount("worked on", changed);
  return choice;
}

void TellEnd(const std::optional<PartChoice>& choice, const wchar_t* done) {
  if (!choice) return;
  NoteLeftOut(choice->left_out);
  if (choice->refusal != nullptr) {
    ShowShortMessage(choice->refusal);
  } else {
    ShowMessage(done);
  }
}

}  // namespace qm
