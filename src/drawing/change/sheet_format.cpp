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

// Sheet of a table; 0 when the host does not tell.
int SheetOf(ProDwgtable& table) {
  int sheet = 0;
  if (Ok(ProDwgtableSegSheetGet(&table, kFirstSegment, &sheet))) return sheet;
  return Ok(ProDwgtableSegSheetGet(&table, kWholeTable, &sheet)) ? sheet : 0;
}

// Whether the answer counts; a table of the old format that is lost on the way stays in the
// drawing.
bool Told(ProDrawing drawing, const char* function, ProError status) {
  if (!Ok(status)) LogFailure(drawing, function, status);
  return Ok(status);
}

// Tables of formats, by the sheet they lie on.
std::unordered_map<int, std::vector<ProDwgtable>> FormatTables(ProDrawing drawing) {
  std::unordered_map<int, std::vector<ProDwgtable>> tables;
  HostArray<ProDwgtable> array;
  const ProError collected = ProDrawingTablesCollect(drawing, array.put());
  if (collected == PRO_TK_E_NOT_FOUND) return tables;
  if (!Told(drawing, "ProDrawingTablesCollect", collected)) return tables;
  const auto count = ToldArraySize(array.get());
  if (!count) LogFailure(drawing, "ProArraySizeGet", PRO_TK_GENERAL_ERROR);
  for (int i = 0; i < count.value_or(0); ++i) {
    ProBoolean is_from_format = PRO_B_FALSE;
    const ProError status = ProDwgtableIsFromFormat(&array[i], &is_from_format);
    if (!Told(drawing, "ProDwgtableIsFromFormat", status) || !is_from_format) continue;
    const int sheet = SheetOf(array[i]);
    if (sheet == 0) LogFailure(drawing, "ProDwgtableSegSheetGet", PRO_TK_GENERAL_ERROR);
    tables[sheet].push_back(array[i]);
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
    if (model != nullptr) ProDrawingCurrentsolidSet(drawing_, model);
    for (ProDwgtable& table : tables_[sheet]) {
      const ProError deleted = ProDwgtableDelete(&table, PRO_B_FALSE);
      if (Told(drawing_, "ProDwgtableDelete", deleted)) ++counts_.tables;
    }
    if (format_ == nullptr || model == nullptr) return;
    const ProError status = ProDrawingFormatAdd(drawing_, sheet, model, format_, kFormatSheet);
    if (Ok(status)) ++counts_.placed;
    if (!Ok(status)) LogFailure(drawing_, "ProDrawingFormatAdd", status);
  }

  const Counts& counts() const { return counts_; }

 private:
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

}  // namespace

bool ReplaceFormats(ProDrawing drawing, const DrawingFile& file, ProMdl format) {
  const std::vector<DrawingView> views = ViewsOf(drawing);
  if (views.empty()) {
    LogFailure(file.name, "ProDrawingViewsCollect", PRO_TK_E_NOT_FOUND);
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
  const ProError saved = ProMdlSave(drawing);
  const Counts& counts = replacement.counts();
  LogEvent(ToUtf8(file.name) + ": " + std::to_string(counts.tables) +
           " tables removed, format on " + std::to_string(counts.placed) + " of " +
           std::to_string(count) + " sheets, " +
           (Ok(saved) ? "saved as version " + std::to_string(LatestVersion(file))
                      : std::string("not saved: ") + StatusName(saved)));
  return counts.placed == count && Ok(saved);
}

}  // namespace qm
