// Statements on files that the host's writers make of drawings and models, and on what is in them.
#include <algorithm>
#include <nlohmann/json.hpp>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/companion/companion.h"
#include "workbench/script/script_runner.h"
#include "workbench/sheet/dxf_reader.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

constexpr struct {
  const char* word;
  FileFormat format;
} kFormats[] = {{"dwg", FileFormat::kDwg},   {"dxf", FileFormat::kDxf},
                {"pdf", FileFormat::kPdf},   {"step", FileFormat::kStep},
                {"iges", FileFormat::kIges}, {"sat", FileFormat::kSat}};

constexpr struct {
  const char* word;
  WriterConduct conduct;
} kConducts[] = {{"works", WriterConduct::kWorks},
                 {"fails", WriterConduct::kFails},
                 {"writes_nothing", WriterConduct::kWritesNothing},
                 {"writes_empty", WriterConduct::kWritesEmpty}};

void OrderWriter(ScriptRun& run, const Statement& statement) {
  std::optional<FileFormat> format;
  for (const auto& row : kFormats) {
    if (statement.Text("FORMAT") == row.word) format = row.format;
  }
  for (const auto& row : kConducts) {
    if (statement.Text("CONDUCT") != row.word) continue;
    run.host.writers.Order(format, row.conduct, statement.Text("FILE"));
  }
}

void SetSatType(ScriptRun& run, const Statement& statement) {
  run.host.writers.sat_type = statement.Number("N");
}

void SwitchCompanion(ScriptRun& run, const Statement& statement) {
  run.host.companion_is_missing = statement.Text("STATE") == "missing";
}

void RequireCompanion(ScriptRun&, const Statement&) {
  const auto& answer = TheCompanion().Ask(R"({"want":"nothing"})");
  const bool is_there = answer.trouble.starts_with("it knows nothing of");
  if (!is_there) throw ScriptSkip{answer.trouble};
}

std::string Listed(const std::vector<std::string>& names) {
  return names.empty() ? "none" : Join(" ", names);
}

// --- Which files there are.

void ExpectWritten(ScriptRun& run, const Statement& statement) {
  const auto written = run.host.events.Since<ExportedFile>(run.marks.begin);
  if (statement.Has("count")) {
    run.CheckText(statement, "number of files written", statement.Text("N"),
                  std::to_string(written.size()));
    return;
  }
  std::vector<std::string> wanted;
  std::vector<std::string> got;
  for (const std::string& file : statement.Texts("FILE")) {
    wanted.push_back(PathToUtf8(run.WorkPath(file).lexically_normal().make_preferred()));
  }
  for (const ExportedFile& file : written) {
    got.push_back(PathToUtf8(PathFromUtf8(file.path).lexically_normal().make_preferred()));
  }
  run.Check(statement, wanted == got, "files written", Listed(wanted), Listed(got));
}

std::vector<std::string> FilesOf(const fs::path& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (const auto& item : fs::directory_iterator(folder, error)) {
    if (item.is_regular_file()) names.push_back(PathToUtf8(item.path().filename()));
  }
  std::ranges::sort(names);
  return names;
}

void ExpectFiles(ScriptRun& run, const Statement& statement) {
  const std::vector<std::string> got = FilesOf(run.WorkPath(statement.Text("PATH")));
  const std::string what = "files in " + statement.Text("PATH");
  if (statement.Has("count")) {
    run.CheckText(statement, "number of " + what, statement.Text("N"), std::to_string(got.size()));
    return;
  }
  std::vector<std::string> wanted = statement.Texts("FILE");
  std::ranges::sort(wanted);
  run.Check(statement, wanted == got, what, Listed(wanted), Listed(got));
}

// --- What is in them.

std::string BytesOf(ScriptRun& run, const Statement& statement) {
  const fs::path file = run.WorkPath(statement.Text("PATH"));
  const auto bytes = ReadFileBytes(file);
  if (!bytes) throw ScriptError("there is no file " + PathToUtf8(file));
  return *bytes;
}

