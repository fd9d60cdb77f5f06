// Two ways to a model's folder.
#include "frame/folders/model_folder.h"

#include <iterator>

#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "frame/text/model_record_rules.h"
#include "toolkit/status.h"

namespace qm {
namespace {

std::optional<std::wstring> FolderOfOrigin(ProMdl model) {
  ProPath origin = {};
  const ProError status = ProMdlOriginGet(model, origin);
  if (!Ok(status)) {
    LogFailure(model, "ProMdlOriginGet", status);
    return std::nullopt;
  }
  const std::wstring_view file = FixedText(origin);
  const std::size_t separator = file.find_last_of(L"\\/");
  if (separator == std::wstring_view::npos) return std::nullopt;
  return std::wstring(file.substr(0, separator + 1));
}

}  // namespace

std::optional<std::wstring> FolderOf(ProMdl model) {
  ProMdldata data = {};
  ProError status = ProMdlDataGet(model, &data);
  if (!Ok(status)) {
    LogFailure(model, "ProMdlDataGet", status);
    return std::nullopt;
  }
  ProName name = {};
  status = ProMdlNameGet(model, name);
  if (Ok(status)) {
    const std::wstring_view record(data.texts, std::size(data.texts));
    if (auto folder = FolderInModelRecord(record, FixedText(name))) return folder;
    LogEvent(
        "ProMdlDataGet gives its record in an order that is not known; ProMdlOriginGet is asked");
  } else {
    LogFailure(model, "ProMdlNameGet", status);
  }
  return FolderOfOrigin(model);
}

bool PointToFolder(std::wstring_view name, std::wstring_view folder, ProMdldata* record) {
  return SetFolderInModelRecord(record->texts, name, folder);
}

}  // namespace qm
