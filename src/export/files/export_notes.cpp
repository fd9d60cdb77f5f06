// Notes of exports.
#include "export/files/export_notes.h"

#include "export/files/file_name_rules.h"
#include "frame/messages/message_area.h"
#include "frame/messages/run_log.h"
#include "frame/text/text.h"
#include "toolkit/types.h"

namespace qm {

void TellProgress(std::size_t done, std::size_t count, const std::wstring& name) {
  const std::wstring text = std::to_wstring(done) + L" / " + std::to_wstring(count) + L" " + name;
  DisplayNote("Exporting %0w", text.c_str());
}

void TellUnfitFile(const std::wstring& path, const std::wstring& name) {
  if (path.size() < PRO_PATH_SIZE && IsWindowsFileName(name)) return;
  LogEvent("Windows cannot hold a file of the name " + ToUtf8(name));
  DisplayNote("Windows cannot hold the file name %0w", name.c_str());
}

}  // namespace qm