DxfFile DxfOf(ScriptRun& run, const Statement& statement) {
  try {
    return ReadDxf(BytesOf(run, statement));
  } catch (const DxfError& error) {
    throw ScriptError(statement.Text("PATH") + " is no DXF file: " + error.what());
  }
}

bool IsAmong(const std::vector<std::string>& texts, const std::string& part) {
  return std::ranges::any_of(texts,
                             [&](const std::string& text) { return text.find(part) != text.npos; });
}

void CheckPart(ScriptRun& run, const Statement& statement, const std::vector<std::string>& texts) {
  const std::string& part = statement.Text("TEXT");
  const bool wanted = !statement.Has("no_text");
  run.Check(statement, IsAmong(texts, part) == wanted, "texts",
            (wanted ? "one with " : "none with ") + Quoted(part), Join(" | ", texts));
}

// The numbers that follow `start` in those names that begin so.
void CheckViews(ScriptRun& run, const Statement& statement, const std::vector<std::string>& names,
                const std::string& start) {
  std::vector<std::string> got;
  for (const std::string& name : names) {
    if (!name.starts_with(start)) continue;
    const std::string number = name.substr(start.size());
    got.push_back(number.substr(0, number.find_first_not_of("0123456789")));
  }
  std::vector<std::string> wanted = statement.Texts("VIEW");
  std::ranges::sort(wanted);
  std::ranges::sort(got);
  run.Check(statement, wanted == got, "views", Listed(wanted), Listed(got));
}

void ExpectDxfProperty(ScriptRun& run, const Statement& statement) {
  const bool of_sheet = statement.Has("sheet");
  const std::string name = of_sheet ? "Sheet" : "Drawing";
  const auto& properties = DxfOf(run, statement).properties;
  const auto found = properties.find(name);
  run.CheckText(statement, name, statement.Text(of_sheet ? "N" : "MODEL"),
                found == properties.end() ? "not told" : found->second);
}

void ExpectDxfViews(ScriptRun& run, const Statement& statement) {
  CheckViews(run, statement, DxfOf(run, statement).layers, "VIEW_");
}

void ExpectDxfText(ScriptRun& run, const Statement& statement) {
  std::vector<std::string> texts;
  for (const DxfText& text : DxfOf(run, statement).texts) texts.push_back(text.text);
  CheckPart(run, statement, texts);
}

nlohmann::json PdfOf(ScriptRun& run, const Statement& statement) {
  const auto& answer = TheCompanion().Ask(R"({"want":"read pdf"})", BytesOf(run, statement));
  if (!answer.trouble.empty()) throw ScriptError(statement.Text("PATH") + ": " + answer.trouble);
  return nlohmann::json::parse(answer.bytes);
}

std::vector<std::string> OfPdfPage(ScriptRun& run, const Statement& statement, const char* what) {
  const nlohmann::json pages = PdfOf(run, statement)["pages"];
  const auto number = static_cast<size_t>(statement.Number("NTH"));
  if (number > pages.size()) {
    throw ScriptError(statement.Text("PATH") + " has " + std::to_string(pages.size()) + " sheets");
  }
  return pages[number - 1][what].get<std::vector<std::string>>();
}

void ExpectPdfSheets(ScriptRun& run, const Statement& statement) {
  run.CheckText(statement, "sheets", statement.Text("N"),
                std::to_string(PdfOf(run, statement)["pages"].size()));
}

void ExpectPdfViews(ScriptRun& run, const Statement& statement) {
  CheckViews(run, statement, OfPdfPage(run, statement, "names"), "view ");
}

void ExpectPdfText(ScriptRun& run, const Statement& statement) {
  CheckPart(run, statement, OfPdfPage(run, statement, "texts"));
}

// The number of the sheet in the drawing stands in the bookmark of its page.
void ExpectPdfShows(ScriptRun& run, const Statement& statement) {
  const std::vector<std::string> names = OfPdfPage(run, statement, "names");
  const std::string top = names.empty() ? "" : names.front();
  run.CheckText(statement, "sheet of the drawing", "sheet " + statement.Text("N"),
                top.substr(0, top.find(',')));
}

