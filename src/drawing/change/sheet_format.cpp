// Replaces the formats of a drawing.
#include "drawing/change/sheet_format.h"

#include <windows.h>

#include <algorithm>
#include <cwchar>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "drawing/change/drawing_views.h"
#include "frame/messages/run_log.h"
#include "frame/text/text.h"
#include "toolkit/drawing.h"
#include "toolkit/drawing_table.h"
#include "toolkit/model.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

// The format's first sheet, in the count that the host's call takes it in.
constexpr int kFormatSheet = 0;
constexpr int kFirstSegment = 0;
constexpr int kWholeTable = -1;

// A failure that is passed over, with the drawing's name. Finding none is no failure.
void LogPassedOver(ProDrawing drawing, const char* function, ProError status) {
  if (!Ok(status) && status != PRO_TK_E_NOT_FOUND) LogFailure(drawing, function, status);
}

// Sheet of a table; 0 when the host does not tell.
int SheetOf(ProDrawing drawing, ProDwgtable& table) {
  int sheet = 0;
  if (Ok(ProDwgtableSegSheetGet(&table, kFirstSegment, &sheet))) return sheet;
  const ProError status = ProDwgtableSegSheetGet(&table, kWholeTable, &sheet);
  if (!Ok(status)) LogFailure(drawing, "ProDwgtableSegSheetGet", status);
  return Ok(status) ? sheet : 0;
}

// Tables of formats, by the sheet they lie on.
std::unordered_map<int, std::vector<ProDwgtable>> FormatTables(ProDrawing drawing) {
  std::unordered_map<int, std::vector<ProDwgtable>> tables;
  HostArray<ProDwgtable> array;
  ProError status = ProDrawingTablesCollect(drawing, array.put());
  LogPassedOver(drawing, "ProDrawingTablesCollect", status);
  if (!Ok(status)) return tables;
  const auto count = ToldArraySize(array.get());
  if (!count) LogFailure(drawing, "ProArraySizeGet", PRO_TK_GENERAL_ERROR);
  for (int i = 0; i < count.value_or(0); ++i) {
    ProBoolean is_from_format = PRO_B_FALSE;
    status = ProDwgtableIsFromFormat(&array[i], &is_from_format);
    if (!Ok(status)) LogFailure(drawing, "ProDwgtableIsFromFormat", status);
    if (Ok(status) && is_from_format) tables[SheetOf(drawing, array[i])].push_back(array[i]);
  }
  return tables;
}

// The model that was first added to the drawing; null when the host does not tell.
ProSolid FirstModel(ProDrawing drawing) {
  HostArray<ProSolid> solids;
  if (!Ok(ProDrawingSolidsCollect(drawing, solids.put()))) return nullptr;
  return solids.size() > 0 ? solids[0] : nullptr;
}

struct Counts {
  int tables = 0;
  int placed = 0;
};

class Replacement {
 public:
  Replacement(ProDrawing drawing, ProMdl format)
      : drawing_(drawing), format_(format), tables_(FormatTables(drawing)) {}

  // `model` belongs to the format; that of the last view on the sheet where there is one.
  void OnSheet(int sheet, const std::vector<ProView>& views, ProSolid& model) {
    ShowSheet(drawing_, sheet);
    for (ProView view : views) {
      if (ProSolid solid = SolidOf(drawing_, view)) model = solid;
    }
    if (model != nullptr) {
      LogPassedOver(drawing_, "ProDrawingCurrentsolidSet",
                    ProDrawingCurrentsolidSet(drawing_, model));
    }
    for (ProDwgtable& table : tables_[sheet]) Delete(table);
    if (format_ == nullptr || model == nullptr) return;
    const ProError status = ProDrawingFormatAdd(drawing_, sheet, model, format_, kFormatSheet);
    if (Ok(status)) ++counts_.placed;
    if (!Ok(status)) LogFailure(drawing_, "ProDrawingFormatAdd", status);
  }

  const Counts& counts() const { return counts_; }

 private:
  void Delete(ProDwgtable& table) {
    const ProError status = ProDwgtableDelete(&table, PRO_B_FALSE);
    if (Ok(status)) ++counts_.tables;
    if (!Ok(status)) LogFailure(drawing_, "ProDwgtableDelete", status);
  }

  ProDrawing drawing_;
  ProMdl format_;
  std::unordered_map<int, std::vector<ProDwgtable>> tables_;
  Counts counts_;
};

// The highest number behind the drawing's files; 0 when there is none.
int LatestVersion(const DrawingFile& file) {
  WIN32_FIND_DATAW found = {};
  const std::wstring start = file.name + L".drw.";
  const HANDLE search = ::FindFirstFileW((file.folder + start + L"*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return 0;
  int latest = 0;
  do {
    const std::wstring_view name = found.cFileName;
    if (name.size() > start.size()) {
      latest = std::max(latest, static_cast<int>(std::wcstol(&name[start.size()], nullptr, 10)));
    }
  } while (::FindNextFileW(search, &found));
  ::FindClose(search);
  return latest;
}

// What came of saving, by the highest number before and after it.
std::string SavedText(ProError status, int before, int after) {
  if (!Ok(status)) return std::string("not saved: ") + StatusName(status);
  return after > before ? "saved as version " + std::to_string(after)
                        : "saved, without a new version in the working directory";
}

}  // namespace

bool ReplaceFormats(ProDrawing drawing, const DrawingFile& file, ProMdl format) {
  const auto [status, views] = ViewsOf(drawing);
  if (views.empty()) {
    LogFailure(file.name, "ProDrawingViewsCollect", status);
    return false;
  }
  const int count = SheetCount(drawing);
  if (count == 0) return false;
  const auto sheets = BySheet(views, count);
  Replacement replacement(drawing, format);
  ProSolid model = FirstModel(drawing);
  for (int sheet = kFirstSheet; sheet <= count; ++sheet) {
    replacement.OnSheet(sheet, sheets[static_cast<size_t>(sheet - kFirstSheet)], model);
  }
  const int version = LatestVersion(file);
  const ProError saved = ProMdlSave(drawing);
  const Counts& counts = replacement.counts();
  LogEvent(ToUtf8(file.name) + ": " + std::to_string(counts.tables) +
           " tables removed, format on " + std::to_string(counts.placed) + " of " +
           std::to_string(count) + " sheets, " + SavedText(saved, version, LatestVersion(file)));
  return counts.placed == count && Ok(saved);
}

}  // namespace qm
