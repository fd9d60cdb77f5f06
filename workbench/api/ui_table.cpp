// Host functions for the tables of dialogs, and for what stands beside tables.
#include "workbench/api/ui_shared.h"

namespace wb {
namespace {

TableModel& TableAt(const Call& call, const char* dialog, const char* component) {
  return StateAt<TableModel>(call, dialog, component, ComponentKind::kTable);
}

std::string NameAt(const Call& call, const char* name, const char* what) {
  return call.Narrow(name, kNarrowLimit, what);
}

// A null neighbour stands for the start, as an empty one does.
std::string Neighbour(const Call& call, const char* name) {
  return name == nullptr ? std::string() : NameAt(call, name, "neighbour");
}

// An empty list is a success with no array.
template <typename Character, typename Give>
ProError GiveList(const Call& call, const std::vector<std::string>& texts, int* count,
                  Character*** place, Give give) {
  int& number = call.Place(count, "count place");
  Character**& array = call.Place(place, "array place");
  number = static_cast<int>(texts.size());
  array = texts.empty() ? nullptr : give(call, texts);
  return PRO_TK_NO_ERROR;
}

// Longest label, in 16-bit characters: a position number ten thousand levels down has 20,000.
constexpr size_t kLabelLimit = 32 * 1024;

struct CellName {
  std::string row;
  std::string column;
};
CellName CellAt(const Call& call, const char* row, const char* column) {
  return {NameAt(call, row, "row name"), NameAt(call, column, "column name")};
}

ProError SetUsable(const Call& call, const char* dialog, const char* component, bool usable) {
  StateAt<Component>(call, dialog, component, ComponentKind::kOptionMenu).enabled = usable;
  return PRO_TK_NO_ERROR;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProUITableRowsInsert(const char* dialog, const char* component, const char* neighbour,
                              int count, char** names) {
  return Crossing("ProUITableRowsInsert", dialog, component, neighbour, count,
                  static_cast<const void*>(names))
      .Run([&](Call& call) {
        TableModel& table = TableAt(call, dialog, component);
        return Answer(
            call, table.InsertRows(Neighbour(call, neighbour), NamesAt(call, names, count)), "");
      });
}

ProError ProUITableRowsDelete(const char* dialog, const char* component, int count, char** names) {
  return Crossing("ProUITableRowsDelete", dialog, component, count, static_cast<const void*>(names))
      .Run([&](Call& call) {
        TableModel& table = TableAt(call, dialog, component);
        return Answer(call, table.DeleteRows(NamesAt(call, names, count)), "");
      });
}

ProError ProUITableRownamesGet(const char* dialog, const char* component, int* count,
                               char*** names) {
  return Crossing("ProUITableRownamesGet", dialog, component, Out(count), Out(names))
      .Run([&](Call& call) {
        return GiveList(call, TableAt(call, dialog, component).RowNames(), count, names, GiveNames);
      });
}

ProError ProUITableColumnsInsert(const char* dialog, const char* component, const char* neighbour,
                                 int count, char** names) {
  return Crossing("ProUITableColumnsInsert", dialog, component, neighbour, count,
                  static_cast<const void*>(names))
      .Run([&](Call& call) {
        TableModel& table = TableAt(call, dialog, component);
        return Answer(
            call, table.InsertColumns(Neighbour(call, neighbour), NamesAt(call, names, count)), "");
      });
}

ProError ProUITableColumnsDelete(const char* dialog, const char* component, int count,
                                 char** names) {
  return Crossing("ProUITableColumnsDelete", dialog, component, count,
                  static_cast<const void*>(names))
      .Run([&](Call& call) {
        TableModel& table = TableAt(call, dialog, component);
        return Answer(call, table.DeleteColumns(NamesAt(call, names, count)), "");
      });
}

ProError ProUITableColumnnamesGet(const char* dialog, const char* component, int* count,
                                  char*** names) {
  return Crossing("ProUITableColumnnamesGet", dialog, component, Out(count), Out(names))
      .Run([&](Call& call) {
        return GiveList(call, TableAt(call, dialog, component).ColumnNames(), count, names,
                        GiveNames);
      });
}

ProError ProUITableColumnlabelsSet(const char* dialog, const char* component, int count,
                                   wchar_t** labels) {
  return Crossing("ProUITableColumnlabelsSet", dialog, component, count,
                  static_cast<const void*>(labels))
      .Run([&](Call& call) {
        TableModel& table = TableAt(call, dialog, component);
        return Answer(call, table.SetColumnLabels(WideTextsAt(call, labels, count)), "");
      });
}

ProError ProUITableColumnlabelsGet(const char* dialog, const char* component, int* count,
                                   wchar_t*** labels) {
  return Crossing("ProUITableColumnlabelsGet", dialog, component, Out(count), Out(labels))
      .Run([&](Call& call) {
        return GiveList(call, TableAt(call, dialog, component).ColumnLabels(), count, labels,
                        GiveWideTexts);
      });
}

ProError ProUITableRowlabelsGet(const char* dialog, const char* component, int* count,
                                wchar_t*** labels) {
  return Crossing("ProUITableRowlabelsGet", dialog, component, Out(count), Out(labels))
      .Run([&](Call& call) {
        return GiveList(call, TableAt(call, dialog, component).RowLabels(), count, labels,
                        GiveWideTexts);
      });
}

ProError ProUITableCellLabelSet(const char* dialog, const char* component, const char* row,
                                const char* column, wchar_t* label) {
  return Crossing("ProUITableCellLabelSet", dialog, component, row, column, label)
      .Run([&](Call& call) {
        TableModel& table = TableAt(call, dialog, component);
        const CellName cell = CellAt(call, row, column);
        const std::string text = call.Text(label, kLabelLimit, "label");
        return Answer(call, table.SetLabel(cell.row, cell.column, text), "");
      });
}

ProError ProUITableCellLabelGet(const char* dialog, const char* component, const char* row,
                                const char* column, wchar_t** label) {
  return Crossing("ProUITableCellLabelGet", dialog, component, row, column, Out(label))
      .Run([&](Call& call) {
        const TableModel& table = TableAt(call, dialog, component);
        const CellName cell = CellAt(call, row, column);
        wchar_t*& place = call.Place(label, "label place");
        std::string text;
        const ProError status = Answer(call, table.GetLabel(cell.row, cell.column, &text), "");
        if (status == PRO_TK_NO_ERROR) place = GiveWide(call, text);
        return status;
      });
}

ProError ProUITableCellBackgroundColorSet(const char* dialog, const char* component,
                                          const char* row, const char* column,
                                          ProUIColorType color) {
  return Crossing("ProUITableCellBackgroundColorSet", dialog, component, row, column, color)
      .Run([&](Call& call) {
        TableModel& table = TableAt(call, dialog, component);
        const CellName cell = CellAt(call, row, column);
        return Answer(call, table.SetBackground(cell.row, cell.column, color), "");
      });
}

ProError ProUITableCellBackgroundColorGet(const char* dialog, const char* component,
                                          const char* row, const char* column,
                                          ProUIColorType* color) {
  return Crossing("ProUITableCellBackgroundColorGet", dialog, component, row, column, Out(color))
      .Run([&](Call& call) {
        const TableModel& table = TableAt(call, dialog, component);
        const CellName cell = CellAt(call, row, column);
        ProUIColorType& place = call.Place(color, "colour place");
        return Answer(call, table.GetBackground(cell.row, cell.column, &place), "");
      });
}

ProError ProUITableSelectednamesGet(const char* dialog, const char* component, int* count,
                                    char*** names) {
  return Crossing("ProUITableSelectednamesGet", dialog, component, Out(count), Out(names))
      .Run([&](Call& call) {
        return GiveList(call, TableAt(call, dialog, component).SelectedRows(), count, names,
                        GiveNames);
      });
}

ProError ProUITableActivateActionSet(const char* dialog, const char* component, ProUIAction action,
                                     ProAppData data) {
  return Crossing("ProUITableActivateActionSet", dialog, component, action,
                  static_cast<const void*>(data))
      .Run([&](Call& call) {
        BindComponent(call, dialog, component, ComponentKind::kTable, kActivateEvent, action, data);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProUIRadiogroupSelectActionSet(const char* dialog, const char* component,
                                        ProUIAction action, ProAppData data) {
  return Crossing("ProUIRadiogroupSelectActionSet", dialog, component, action,
                  static_cast<const void*>(data))
      .Run([&](Call& call) {
        BindComponent(call, dialog, component, ComponentKind::kRadioGroup, kSelectEvent, action,
                      data);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProUIOptionmenuEnable(const char* dialog, const char* component) {
  return Crossing("ProUIOptionmenuEnable", dialog, component).Run([&](Call& call) {
    return SetUsable(call, dialog, component, true);
  });
}

ProError ProUIOptionmenuDisable(const char* dialog, const char* component) {
  return Crossing("ProUIOptionmenuDisable", dialog, component).Run([&](Call& call) {
    return SetUsable(call, dialog, component, false);
  });
}

ProError ProUIDrawingareaPostmanagenotifyActionSet(const char* dialog, const char* component,
                                                   ProUIAction action, ProAppData data) {
  return Crossing("ProUIDrawingareaPostmanagenotifyActionSet", dialog, component, action,
                  static_cast<const void*>(data))
      .Run([&](Call& call) {
        BindComponent(call, dialog, component, ComponentKind::kDrawingArea, kPostManageEvent,
                      action, data);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProUIDialogAboveactivewindowSet(const char* dialog, ProBoolean above) {
  return Crossing("ProUIDialogAboveactivewindowSet", dialog, above).Run([&](Call& call) {
    if (above != PRO_B_TRUE && above != PRO_B_FALSE) call.Fail("neither true nor false");
    DialogAt(call, dialog).above_active_window = above == PRO_B_TRUE;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProWstringarrayFree(wchar_t** texts, int count) {
  return Crossing("ProWstringarrayFree", static_cast<const void*>(texts), count)
      .Run([&](Call& call) {
        FreeTexts(call, texts, count, Resource::kWideTextArray);
        return PRO_TK_NO_ERROR;
      });
}
