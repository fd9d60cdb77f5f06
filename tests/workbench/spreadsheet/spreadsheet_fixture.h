// The spreadsheet stand-in and a client that drives it as the plug-in drives the real program.
#pragma once

#include <string>
#include <vector>

#include "tests/workbench/host/host_fixture.h"
#include "tests/workbench/spreadsheet/automation_client.h"
#include "workbench/spreadsheet/spreadsheet_server.h"

#include <objbase.h>

namespace wb {

enum Member : DISPID {
  kColor = 0x63,
  kColorIndex = 0x61,
  kSize = 0x68,
  kBold = 0x60,
  kCount = 0x76,
  kInterior = 0x81,
  kAlignment = 0x88,
  kFont = 0x92,
  kItem = 0xAA,
  kSaveCopyAs = 0xAF,
  kAdd = 0xB5,
  kNumberFormat = 0xC1,
  kRange = 0xC5,
  kAutoFit = 0xED,
  kCells = 0xEE,
  kColumns = 0xF1,
  kEntireColumn = 0xF6,
  kRows = 0x102,
  kClose = 0x115,
  kSaved = 0x12A,
  kQuit = 0x12E,
  kActiveSheet = 0x133,
  kUsedRange = 0x19C,
  kSheets = 0x1E5,
  kWorksheets = 0x1EE,
  kVisible = 0x22E,
  kMerge = 0x234,
  kWorkbooks = 0x23C,
  kUserControl = 0x4BA,
  kValue2 = 0x56C,
  kOpen = 0x783,
};
constexpr int kCentre = -4108;

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
    void End() const {
      book.Put(kSaved, true);
      program.Call(kQuit);
    }
  };
  Opened OpenNew() {
    Opened opened;
    opened.program = Start();
    opened.book = opened.program.Get(kWorkbooks).Call(kAdd);
    opened.sheet = opened.book.Get(kSheets).Get(kItem, 1);
    return opened;
  }

  std::string File(const char* name) const { return PathToUtf8(folder_ / name); }
  std::vector<std::string> Calls() const {
    std::vector<Crossed> lines = host_.trace.lines();
    std::vector<std::string> names;
    for (const Crossed& line : lines) names.push_back(line.function.substr(6));
    return names;
  }
};

}  // namespace wb
