// Host functions for the tables of dialogs, and for what stands beside tables.
#include "workbench/api/ui_shared.h"

namespace wb {
namespace {

// Longest label, in 16-bit characters: a position number ten thousand levels down has 20,000.
constexpr size_t kLabelLimit = 32 * 1024;

// A null neighbour stands for the start, as an empty one does, unless the host has another habit.
// No value: it is refused.
struct TableNeighbourIn : NarrowIn {
  explicit TableNeighbourIn(const char* name) : NarrowIn{name, "neighbour"} {}
  std::optional<std::string> Look(const Call& call) const {
    const Habits& habits = call.host.habits;
    const std::string name = text == nullptr ? std::string() : NarrowIn::Look(call);
    const bool refused = text == nullptr ? habits.null_neighbour_is_refused
                                         : name.empty() && habits.empty_neighbour_is_refused;
    return refused ? std::nullopt : std::optional(name);
  }
};

// Two arguments: where a cell stands.
struct CellName {
  std::string row;
  std::string column;
};
struct CellIn {
  const char* row;
  const char* column;
  std::string Describe() const { return DescribeArgument(row) + ", " + DescribeArgument(column); }
  CellName Look(const Call& call) const {
    std::string row_name = call.Narrow(row, kNarrowLimit, "row name");
    return {std::move(row_name), call.Narrow(column, kNarrowLimit, "column name")};
  }
};

FieldIn<Field> OptionMenuIn(const char* dialog, const char* menu) {
  return {dialog, menu, FieldKind::kOptionMenu};
}

using Names = std::vector<std::string>;

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProUITableRowsInsert(const char* dialog, const char* component, const char* neighbour,
                              int count, char** names) {
  return Crossing(__func__, TableIn(dialog, component), TableNeighbourIn(neighbour),
                  NamesIn{count, names})
      .Run([](const Call& call, TableModel& table, const std::optional<std::string>& after,
              const Names& rows) {
        return after ? Answer(call, table.InsertRows(*after, rows)) : PRO_TK_BAD_INPUTS;
      });
}

ProError ProUITableRowsDelete(const char* dialog, const char* component, int count, char** names) {
  return Crossing(__func__, TableIn(dialog, component), NamesIn{count, names})
      .Run([](const Call& call, TableModel& table, const Names& rows) {
        return Answer(call, table.DeleteRows(rows));
      });
}

ProError ProUITableRownamesGet(const char* dialog, const char* component, int* count,
                               char*** names) {
  return Crossing(__func__, TableIn(dialog, component), OutList(count, names))
      .Run([](const TableModel& table, ListPlace<char> place) { place = table.RowNames(); });
}

ProError ProUITableRownamesSet(const char* dialog, const char* component, int count, char** names) {
  return Crossing(__func__, TableIn(dialog, component), NamesIn{count, names})
      .Run([](const Call& call, TableModel& table, const Names& rows) {
        return Answer(call, table.SetRowNames(rows));
      });
}

ProError ProUITableColumnsInsert(const char* dialog, const char* component, const char* neighbour,
                                 int count, char** names) {
  return Crossing(__func__, TableIn(dialog, component), TableNeighbourIn(neighbour),
                  NamesIn{count, names})
      .Run([](const Call& call, TableModel& table, const std::optional<std::string>& after,
              const Names& columns) {
        return after ? Answer(call, table.InsertColumns(*after, columns)) : PRO_TK_BAD_INPUTS;
      });
}

ProError ProUITableColumnsDelete(const char* dialog, const char* component, int count,
                                 char** names) {
  return Crossing(__func__, TableIn(dialog, component), NamesIn{count, names})
      .Run([](const Call& call, TableModel& table, const Names& columns) {
        return Answer(call, table.DeleteColumns(columns));
      });
}

ProError ProUITableColumnnamesGet(const char* dialog, const char* component, int* count,
                                  char*** names) {
  return Crossing(__func__, TableIn(dialog, component), OutList(count, names))
      .Run([](const TableModel& table, ListPlace<char> place) { place = table.ColumnNames(); });
}

ProError ProUITableColumnlabelsSet(const char* dialog, const char* component, int count,
                                   wchar_t** labels) {
  return Crossing(__func__, TableIn(dialog, component), WideTextsIn{count, labels})
      .Run([](const Call& call, TableModel& table, const Names& texts) {
        return Answer(call, table.SetColumnLabels(texts));
      });
}

ProError ProUITableColumnlabelsGet(const char* dialog, const char* component, int* count,
                                   wchar_t*** labels) {
  return Crossing(__func__, TableIn(dialog, component), OutList(count, labels))
      .Run([](const TableModel& table, ListPlace<wchar_t> place) { place = table.ColumnLabels(); });
}

ProError ProUITableRowlabelsGet(const char* dialog, const char* component, int* count,
                                wchar_t*** labels) {
  return Crossing(__func__, TableIn(dialog, component), OutList(count, labels))
      .Run([](const TableModel& table, ListPlace<wchar_t> place) { place = table.RowLabels(); });
}

ProError ProUITableCellLabelSet(const char* dialog, const char* component, const char* row,
                                const char* column, wchar_t* label) {
  return Crossing(__func__, TableIn(dialog, component), CellIn{row, column},
                  TextIn{label, kLabelLimit, "label"})
      .Run([](const Call& call, TableModel& table, const CellName& cell, const std::string& text) {
        return Answer(call, table.SetLabel(cell.row, cell.column, text));
      });
}

ProError ProUITableCellLabelGet(const char* dialog, const char* component, const char* row,
                                const char* column, wchar_t** label) {
  return Crossing(__func__, TableIn(dialog, component), CellIn{row, column},
                  OutWide(label, "label place"))
      .Run([](const Call& call, const TableModel& table, const CellName& cell, WidePlace place) {
        std::string text;
        const ProError status = Answer(call, table.GetLabel(cell.row, cell.column, &text));
        if (status == PRO_TK_NO_ERROR) place = text;
        return status;
      });
}

ProError ProUITableCellBackgroundColorSet(const char* dialog, const char* component,
                                          const char* row, const char* column,
                                          ProUIColorType color) {
  return Crossing(__func__, TableIn(dialog, component), CellIn{row, column}, color)
      .Run([](const Call& call, TableModel& table, const CellName& cell, ProUIColorType wanted) {
        return Answer(call, table.SetBackground(cell.row, cell.column, wanted));
      });
}

ProError ProUITableCellBackgroundColorGet(const char* dialog, const char* component,
                                          const char* row, const char* column,
                                          ProUIColorType* color) {
  return Crossing(__func__, TableIn(dialog, component), CellIn{row, column},
                  Out(color, "colour place"))
      .Run([](const Call& call, const TableModel& table, const CellName& cell,
              ProUIColorType& place) {
        return Answer(call, table.GetBackground(cell.row, cell.column, &place));
      });
}

ProError ProUITableSelectednamesGet(const char* dialog, const char* component, int* count,
                                    char*** names) {
  return Crossing(__func__, TableIn(dialog, component), OutList(count, names))
      .Run([](const TableModel& table, ListPlace<char> place) { place = table.SelectedRows(); });
}

ProError ProUITableSelectednamesSet(const char* dialog, const char* component, int count,
                                    char** names) {
  return Crossing(__func__, TableIn(dialog, component), NamesIn{count, names})
      .Run([](const Call& call, TableModel& table, const Names& rows) {
        return Answer(call, table.SelectRows(rows));
      });
}

ProError ProUITableSelectionpolicySet(const char* dialog, const char* component,
                                      ProUISelectionpolicy policy) {
  return Crossing(__func__, TableIn(dialog, component), policy)
      .Run([](const Call& call, TableModel& table, ProUISelectionpolicy wanted) {
        const ProError status = Answer(call, table.SetPolicy(wanted));
        if (call.host.habits.selection_policy_clears_selection) table.SelectRows({});
        return status;
      });
}

ProError ProUITableArmActionSet(const char* dialog, const char* component, ProUIAction action,
                                ProAppData data) {
  return BindFieldAction(__func__, dialog, component, {FieldKind::kTable, kArmEvent}, action, data);
}

ProError ProUITableFocusCellGet(const char* dialog, const char* component, char** row,
                                char** column) {
  return Crossing(__func__, TableIn(dialog, component), OutNarrow(row, "row place"),
                  OutNarrow(column, "column place"))
      .Run([](const Call& call, const TableModel& table, NarrowPlace row_place,
              NarrowPlace column_place) {
        CellName cell;
        const ProError status = Answer(call, table.GetFocus(&cell.row, &cell.column));
        if (status != PRO_TK_NO_ERROR) return status;
        row_place = cell.row;
        column_place = cell.column;
        return status;
      });
}

ProError ProUITableCellComponentCopy(const char* dialog, const char* component, const char* row,
                                     const char* column, const char* source, const char* new_name) {
  return Crossing(__func__, DialogIn{dialog}, FieldIn<Field>{dialog, component, FieldKind::kTable},
                  CellIn{row, column}, NarrowIn{source, "component name"},
                  NarrowIn{new_name, "new name"})
      .Run([](const Call& call, LiveDialog& live, const Field& table, const CellName& cell,
              const std::string& from, const std::string& name) {
        const UiStatus done = live.state.CopyIntoCell(from, table, cell.row, cell.column, name);
        if (done == UiStatus::kBadArgument) return PRO_TK_E_FOUND;
        // What was bound to another one of this name is not bound to the new one.
        if (done == UiStatus::kOk) live.Unbind(name);
        return Answer(call, done, from);
      });
}

ProError ProUITableCellComponentDelete(const char* dialog, const char* component, const char* row,
                                       const char* column) {
  return Crossing(__func__, TableIn(dialog, component), CellIn{row, column})
      .Run([](const Call& call, TableModel& table, const CellName& cell) {
        return Answer(call, table.DropComponent(cell.row, cell.column));
      });
}

ProError ProUITableColumnselectionpolicySet(const char* dialog, const char* component,
                                            ProUISelectionpolicy policy) {
  return Crossing(__func__, TableIn(dialog, component), policy)
      .Run([](const Call& call, const TableModel&, ProUISelectionpolicy wanted) {
        // Nobody selects columns here.
        return Answer(call, IsPolicy(wanted) ? UiStatus::kOk : UiStatus::kBadArgument);
      });
}

ProError ProUITableActivateActionSet(const char* dialog, const char* component, ProUIAction action,
                                     ProAppData data) {
  return BindFieldAction(__func__, dialog, component, {FieldKind::kTable, kActivateEvent}, action,
                         data);
}

ProError ProUIRadiogroupSelectActionSet(const char* dialog, const char* component,
                                        ProUIAction action, ProAppData data) {
  return BindFieldAction(__func__, dialog, component, {FieldKind::kRadioGroup, kSelectEvent},
                         action, data);
}

ProError ProUIOptionmenuEnable(const char* dialog, const char* component) {
  return Crossing(__func__, OptionMenuIn(dialog, component)).Run([](Field& menu) {
    menu.enabled = true;
  });
}

ProError ProUIOptionmenuDisable(const char* dialog, const char* component) {
  return Crossing(__func__, OptionMenuIn(dialog, component)).Run([](Field& menu) {
    menu.enabled = false;
  });
}

ProError ProUIDrawingareaPostmanagenotifyActionSet(const char* dialog, const char* component,
                                                   ProUIAction action, ProAppData data) {
  return BindFieldAction(__func__, dialog, component, {FieldKind::kDrawingArea, kPostManageEvent},
                         action, data);
}

ProError ProUIDialogAboveactivewindowSet(const char* dialog, ProBoolean above) {
  return Crossing(__func__, DialogIn{dialog}, above)
      .Run([](const Call& call, LiveDialog& live, ProBoolean wanted) {
        if (wanted != PRO_B_TRUE && wanted != PRO_B_FALSE) call.Fail("neither true nor false");
        live.above_active_window = wanted == PRO_B_TRUE;
      });
}
