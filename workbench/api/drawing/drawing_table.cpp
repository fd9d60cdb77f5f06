// Host functions for the tables on the sheets of drawings.
#include "workbench/api/drawing/drawing_shared.h"

namespace wb {
namespace {

using TablePlace = DrawingItemPlace<DrawingTable>;

DrawingItemIn<DrawingTable> TableIn(const ProDwgtable* table) {
  return {table, PRO_DRAW_TABLE, &DrawingContent::tables, "table"};
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProDrawingTablesCollect(ProDrawing drawing, ProDwgtable** tables) {
  return Crossing(__func__, WholeDrawingIn{{drawing}}, Out(tables, "tables place"))
      .Run([](const Call& call, const DrawingPlace& at, ProDwgtable*& place) {
        std::vector<ProDwgtable> items;
        for (const DrawingTable& table : at.content.tables) {
          items.push_back({PRO_DRAW_TABLE, table.id, at.model.handle});
        }
        return GiveItems(call, items, place);
      });
}

ProError ProDwgtableIsFromFormat(ProDwgtable* table, ProBoolean* is_from_format) {
  return Crossing(__func__, TableIn(table), Out(is_from_format, "answer place"))
      .Run([](const TablePlace& at, ProBoolean& place) {
        place = AsBoolean(!at.item.format.empty());
      });
}

ProError ProDwgtableSegCount(ProDwgtable* table, int* count) {
  return Crossing(__func__, TableIn(table), Out(count, "count place"))
      .Run([](const TablePlace& at, int& place) {
        place = static_cast<int>(at.item.segments.size());
      });
}

ProError ProDwgtableSegSheetGet(ProDwgtable* table, int segment, int* sheet) {
  return Crossing(__func__, TableIn(table), segment, Out(sheet, "sheet place"))
      .Run([](const Call& call, const TablePlace& at, int number, int& place) {
        const int first = call.host.habits.table_segments_count_from_minus_one ? -1 : 0;
        const int wanted = number - first;
        if (wanted < 0 || wanted >= static_cast<int>(at.item.segments.size())) {
          return PRO_TK_E_NOT_FOUND;
        }
        place = at.item.segments[static_cast<size_t>(wanted)];
        return PRO_TK_NO_ERROR;
      });
}

ProError ProDwgtableDelete(ProDwgtable* table, int repaint) {
  return Crossing(__func__, TableIn(table), repaint).Run([](const TablePlace& at, int) {
    at.content.tables.Remove(int{at.item.id});
    at.model.modified = true;
  });
}
