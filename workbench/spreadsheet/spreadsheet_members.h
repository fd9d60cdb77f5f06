// The members of the spreadsheet's object model that the stand-in answers.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "workbench/spreadsheet/spreadsheet_objects.h"

namespace wb {

// A call that the plug-in must not make: recorded as a breach.
struct WrongCall {
  HRESULT result;
  std::string why;
};
// A call that the real program refuses for reasons of its own.
struct ProgramError {
  std::string description;
};

// The arguments of a call in the order they are written, and the place of its result.
class Invocation {
 public:
  Invocation(SpreadsheetServer& called_server, AutomationObject& called, long call_number,
             const DISPPARAMS& parameters, VARIANT* result);

  // Throw WrongCall when the argument is of another type.
  std::string Text(size_t index) const;
  int Number(size_t index) const;
  double Decimal(size_t index) const;
  bool Flag(size_t index) const;
  // Left out, or marked as such.
  bool IsMissing(size_t index) const;

  void Give(ObjectKind kind, ObjectPlace place) const;
  void Give(const CellValue& value) const;
  void Give(int number) const;

  const ObjectPlace& Place() const { return object.place; }
  const Worksheet& Sheet() const { return Place().book->book.sheets[Place().sheet]; }
  // The sheet to change; its workbook counts as unsaved from now on.
  Worksheet& ChangedSheet() const;

  SpreadsheetServer& server;
  AutomationObject& object;
  const long call;

 private:
  const VARIANT& Argument(size_t index) const;
  VARIANT& ResultPlace() const;

  std::vector<const VARIANT*> arguments_;
  VARIANT* result_;
};

struct SpreadsheetMember {
  ObjectKind kind;
  DISPID id;
  WORD call_kind;  // DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT or DISPATCH_METHOD
  size_t least;    // arguments
  size_t most;
  const char* name;  // "Excel.Range.Merge"
  void (*action)(const Invocation& invocation);
};

inline constexpr WORD kGet = DISPATCH_PROPERTYGET;
inline constexpr WORD kPut = DISPATCH_PROPERTYPUT;
inline constexpr WORD kCall = DISPATCH_METHOD;

// Those of worksheets, ranges, fills and fonts.
std::span<const SpreadsheetMember> RangeMembers();

// Whether calls of this name can be met, "Excel.Range.Merge".
bool IsSpreadsheetMember(std::string_view name);
// Null when the object has no such member, or not in this kind of call.
const SpreadsheetMember* FindMember(ObjectKind kind, DISPID id, WORD call_kind);
// The same in whatever kind of call.
const SpreadsheetMember* FindMember(ObjectKind kind, DISPID id);

}  // namespace wb
