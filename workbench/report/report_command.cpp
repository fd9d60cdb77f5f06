// Draws what one command showed, changed and called.
#include "workbench/report/report_command.h"

#include <algorithm>

#include "workbench/base/html_text.h"
#include "workbench/base/text.h"
#include "workbench/report/report_shown.h"
#include "workbench/report/report_text.h"

namespace wb {
namespace {

// More entries of a kind than these are only counted.
constexpr std::size_t kMostShown = 60;  // dialogs, boxes, sheets
constexpr std::size_t kMostLines = 500;
constexpr std::size_t kMostLinesUnfolded = 40;  // longer tables are folded

// Draws the first entries of a list, then says how many more there are.
template <typename List, typename Draw>
std::string DrawSome(const List& list, std::size_t most, const std::string& noun, Draw draw) {
  std::string html;
  const std::size_t drawn = std::min(most, list.size());
  for (std::size_t i = 0; i < drawn; ++i) html += draw(i);
  return html + MoreLine(list.size(), drawn, noun);
}

// A list as a table with its heading; nothing for an empty list.
template <typename List, typename DrawCells>
std::string DrawTable(const std::string& heading, const std::vector<std::string>& columns,
                      const List& list, const std::string& noun, DrawCells draw_cells) {
  if (list.empty()) return {};
  std::string html = list.size() > kMostLinesUnfolded
                         ? "<details class=\"fold\"><summary>" + heading + " <small>" +
                               Counted(list.size(), noun) + "</small></summary>"
                         : "<div><h3>" + heading + "</h3>";
  html += "<div class=\"scroll\"><table class=\"list\"><thead><tr>";
  for (const std::string& column : columns) html += "<th>" + column + "</th>";
  html += "</tr></thead><tbody>";
  for (std::size_t i = 0; i < std::min(kMostLines, list.size()); ++i) {
    html += "<tr>" + draw_cells(list[i]) + "</tr>";
  }
  html += "</tbody></table></div>" + MoreLine(list.size(), kMostLines, noun);
  return html + (list.size() > kMostLinesUnfolded ? "</details>" : "</div>");
}

std::string Cell(const std::string& text) {
  return "<td class=\"t\">" + ShownText(text) + "</td>";
}

// A dash where there is no parameter.
std::string ValueCell(const std::optional<std::string>& value) {
  if (!value) return "<td class=\"none\">—</td>";
  if (value->empty()) return "<td class=\"none\">empty</td>";
  return Cell(*value);
}

std::string DrawDialogs(const CommandRecord& command) {
  if (command.dialogs.empty()) return {};
  return "<h3>Dialogs</h3><div class=\"shown\">" +
         DrawSome(command.dialogs, kMostShown, "dialog",
                  [&](std::size_t i) {
                    const ShownDialog& dialog = command.dialogs[i];
                    const std::string before =
                        dialog.before.empty() ? "" : ", before " + dialog.before;
                    const std::string trouble =
                        dialog.trouble.empty()
                            ? ""
                            : ": <b class=\"bad\">" + EscapeHtml(dialog.trouble) + "</b>";
                    return "<figure><figcaption>" + EscapeHtml(dialog.name + before) + trouble +
                           "</figcaption><div class=\"scroll\">" + dialog.html + "</div></figure>";
                  }) +
         "</div>";
}

std::string DrawBoxes(const CommandRecord& command) {
  if (command.boxes.empty()) return {};
  return "<h3>Message boxes</h3><div class=\"shown\">" +
         DrawSome(command.boxes, kMostShown, "box",
                  [&](std::size_t i) {
                    return DrawMessageBox(command.boxes[i].box, command.boxes[i].pressed);
                  }) +
         "</div>";
}

std::string DrawNotes(const CommandRecord& command) {
  if (command.notes.empty()) return {};
  return "<h3>Message area</h3><ul class=\"notes\">" +
         DrawSome(command.notes, kMostLines, "note",
                  [&](std::size_t i) {
                    return "<li class=\"t\">" + ShownText(command.notes[i]) + "</li>";
                  }) +
         "</ul>";
}

std::string DrawQuestions(const CommandRecord& command) {
  return DrawTable(
      "Questions and answers", {"Kind", "Asked", "Answer"}, command.questions, "question",
      [](const Question& question) {
        return Cell(question.kind) + Cell(question.asked) +
               (question.answer ? Cell(*question.answer) : "<td class=\"none\">cancelled</td>");
      });
}

std::string DrawModels(const CommandRecord& command) {
  const std::string figures = DrawScenes(command);
  return figures.empty() ? "" : "<h3>The model</h3><div class=\"shown\">" + figures + "</div>";
}

std::string DrawStates(const CommandRecord& command) {
  return DrawTable("Feature states", {"Model", "Feature", "Before", "After"}, command.states,
                   "feature", [](const StateChange& change) {
                     return Cell(change.model) + Cell(change.item) + Cell(change.before) +
                            Cell(change.after);
                   });
}

std::string ValueCells(const ValueChange& change) {
  return Cell(change.model) + Cell(change.name) + ValueCell(change.before) +
         ValueCell(change.after);
}

std::string DrawParameters(const CommandRecord& command) {
  return DrawTable("Parameters", {"Model", "Parameter", "Before", "After"}, command.parameters,
                   "parameter", &ValueCells);
}

std::string DrawFacts(const CommandRecord& command) {
  return DrawTable("Other facts", {"Model", "Fact", "Before", "After"}, command.facts, "fact",
                   &ValueCells);
}

std::string DrawDrawings(const CommandRecord& command) {
  if (command.drawings.empty()) return {};
  return "<h3>Drawings</h3><div class=\"shown\">" +
         DrawSome(command.drawings, kMostShown, "drawing",
                  [&](std::size_t i) { return DrawSheets(command.drawings[i]); }) +
         "</div>";
}

std::string FileCells(const WrittenFile& file) {
  const std::string path = file.link.empty() ? ShownText(file.path)
                                             : "<a href=\"" + EscapeHtml(file.link) + "\">" +
                                                   ShownText(file.path) + "</a>";
  std::string what = ShownText(file.what);
  if (!file.no_copy.empty()) what += " <small>no copy: " + ShownText(file.no_copy) + "</small>";
  return "<td class=\"t\">" + path + "</td><td class=\"t\">" + what + "</td>";
}

std::string DrawFiles(const CommandRecord& command) {
  return DrawTable("Files written", {"File", "What"}, command.files, "file", &FileCells);
}

std::string DrawWorkbooks(const CommandRecord& command) {
  if (command.workbooks.empty()) return {};
  return "<h3>Workbooks</h3><div class=\"shown\">" +
         DrawSome(command.workbooks, kMostShown, "workbook",
                  [&](std::size_t i) {
                    const WorkbookPicture& book = command.workbooks[i];
                    return "<figure><figcaption>" + EscapeHtml(book.path) +
                           "</figcaption><div class=\"scroll\">" + book.html + "</div></figure>";
                  }) +
         "</div>";
}

std::string DrawPrograms(const CommandRecord& command) {
  return DrawTable(
      "Programs and folders opened", {"Opened", "With"}, command.programs, "program",
      [](const OpenedProgram& opened) { return Cell(opened.program) + Cell(opened.parameters); });
}

std::string DrawClipboard(const CommandRecord& command) {
  if (!command.clipboard) return {};
  return "<h3>Clipboard</h3><div class=\"clip t\">" + ShownText(*command.clipboard) + "</div>";
}

std::string DrawCalls(const CommandRecord& command) {
  if (command.calls.empty()) return {};
  std::vector<CallCount> counts = command.calls;
  std::stable_sort(counts.begin(), counts.end(), [](const CallCount& a, const CallCount& b) {
    return a.calls != b.calls ? a.calls > b.calls : a.function < b.function;
  });
  long sum = 0;
  std::string rows;
  for (const CallCount& count : counts) {
    sum += count.calls;
    rows += "<tr><td>" + EscapeHtml(count.function) + "</td><td class=\"num\">" +
            std::to_string(count.calls) + "</td></tr>";
  }
  return "<details class=\"fold\"><summary>Host calls <small>" +
         Counted(static_cast<std::uint64_t>(sum), "call") + " of " +
         Counted(counts.size(), "function") +
         "</small></summary><div class=\"scroll\"><table class=\"list\">" + rows +
         "</table></div></details>";
}

std::string PlaceText(const std::string& file, int line) {
  return EscapeHtml(file) + (line > 0 ? ":" + std::to_string(line) : "");
}

const char* OutcomeText(Outcome outcome) {
  switch (outcome) {
    case Outcome::kDone:
      return "done";
    case Outcome::kFailed:
      return "gave a failing status";
    case Outcome::kNotAvailable:
      return "not available";
    case Outcome::kUnknown:
      return "no such command";
  }
  return "";
}

// Of a failure of many lines the first says what it is; the others stand where its command is.
std::string FailureItem(const FailureLine& line) {
  const std::string& text = line.failure->text;
  const std::size_t first = std::min(text.find('\n'), text.size());
  std::string place = PlaceText(line.failure->file, line.failure->line);
  std::string rest;
  if (!line.anchor.empty()) {
    place = "<a href=\"#" + line.anchor + "\">" + place + "</a>";
    if (first < text.size()) rest = " …";
  } else if (first < text.size()) {
    rest = "<pre>" + EscapeHtml(text.substr(first + 1)) + "</pre>";
  }
  return "<li class=\"t\">" + place + (place.empty() ? "" : ": ") +
         ShownText(text.substr(0, first)) + rest + "</li>";
}

// Drawings that were not in session before the command.
std::size_t NewDrawings(const CommandRecord& command) {
  return static_cast<std::size_t>(std::ranges::count_if(
      command.drawings, [](const DrawingPicture& drawing) { return drawing.before.empty(); }));
}

}  // namespace

std::string DrawFailures(const std::string& heading, const std::vector<FailureLine>& failures) {
  if (failures.empty()) return {};
  return "<div class=\"fails\"><h3>" + EscapeHtml(heading) + "</h3><ul>" +
         DrawSome(failures, kMostLines, "failure",
                  [&](std::size_t i) { return FailureItem(failures[i]); }) +
         "</ul></div>";
}

std::string PlaceOf(const CommandRecord& command) {
  return PlaceText(command.file, command.line);
}

std::string OutcomeOf(const CommandRecord& command) {
  std::string html = OutcomeText(command.outcome);
  if (command.outcome != Outcome::kDone) html = "<span class=\"bad\">" + html + "</span>";
  if (!command.status.empty()) html += " <small>" + EscapeHtml(command.status) + "</small>";
  return html;
}

std::string CommandInShort(const CommandRecord& command) {
  const std::pair<std::size_t, const char*> counts[] = {
      {command.dialogs.size(), "dialog"},       {command.boxes.size(), "message"},
      {command.notes.size(), "note"},           {command.states.size(), "feature state"},
      {command.parameters.size(), "parameter"}, {command.facts.size(), "other fact"},
      {NewDrawings(command), "drawing"},        {command.files.size(), "file"},
      {command.programs.size(), "program"},
  };
  std::vector<std::string> words;
  for (const auto& [count, noun] : counts) {
    if (count > 0) words.push_back(Counted(count, noun));
  }
  if (command.clipboard) words.push_back("clipboard");
  return Join(", ", words);
}

std::string DrawCommand(const CommandRecord& command, const std::string& anchor,
                        const std::vector<FailureLine>& failures, const TreeLimits& limits) {
  std::string html = "<section id=\"" + anchor + "\"><h2>" + EscapeHtml(command.name);
  if (!command.label.empty()) html += " <small>" + EscapeHtml(command.label) + "</small>";
  html += "</h2><p>" + PlaceOf(command) + " · " + OutcomeOf(command) + "</p>";
  html += DrawFailures(Counted(failures.size(), "failure"), failures);
  for (const auto draw : {&DrawDialogs, &DrawBoxes, &DrawQuestions, &DrawNotes}) {
    html += draw(command);
  }
  html += DrawModels(command);
  html += DrawTrees(command, limits);
  for (const auto draw : {&DrawStates, &DrawParameters, &DrawFacts, &DrawDrawings, &DrawFiles,
                          &DrawWorkbooks, &DrawPrograms, &DrawClipboard, &DrawCalls}) {
    html += draw(command);
  }
  return html + "</section>\n";
}

}  // namespace wb
