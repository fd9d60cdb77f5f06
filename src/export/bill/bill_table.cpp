// Columns and rows of the bill's table.
#include "export/bill/bill_table.h"

#include <algorithm>
#include <optional>

#include "export/bill/bill_source.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/opening.h"
#include "frame/settings/config.h"
#include "frame/text/list_rules.h"

namespace qm {
namespace {

constexpr char kNumberColumn[] = "num";
constexpr wchar_t kNumberLabel[] = L"序号";
constexpr wchar_t kQuantityLabel[] = L"模型数量";
constexpr wchar_t kPositionLabel[] = L"层级1";
constexpr wchar_t kLevelLabel[] = L"层级2";

enum class ColumnSource { kParameter, kNumber, kName, kQuantity, kPosition, kLevel };

struct FixedLabel {
  const wchar_t* label;
  ColumnSource source;
  bool levels_only;
};
constexpr FixedLabel kFixedLabels[] = {
    {kNameLabel, ColumnSource::kName, false},
    {kQuantityLabel, ColumnSource::kQuantity, false},
    {kPositionLabel, ColumnSource::kPosition, true},
    {kLevelLabel, ColumnSource::kLevel, true},
};

struct BillColumn {
  std::string name;
  ColumnSource source;
  size_t parameter;  // among the parameters
};

struct BillColumns {
  std::vector<BillColumn> columns;
  std::vector<std::wstring> parameters;
};

ColumnSource SourceOf(const std::string& name, const std::wstring& label, BillKind kind) {
  if (name == kNumberColumn) return ColumnSource::kNumber;
  for (const FixedLabel& fixed : kFixedLabels) {
    if (label == fixed.label && (kind == BillKind::kLevels || !fixed.levels_only)) {
      return fixed.source;
    }
  }
  return ColumnSource::kParameter;
}

// The columns that the table has now: the settings file may have changed since they were made.
std::optional<BillColumns> ReadColumns(const DialogTable& table, BillKind kind) {
  const auto names = table.ColumnNames();
  const auto labels = table.ColumnLabels();
  if (!names || !labels || names->size() != labels->size()) return std::nullopt;
  BillColumns columns;
  for (size_t i = 0; i < names->size(); ++i) {
    const ColumnSource source = SourceOf((*names)[i], (*labels)[i], kind);
    columns.columns.push_back({(*names)[i], source, columns.parameters.size()});
    if (source == ColumnSource::kParameter) columns.parameters.push_back((*labels)[i]);
  }
  return columns;
}

// Writes the rows of one bill, one after another.
class RowWriter {
 public:
  RowWriter(const DialogTable& table, const BillColumns& columns, const BillPlan& plan)
      : table_(table), columns_(columns.columns), plan_(plan) {}

  void Write(const BillRow& row) {
    const std::wstring& position = position_.Of(row);
    if (plan_.texts[row.model].listing != Listing::kListed) return;
    std::string name = std::to_string(count_ + 1);
    if (!table_.InsertRow(last_row_, name)) {
      ++left_out_;
      return;
    }
    ++count_;
    last_row_ = std::move(name);
    const bool is_assembly = plan_.structure.models[row.model].type == PRO_MDL_ASSEMBLY;
    for (const BillColumn& column : columns_) {
      if (!WriteText(column, Text(row, column, position))) ++left_out_;
      if (is_assembly && !table_.SetColor(last_row_, column.name, kAssemblyColor)) ++left_out_;
    }
  }

  long long count() const { return count_; }
  // Rows and cells.
  long long left_out() const { return left_out_; }

 private:
  // False when the cell stays blank although it should not.
  bool WriteText(const BillColumn& column, std::optional<std::wstring> text) const {
    if (!text) return false;
    return text->empty() || table_.SetLabel(last_row_, column.name, std::move(*text));
  }

  // Nothing when it cannot be read.
  std::optional<std::wstring> Text(const BillRow& row, const BillColumn& column,
                                   const std::wstring& position) const {
    switch (column.source) {
      case ColumnSource::kNumber:
        return std::to_wstring(count_);
      case ColumnSource::kName:
        return plan_.structure.models[row.model].name;
      case ColumnSource::kQuantity:
        return std::to_wstring(row.quantity);
      case ColumnSource::kPosition:
        return position;
      case ColumnSource::kLevel:
        return std::to_wstring(row.level);
      case ColumnSource::kParameter:
        break;
    }
    return plan_.texts[row.model].parameters[column.parameter];
  }

  const DialogTable& table_;
  const std::vector<BillColumn>& columns_;
  const BillPlan& plan_;
  PositionNumber position_;
  std::string last_row_;
  long long count_ = 0;
  long long left_out_ = 0;
};

}  // namespace

bool MayBeBlank(const std::string& column, const std::wstring& label) {
  constexpr const wchar_t* kNeverBlank[] = {kNameLabel, kQuantityLabel, kPositionLabel,
                                            kLevelLabel};
  return column != kNumberColumn && std::ranges::find(kNeverBlank, label) == std::end(kNeverBlank);
}

long long SetBillColumns(const DialogTable& table, BillKind kind) {
  const wchar_t* const section = kind == BillKind::kSummary ? L"tableCols_sum" : L"tableCols_level";
  const auto setting = TryReadSetting(section, kContentKey, ConfigPath(kBillFile));
  if (!setting) LogFailure("the columns of the bill cannot be read from their settings file");
  std::vector<std::wstring> labels = SplitNames(setting.value_or(std::wstring()));
  auto old_columns = table.ColumnNames();
  if (!table.DeleteAllRows() || !old_columns) {
    ShowMessage(kUnreadableField);
    return 0;
  }
  std::erase(*old_columns, kNumberColumn);
  bool is_whole = table.DeleteColumns(std::move(*old_columns));
  std::vector<std::string> names;
  for (size_t i = 1; i <= labels.size(); ++i) names.push_back("param" + std::to_string(i));
  is_whole = table.InsertColumns(kNumberColumn, std::move(names)) && is_whole;
  labels.insert(labels.begin(), kNumberLabel);
  const auto count = static_cast<long long>(labels.size());
  is_whole = table.SetColumnLabels(std::move(labels)) && is_whole;
  return is_whole && setting ? 0 : count;
}

void FillBill(const DialogTable& table, ProMdl assembly, BillKind kind, int depth,
              long long left_out) {
  const auto columns = ReadColumns(table, kind);
  if (!columns || !table.DeleteAllRows()) {
    ShowMessage(kUnreadableField);
    return;
  }
  const auto plan = PlanBill(assembly, kind, depth, columns->parameters);
  if (!plan) {
    ShowNotCollected();
    return;
  }
  RowWriter writer(table, *columns, *plan);
  for (const BillRow& row : plan->rows) writer.Write(row);
  LogCount("components", static_cast<long long>(plan->structure.occurrences.size()));
  LogCount("rows", writer.count());
  NoteLeftOut(left_out + plan->left_out + writer.left_out());
}

}  // namespace qm
