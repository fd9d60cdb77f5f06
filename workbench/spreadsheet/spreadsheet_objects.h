// The automation objects of the spreadsheet stand-in.
#pragma once

#include <memory>

#include "workbench/base/windows_headers.h"
#include "workbench/spreadsheet/spreadsheet_server.h"

#include <oaidl.h>

namespace wb {

enum class ObjectKind {
  kApplication,
  kWorkbooks,
  kWorkbook,
  kSheets,
  kWorksheet,
  kRange,
  kInterior,
  kFont,
};
const char* ObjectWord(ObjectKind kind);

// What a range counts and fits: its cells, its rows or its columns.
enum class RangeSpan { kCells, kRows, kColumns };

// Where an object stands in the program.
struct ObjectPlace {
  std::shared_ptr<SpreadsheetProgram> program;
  std::shared_ptr<OpenWorkbook> book;
  size_t sheet = 0;
  CellArea area;
  RangeSpan span = RangeSpan::kCells;
};

// Deletes itself with its last reference. Outlives the server when the plug-in keeps it.
class AutomationObject final : public IDispatch {
 public:
  AutomationObject(SpreadsheetServer& server, ObjectKind object_kind, ObjectPlace object_place,
                   long call);

  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override;
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override;
  STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD kind, DISPPARAMS* parameters,
                      VARIANT* result, EXCEPINFO* exception, UINT* wrong_argument) override;

  void Disconnect() { server_ = nullptr; }
  // "Range from call 31 (2 references)".
  std::string Describe() const;

  const ObjectKind kind;
  const ObjectPlace place;
  const long given_by;  // number of the call
  bool told = false;    // as left behind

 private:
  ~AutomationObject() = default;

  SpreadsheetServer* server_;
  ULONG references_ = 1;
};

}  // namespace wb