void ExpectPdfColour(ScriptRun& run, const Statement& statement) {
  run.CheckText(statement, "colours", statement.Text("COLOUR"), PdfOf(run, statement)["colour"]);
}

void ExpectPdfLetters(ScriptRun& run, const Statement& statement) {
  run.CheckText(statement, "letters", statement.Text("LETTERS"),
                PdfOf(run, statement)["fonts"].get<bool>() ? "text" : "stroked");
}

void ExpectPdfMadeWith(ScriptRun& run, const Statement& statement) {
  run.CheckText(statement, "made with", statement.Text("TEXT"), PdfOf(run, statement)["subject"]);
}

void ExpectPdfOf(ScriptRun& run, const Statement& statement) {
  run.CheckText(statement, "drawing", statement.Text("MODEL"), PdfOf(run, statement)["title"]);
}

#define WB_FORMAT "FORMAT:dwg|dxf|pdf|step|iges|sat|all"
#define WB_CONDUCT "CONDUCT:works|fails|writes_nothing|writes_empty"

// clang-format off
constexpr StatementForm kExportForms[] = {
    {"writer " WB_FORMAT " " WB_CONDUCT " [for FILE]",   kTopOrDialog, &OrderWriter},
    {"writer sat type N",                                kTopPlace,    &SetSatType},
    {"companion STATE:missing|ready",                    kTopPlace,    &SwitchCompanion},
    {"require companion",                                kTopPlace,    &RequireCompanion},
    {"expect written none",                              kTopOrDialog, &ExpectWritten},
    {"expect written count N",                           kTopOrDialog, &ExpectWritten},
    {"expect written FILE...",                           kTopOrDialog, &ExpectWritten},
    {"expect files PATH none",                           kTopOrDialog, &ExpectFiles},
    {"expect files PATH count N",                        kTopOrDialog, &ExpectFiles},
    {"expect files PATH are FILE...",                    kTopOrDialog, &ExpectFiles},
    {"expect dxf PATH sheet N",                          kTopOrDialog, &ExpectDxfProperty},
    {"expect dxf PATH drawing MODEL",                    kTopOrDialog, &ExpectDxfProperty},
    {"expect dxf PATH views none",                       kTopOrDialog, &ExpectDxfViews},
    {"expect dxf PATH views VIEW...",                    kTopOrDialog, &ExpectDxfViews},
    {"expect dxf PATH text TEXT",                        kTopOrDialog, &ExpectDxfText},
    {"expect dxf PATH no_text TEXT",                     kTopOrDialog, &ExpectDxfText},
    {"expect pdf PATH sheets N",                         kTopOrDialog, &ExpectPdfSheets},
    {"expect pdf PATH drawing MODEL",                    kTopOrDialog, &ExpectPdfOf},
    {"expect pdf PATH page NTH shows sheet N",           kTopOrDialog, &ExpectPdfShows},
    {"expect pdf PATH page NTH views none",              kTopOrDialog, &ExpectPdfViews},
    {"expect pdf PATH page NTH views VIEW...",           kTopOrDialog, &ExpectPdfViews},
    {"expect pdf PATH page NTH text TEXT",               kTopOrDialog, &ExpectPdfText},
    {"expect pdf PATH page NTH no_text TEXT",            kTopOrDialog, &ExpectPdfText},
    {"expect pdf PATH colours COLOUR:colour|grey|mono",  kTopOrDialog, &ExpectPdfColour},
    {"expect pdf PATH letters LETTERS:text|stroked",     kTopOrDialog, &ExpectPdfLetters},
    {"expect pdf PATH made_with TEXT",                   kTopOrDialog, &ExpectPdfMadeWith},
};
// clang-format on

#undef WB_FORMAT
#undef WB_CONDUCT

}  // namespace

StatementForms ExportStatements() {
  return kExportForms;
}

}  // namespace wb
