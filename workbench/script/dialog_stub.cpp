// Writes the stub of a dialog field by field.
#include "workbench/script/dialog_stub.h"

#include "workbench/base/text.h"
#include "workbench/script/script_runner.h"

namespace wb {
namespace {

bool IsPlain(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

// Without quotes where the language takes it for nothing else.
std::string Word(const std::string& text) {
  for (const char c : text) {
    if (!IsPlain(c)) return Quoted(text);
  }
  return text.empty() || text == "none" ? Quoted(text) : text;
}

std::string Words(const std::vector<std::string>& texts) {
  std::vector<std::string> words;
  for (const std::string& text : texts) words.push_back(Word(text));
  return Join(" ", words);
}

std::string ChoiceLine(const Field& field, const ChoiceState& choice) {
  if (!choice.Selected().empty())
    return "choose " + Word(field.name) + " " + Words(choice.Selected());
  if (choice.Names().empty()) return {};
  return "# choose " + Word(field.name) + " " + Word(choice.Names().front());
}

// What can be chosen, where that is not plain from the line.
std::string Alternatives(const Field& field) {
  const auto* const choice = std::get_if<ChoiceState>(&field.state);
  if (choice == nullptr) return {};
  std::vector<std::string> items;
  for (const std::string& name : choice->Names()) {
    const std::string label = choice->LabelOf(name);
    items.push_back(label == name ? name : name + " " + label);
  }
  return ": " + Join(", ", items);
}

// The line of one field; "" when nothing can be done with it.
std::string LineOf(const Field& field) {
  if (const auto* choice = std::get_if<ChoiceState>(&field.state))
    return ChoiceLine(field, *choice);
  if (const auto* text = std::get_if<TextState>(&field.state)) {
    return text->IsEditable() ? "set " + Word(field.name) + " " + Quoted(text->Value()) : "";
  }
  if (const auto* check = std::get_if<CheckState>(&field.state)) {
    return (check->set ? "check " : "uncheck ") + Word(field.name);
  }
  if (const auto* table = std::get_if<TableModel>(&field.state)) {
    const auto& rows = table->Rows();
    return rows.empty() ? "" : "# rows " + Word(field.name) + " " + Word(rows.front().name);
  }
  return field.kind == FieldKind::kPushButton ? "# press " + Word(field.name) : "";
}

std::string OnOneLine(std::string text) {
  for (char& c : text) c = c == '\n' || c == '\r' ? ' ' : c;
  return text;
}

}  // namespace

std::string DialogStub(const LiveDialog& dialog) {
  std::string stub = "dialog " + Word(dialog.name) + "\n";
  for (const Field& field : dialog.state.Fields()) {
    if (!dialog.state.IsShown(field) || !dialog.state.IsUsable(field)) continue;
    const std::string line = LineOf(field);
    if (line.empty()) continue;
    const std::string label = dialog.state.LabelOf(field) + Alternatives(field);
    stub += "  " + line + (label.empty() ? "" : "   # " + OnOneLine(label)) + "\n";
  }
  const bool closes = dialog.actions.contains({"", kCloseEvent});
  stub +=
      closes ? "  close\n" : "  # nothing is bound to its close button: press one of the above\n";
  return stub + "end\n";
}

}  // namespace wb
