// Drawings as arguments: their sheets, their views and their other items; and the lists of them
// that a call hands out.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "workbench/host/arguments.h"
#include "workbench/session/drawing_views.h"

namespace wb {

// A body that wants only the content takes `const DrawingContent&`.
struct DrawingPlace {
  Model& model;
  DrawingContent& content;
  operator DrawingContent&() const { return content; }
};

struct WholeDrawingIn : ModelIn {
  DrawingPlace Look(const Call& call) const {
    return {call.ModelAt(handle), DrawingIn(handle).Look(call)};
  }
};

Sheet& SheetAt(const Call& call, DrawingContent& drawing, int number);

struct SheetPlace : DrawingPlace {
  Sheet& sheet;
  int number;
};

// A drawing and the number of one of its sheets.
struct SheetIn {
  ProDrawing drawing;
  int number;
  std::string Describe() const;
  SheetPlace Look(const Call& call) const;
};

struct ViewPlace : DrawingPlace {
  DrawingView& view;
};

// A drawing and one of its views.
struct DrawingViewIn {
  ProDrawing drawing;
  ProView handle;
  std::string Describe() const;
  ViewPlace Look(const Call& call) const;
};

ProView ViewHandle(const Call& call, Model& drawing, int id);

// A point of the sheet as the host tells it and is told it: on the sheet, or by habit on the
// screen.
SheetPoint FromHost(const Call& call, const Sheet& sheet, const double* point);
SheetPoint ToHost(const Call& call, const Sheet& sheet, const SheetPoint& point);

template <typename Item>
struct DrawingItemPlace : DrawingPlace {
  Item& item;
};

// An item of a drawing, given as a record of the plug-in's own: a table, a dimension.
template <typename Item>
struct DrawingItemIn {
  const ProModelitem* record;
  ProType type;
  ItemList<Item> DrawingContent::*list;
  const char* what;

  std::string Describe() const { return DescribeArgument(record); }
  DrawingItemPlace<Item> Look(const Call& call) const {
    if (record == nullptr) call.Fail(std::string("null ") + what);
    const DrawingPlace at = WholeDrawingIn{{record->owner}}.Look(call);
    if (record->type != type) {
      call.Fail("item of type " + std::to_string(static_cast<int>(record->type)) + " given as a " +
                what);
    }
    Item* const item = (at.content.*list).Find(record->id);
    if (item == nullptr) {
      call.Fail("\"" + at.model.id.Text() + "\" has no " + what + " " + std::to_string(record->id));
    }
    return {{at.model, at.content}, *item};
  }
};

// Lends the items as an array; what becomes of none is a habit of the host.
template <typename Item>
ProError GiveItems(const Call& call, const std::vector<Item>& items, Item*& place) {
  if (items.empty()) {
    place = nullptr;
    return call.host.habits.empty_collection_succeeds ? PRO_TK_NO_ERROR : PRO_TK_E_NOT_FOUND;
  }
  place = static_cast<Item*>(NewArray(call, static_cast<int>(items.size()), sizeof(Item)));
  std::copy(items.begin(), items.end(), place);
  return PRO_TK_NO_ERROR;
}

inline ProBoolean AsBoolean(bool flag) {
  return flag ? PRO_B_TRUE : PRO_B_FALSE;
}

}  // namespace wb
