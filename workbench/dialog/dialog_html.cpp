// Draws dialogs as HTML.
#include "workbench/dialog/dialog_html.h"

#include <unordered_map>
#include <utility>
#include <variant>

#include "workbench/base/html_text.h"

namespace wb {
namespace {

constexpr std::size_t kMostRowsDrawn = 200;

struct ColorRow {
  int number;  // the host's colour number
  const char* css;
};

constexpr ColorRow kColors[] = {
    {17, "#e6f2b8"},  // the rows of assemblies in bills
};

// A tone of its own for a colour that the table does not know, so that it is still told apart: pale
// under a text, dark as the colour of one.
std::string CssColor(int number, const char* lightness) {
  return "hsl(" + std::to_string(number * 47 % 360) + ",55%," + lightness + ")";
}

std::string GroundColor(int number) {
  for (const ColorRow& row : kColors) {
    if (row.number == number) return row.css;
  }
  return CssColor(number, "80%");
}

// Ground and text always together: the page's own may be light on dark.
std::string CellStyle(const TableCell* cell) {
  if (!cell || (cell->background == kNoCellColor && cell->foreground == kNoCellColor)) return {};
  const std::string ground =
      cell->background == kNoCellColor ? "#ffffff" : GroundColor(cell->background);
  const std::string text =
      cell->foreground == kNoCellColor ? "#1b1f24" : CssColor(cell->foreground, "15%");
  return " style=\"background:" + ground + ";color:" + text + ";\"";
}

class DialogPainter {
 public:
  explicit DialogPainter(const Dialog& dialog) : dialog_(dialog) {
    for (const Field& component : dialog.Fields()) live_[component.name] = &component;
  }

  std::string Paint() {
    const DialogResource& resource = dialog_.Resource();
    const std::string& title = dialog_.Title().empty() ? resource.name : dialog_.Title();
    html_ = "<div class=\"dlg\" data-dialog=\"" + EscapeHtml(resource.name) + "\">";
    html_ += "<div class=\"dlg-title\"><span>" + EscapeHtml(title) + "</span><b>×</b></div>";
    html_ += "<div class=\"dlg-body\">";
    PaintGrid(resource.dialog.layout);
    html_ += "</div></div>\n";
    return std::move(html_);
  }

 private:
  void PaintGrid(const LayoutGrid& grid) {
    html_ += "<div class=\"dlg-grid\" style=\"grid-template-columns:";
    for (const int weight : grid.column_weights) {
      html_ +=
          weight == 0 ? "max-content " : "minmax(max-content," + std::to_string(weight) + "fr) ";
    }
    html_ += "\">";
    for (const LayoutCell& cell : grid.cells) {
      html_ += "<div style=\"grid-area:" + std::to_string(cell.row + 1) + "/" +
               std::to_string(cell.column + 1) + (FillsRow(cell) ? ";align-self:stretch" : "") +
               "\">";
      if (cell.nested.empty()) {
        PaintComponent(*live_.at(cell.component));
      } else {
        PaintGrid(cell.nested.front());
      }
      html_ += "</div>";
    }
    html_ += "</div>";
  }

  bool FillsRow(const LayoutCell& cell) const {
    if (!cell.nested.empty()) return false;
    const FieldResource& resource = *dialog_.Resource().Find(cell.component);
    return resource.Flag("AttachTop", false) && resource.Flag("AttachBottom", false);
  }

  void PaintComponent(const Field& component) {
    if (!dialog_.IsShown(component)) return;
    const FieldResource& resource = *dialog_.Resource().Find(component.name);
    if (component.kind == FieldKind::kSubLayout) return PaintGroup(component, resource);
    if (component.kind == FieldKind::kTab) return PaintPages(resource);
    if (component.kind == FieldKind::kSeparator) {
      html_ += "<hr class=\"dlg-rule\">";
    } else if (const auto* choice = std::get_if<ChoiceState>(&component.state)) {
      PaintChoice(component, resource, *choice);
    } else if (const auto* text = std::get_if<TextState>(&component.state)) {
      PaintText(component, resource, *text);
    } else if (const auto* check = std::get_if<CheckState>(&component.state)) {
      Element(component, check->set ? "dlg-check dlg-on" : "dlg-check", {},
              "<i></i>" + EscapeHtml(component.label));
    } else if (const auto* table = std::get_if<TableModel>(&component.state)) {
      PaintTable(component, resource, *table);
    } else {
      PaintPlain(component, resource);
    }
  }

  // Opens the component's own element: its class, greyed or not, its help text and its style.
  void Open(const Field& component, std::string classes, const std::string& style) {
    if (!dialog_.IsUsable(component)) classes += " dlg-off";
    html_ += "<div class=\"" + classes + "\" data-name=\"" + EscapeHtml(component.name) + "\"";
    if (!component.help_text.empty()) html_ += " title=\"" + EscapeHtml(component.help_text) + "\"";
    if (!style.empty()) html_ += " style=\"" + style + "\"";
    html_ += ">";
  }

  void Element(const Field& component, const std::string& classes, const std::string& style,
               const std::string& inner_html) {
    Open(component, classes, style);
    html_ += inner_html + "</div>";
  }

  static std::string WidthStyle(const FieldResource& resource, int fallback) {
    return "min-width:" + std::to_string(resource.Number("Columns", fallback)) + "ch";
  }

