// Puts the report page together: what ran and how it went, failures, contents, then a section a
// command.
#include "workbench/report/report.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "workbench/base/html_text.h"
#include "workbench/base/text.h"
#include "workbench/dialog/dialog_html.h"
#include "workbench/report/report_command.h"
#include "workbench/report/report_text.h"

namespace wb {
namespace {

// Commands beyond these are listed without a section, unless they failed.
constexpr std::size_t kMostSections = 300;
// Tree rows of the whole page are shared out among the commands.
constexpr std::size_t kMostTreeRows = 40'000;
constexpr std::size_t kFewestRowsEach = 50;

struct Section {
  const CommandRecord* command;
  std::string anchor;  // empty: it has no section of its own
  std::vector<FailureLine> failures;
};

// The index of the command that was at work; `count` when there was none.
std::size_t CommandAt(const RunFailure& failure, std::size_t count) {
  if (failure.command < 0) return count;
  return std::min(static_cast<std::size_t>(failure.command), count);
}

std::vector<Section> SectionsOf(const RunRecord& record) {
  std::vector<Section> sections;
  for (const CommandRecord& command : record.commands) sections.push_back({&command, "", {}});
  for (const RunFailure& failure : record.failures) {
    const std::size_t at = CommandAt(failure, sections.size());
    if (at < sections.size()) sections[at].failures.push_back({&failure, ""});
  }
  for (std::size_t i = 0; i < sections.size(); ++i) {
    if (i < kMostSections || !sections[i].failures.empty()) {
      sections[i].anchor = "c" + std::to_string(i + 1);
    }
  }
  return sections;
}

TreeLimits LimitsFor(std::size_t commands) {
  TreeLimits limits;
  const std::size_t share = kMostTreeRows / std::max<std::size_t>(commands, 1);
  limits.rows = std::clamp(share, kFewestRowsEach, limits.rows);
  return limits;
}

std::string DrawHeader(const RunRecord& record) {
  const bool failed = record.failed > 0 || !record.failures.empty();
  const char* look = failed ? "verdict failed" : record.passed == 0 ? "verdict nothing" : "verdict";
  std::string html = std::string("<header><h1>Workbench run</h1><span class=\"") + look + "\">" +
                     std::to_string(record.passed) + " passed, " + std::to_string(record.failed) +
                     " failed</span></header>";
  if (record.script.empty() && record.facts.empty()) return html;
  html += "<dl>";
  if (!record.script.empty())
    html += "<dt>Script</dt><dd class=\"t\">" + EscapeHtml(record.script) + "</dd>";
  for (const auto& [what, value] : record.facts) {
    html += "<dt>" + EscapeHtml(what) + "</dt><dd class=\"t\">" + ShownText(value) + "</dd>";
  }
  return html + "</dl>";
}

std::string DrawAllFailures(const RunRecord& record, const std::vector<Section>& sections) {
  std::vector<FailureLine> lines;
  for (const RunFailure& failure : record.failures) {
    const std::size_t at = CommandAt(failure, sections.size());
    lines.push_back({&failure, at < sections.size() ? sections[at].anchor : ""});
  }
  return DrawFailures(Counted(lines.size(), "failure"), lines);
}

std::string DrawContents(const std::vector<Section>& sections) {
  if (sections.empty()) return {};
  std::string html =
      "<h3>Commands</h3><div class=\"scroll\"><table "
      "class=\"list\"><thead><tr><th>Command</th><th>Label</th><th>Script "
      "line</th><th>Outcome</th><th>Shown and changed</th></tr></thead><tbody>";
  for (const auto& [command, anchor, failures] : sections) {
    const std::string name = EscapeHtml(command->name);
    html += "<tr><td>" + (anchor.empty() ? name : "<a href=\"#" + anchor + "\">" + name + "</a>") +
            "</td><td>" + EscapeHtml(command->label) + "</td><td class=\"t\">" + PlaceOf(*command) +
            "</td><td>" + OutcomeOf(*command);
    if (!failures.empty()) {
      html += " <span class=\"bad\">" + Counted(failures.size(), "failure") + "</span>";
    }
    html += "</td><td>" + CommandInShort(*command) + "</td></tr>";
  }
  return html + "</tbody></table></div>";
}

}  // namespace

std::string RenderReport(const RunRecord& record) {
  const std::vector<Section> sections = SectionsOf(record);
  const TreeLimits limits = LimitsFor(sections.size());
  std::string html =
      "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">"
      "<meta name=\"color-scheme\" content=\"light dark\">"
      "<title>Workbench run</title>\n<style>";
  html += kReportCss;
  html += kDialogCss;
  html += "</style></head><body>\n";
  html += kReportIcons;
  html += DrawHeader(record) + DrawAllFailures(record, sections);
  html += DrawContents(sections);
  std::size_t without = 0;
  for (const auto& [command, anchor, failures] : sections) {
    if (anchor.empty()) {
      ++without;
    } else {
      html += DrawCommand(*command, anchor, failures, limits);
    }
  }
  html += MoreLine(without, 0, "command") + "</body></html>\n";
  return html;
}

void WriteReport(const std::filesystem::path& file, const RunRecord& record) {
  std::error_code no_matter;  // whether it can be written there shows next
  std::filesystem::create_directories(file.parent_path(), no_matter);
  std::ofstream out(file, std::ios::binary);
  out << RenderReport(record);
  out.close();
  if (!out) throw std::runtime_error(PathToUtf8(file) + ": the report cannot be written there");
}

}  // namespace wb
