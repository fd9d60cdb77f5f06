// The spreadsheet stand-in and a client that drives it as the plug-in drives the real program.
#pragma once

#include <string>

#include "tests/workbench/host/host_fixture.h"
#include "tests/workbench/spreadsheet/automation_client.h"
#include "workbench/spreadsheet/spreadsheet_server.h"

#include <objbase.h>

namespace wb {

enum Member : DISPID {
  kInterior = 0x81,
  kItem = 0xAA,
  kSaveCopyAs = 0xAF,
  kAdd = 0xB5,
  kNumberFormat = 0xC1,
  kRange = 0xC5,
  kClose = 0x115,
  kSaved = 0x12A,
  kQuit = 0x12E,
  kSheets = 0x1E5,
  kVisible = 0x22E,
  kMerge = 0x234,
  kWorkbooks = 0x23C,
  kValue2 = 0x56C,
};

class SpreadsheetFixture : public HostFixture {
 protected:
  SpreadsheetFixture() {
    ::CoInitialize(nullptr);
    host_.trace.keep_lines = true;
  }
  ~SpreadsheetFixture() override { ::CoUninitialize(); }

  SpreadsheetServer spreadsheet_{host_};

  TestObject Start() {
    CLSID class_id = {};
    void* object = nullptr;
    spreadsheet_.ClassOf("Excel.Application", &class_id);
    TestObject::result = spreadsheet_.Start(&class_id, &IID_IDispatch, &object);
    return TestObject(object);
  }
  // The program with a new workbook and its first sheet.
  struct Opened {
    TestObject program, book, sheet;
    TestObject Cell(const char* address) const { return sheet.Get(kRange, address, address); }
  };
  Opened OpenNew() {
    Opened opened;
    opened.program = Start();
    opened.book = opened.program.Get(kWorkbooks).Call(kAdd);
    opened.sheet = opened.book.Get(kSheets).Get(kItem, 1);
    return opened;
  }
};

}  // namespace wb