  static std::string HeightStyle(int lines) {
    return "min-height:" + std::to_string(lines * 3 / 2) + "em";
  }

  void PaintGroup(const Field& component, const FieldResource& resource) {
    if (!resource.Flag("Decorate", false)) return PaintGrid(resource.layout);
    html_ += "<fieldset class=\"dlg-group\">";
    if (!component.label.empty()) html_ += "<legend>" + EscapeHtml(component.label) + "</legend>";
    PaintGrid(resource.layout);
    html_ += "</fieldset>";
  }

  void PaintPages(const FieldResource& tab) {
    for (const LayoutCell& shown : tab.layout.cells) {
      html_ += "<div class=\"dlg-tabs\">";
      for (const LayoutCell& page : tab.layout.cells) {
        html_ += &page == &shown ? "<span class=\"dlg-on\">" : "<span>";
        html_ += EscapeHtml(live_.at(page.component)->label) + "</span>";
      }
      html_ += "</div><div class=\"dlg-page\">";
      PaintGrid(dialog_.Resource().Find(shown.component)->layout);
      html_ += "</div>";
    }
  }

  void PaintPlain(const Field& component, const FieldResource& resource) {
    switch (component.kind) {
      case FieldKind::kPushButton: {
        const bool is_default = dialog_.Resource().dialog.Text("DefaultButton") == component.name;
        Element(component, is_default ? "dlg-button dlg-default" : "dlg-button", {},
                EscapeHtml(component.label));
        break;
      }
      case FieldKind::kDrawingArea:
        Element(component, "dlg-drawing",
                "width:" + std::to_string(resource.Number("DrawingWidth", 120)) +
                    "px;height:" + std::to_string(resource.Number("DrawingHeight", 60)) + "px",
                {});
        break;
      default:
        Element(component, "dlg-label", {}, EscapeHtml(component.label));
    }
  }

  void PaintText(const Field& component, const FieldResource& resource, const TextState& text) {
    std::string classes = "dlg-field";
    std::string style = WidthStyle(resource, 12);
    if (component.kind == FieldKind::kTextArea) {
      classes += " dlg-area";
      style += ";" + HeightStyle(resource.Number("Rows", 4));
    }
    if (!text.IsEditable()) classes += " dlg-off";
    Element(component, classes, style, EscapeHtml(text.Value()));
  }

  void PaintChoice(const Field& component, const FieldResource& resource,
                   const ChoiceState& choice) {
    if (component.kind == FieldKind::kOptionMenu) {
      const auto& selected = choice.Selected();
      const std::string shown = selected.empty() ? "" : choice.LabelOf(selected.front());
      return Element(component, "dlg-field dlg-option", WidthStyle(resource, 8),
                     "<span>" + EscapeHtml(shown) + "</span><b></b>");
    }
    const bool list = component.kind == FieldKind::kList;
    const bool one_line = !list && resource.Flag("Orientation", false);
    Open(component,
         list       ? "dlg-list"
         : one_line ? "dlg-radios dlg-row"
                    : "dlg-radios",
         list ? WidthStyle(resource, 12) + ";" + HeightStyle(resource.Number("VisibleRows", 4))
              : std::string());
    for (const std::string& name : choice.Names()) {
      html_ += choice.IsSelected(name) ? "<div class=\"dlg-on\">" : "<div>";
      if (!list) html_ += "<i></i>";
      html_ += EscapeHtml(choice.LabelOf(name)) + "</div>";
    }
    html_ += "</div>";
  }

  void PaintTable(const Field& component, const FieldResource& resource, const TableModel& table) {
    Open(component, "dlg-sheet", HeightStyle(resource.Number("VisibleRows", 4) + 1));
    html_ += "<table><thead><tr>";
    for (const TableModel::Column& column : table.Columns()) {
      html_ += "<th";
      if (column.width > 0) html_ += " style=\"min-width:" + std::to_string(column.width) + "ch\"";
      html_ += ">" + EscapeHtml(column.label) + "</th>";
    }
    html_ += "</tr></thead><tbody>";
    std::size_t drawn = 0;
    for (const TableModel::Row& row : table.Rows()) {
      if (drawn++ == kMostRowsDrawn) break;
      PaintRow(table, row);
    }
    html_ += "</tbody></table>";
    if (table.Rows().size() > kMostRowsDrawn) {
      html_ += "<p>… " + std::to_string(table.Rows().size() - kMostRowsDrawn) + " more rows</p>";
    }
    html_ += "</div>";
  }

  void PaintRow(const TableModel& table, const TableModel::Row& row) {
    html_ += row.selected ? "<tr class=\"dlg-on\">" : "<tr>";
    for (const TableModel::Column& column : table.Columns()) {
      const std::string text = EscapeHtml(dialog_.CellText(table, row.name, column.name));
      std::string component;
      const bool is_field = table.GetComponent(row.name, column.name, &component) == UiStatus::kOk;
      html_ += "<td" + CellStyle(TableModel::CellAt(row, column)) + ">" +
               (is_field ? "<div class=\"dlg-field\">" + text + "</div>" : text) + "</td>";
    }
    html_ += "</tr>";
  }

  const Dialog& dialog_;
  std::unordered_map<std::string, const Field*> live_;
  std::string html_;
};

}  // namespace

std::string DrawDialog(const Dialog& dialog) {
  return DialogPainter(dialog).Paint();
}

}  // namespace wb
