// The exports of the probe library.
#include "tests/export/spreadsheet/excel_probe.h"

#include "export/spreadsheet/dispatch.h"
#include "export/spreadsheet/excel_reader.h"
#include "export/spreadsheet/excel_writer.h"
#include "export/spreadsheet/new_file.h"
#include "export/spreadsheet/workbook_file.h"

extern "C" __declspec(dllexport) bool WriteTable(const wchar_t* path) {
  const qm::ComScope com;
  const qm::WorkbookTable table = {
      L"1/2", {L"=A1", L"007"}, {{{L"'a"}, {L"=1+1", true}}, {{L"0012"}, {L""}}}};
  return qm::WriteWorkbook(table, path);
}

extern "C" __declspec(dllexport) bool WriteRows(const wchar_t* path, int rows) {
  const qm::ComScope com;
  const std::vector<qm::WorkbookCell> row = {{L"x"}};
  return qm::WriteWorkbook({L"t", {L"l"}, {static_cast<size_t>(rows), row}}, path);
}

extern "C" __declspec(dllexport) bool ReadTable(const wchar_t* path, wchar_t* texts, int size) {
  const qm::ComScope com;
  const auto rows = qm::ReadWorkbook(path, 2);
  if (!rows) return false;
  std::wstring all;
  for (const auto& row : *rows) {
    for (const std::wstring& text : row) all += text + L"|";
    all += L"\n";
  }
  texts[all.copy(texts, static_cast<size_t>(size) - 1)] = L'\0';
  return true;
}

extern "C" __declspec(dllexport) bool CheckFree(const wchar_t* path) {
  return qm::IsFreeToWrite(path);
}

extern "C" __declspec(dllexport) void BeginFile(const wchar_t* path, void (*write)(void*),
                                                void* data) {
  qm::NewFile file(path);
  if (file.Begin() == ERROR_SUCCESS) write(data);
}
