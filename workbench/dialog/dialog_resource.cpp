// Turns the bracket grammar of a resource file into a DialogResource.
#include "workbench/dialog/dialog_resource.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <unordered_map>
#include <utility>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/dialog/dialog_resource_checks.h"

namespace wb {
namespace {

template <class T>
T ValueOr(const FieldResource& component, const std::string& attribute, T fallback) {
  const auto found = component.attributes.find(attribute);
  return found == component.attributes.end() ? fallback : std::get<T>(found->second.value);
}

class ResourceReader {
 public:
  explicit ResourceReader(const std::string& file) : file_(file) {}

  DialogResource Read(const SyntaxNode& root) {
    ReadHeader(root);
    ReadComponents(root.children[2]);
    ReadResources(root.children[3]);
    return std::move(resource_);
  }

 private:
  [[noreturn]] void Fail(int line, const std::string& reason) const {
    throw ResourceError(file_, line, reason);
  }

  void ReadHeader(const SyntaxNode& root) {
    const auto& items = root.children;
    if (!root.IsForm("Dialog") || items.size() != 4 || !items[1].IsWord() ||
        !items[2].IsForm("Components") || !items[3].IsForm("Resources")) {
      Fail(root.line, "expected (Dialog NAME (Components ...) (Resources ...))");
    }
    resource_.name = items[1].text;
    resource_.dialog.kind = FieldKind::kDialog;
    resource_.dialog.line = root.line;
  }

  void ReadComponents(const SyntaxNode& section) {
    for (std::size_t i = 1; i < section.children.size(); ++i) {
      const SyntaxNode& entry = section.children[i];
      if (!entry.IsList() || entry.children.size() != 2 || !entry.children[0].IsWord() ||
          !entry.children[1].IsWord()) {
        Fail(entry.line, "expected (KIND NAME)");
      }
      Declare(entry.children[0].text, entry.children[1].text, entry.line);
    }
  }

  void Declare(const std::string& kind_word, const std::string& name, int line) {
    const auto kind = DeclarableKind(kind_word);
    if (!kind) Fail(line, "unknown component kind " + kind_word);
    if (name.find('.') != std::string::npos) Fail(line, "component name " + name + " has a dot");
    if (!index_.emplace(name, resource_.components.size()).second) {
      Fail(line, "component " + name + " is declared twice");
    }
    FieldResource component;
    component.kind = *kind;
    component.name = name;
    component.line = line;
    resource_.components.push_back(std::move(component));
  }

  void ReadResources(const SyntaxNode& section) {
    for (std::size_t i = 1; i < section.children.size(); ++i) {
      const SyntaxNode& entry = section.children[i];
      if (!entry.IsList() || entry.children.size() < 2 || !entry.children[0].IsWord()) {
        Fail(entry.line, "expected (COMPONENT.ATTRIBUTE VALUE ...)");
      }
      ReadAttribute(entry);
    }
  }

  void ReadAttribute(const SyntaxNode& entry) {
    const std::string& key = entry.children[0].text;
    const std::size_t dot = key.find('.');
    if (dot == std::string::npos) Fail(entry.line, key + " lacks the dot before its attribute");
    FieldResource& component = Target(key.substr(0, dot), entry.line);
    const std::string attribute = key.substr(dot + 1);
    const AttributeRule* rule = FindAttributeRule(component.kind, attribute);
    if (!rule) {
      Fail(entry.line,
           std::string("a ") + KindName(component.kind) + " has no attribute " + attribute);
    }
    AttributeValue value{entry.line, {}};
    if (rule->type == ValueType::kLayout) {
      component.layout = ReadLayout(entry, component);
    } else {
      ReadValue(entry, *rule, value);
    }
    if (!component.attributes.emplace(attribute, std::move(value)).second) {
      Fail(entry.line, key + " is given twice");
    }
  }

  FieldResource& Target(const std::string& name, int line) {
    if (name.empty()) return resource_.dialog;
    const auto found = index_.find(name);
    if (found == index_.end()) Fail(line, "component " + name + " is not declared");
    return resource_.components[found->second];
  }

  void ReadValue(const SyntaxNode& entry, const AttributeRule& rule, AttributeValue& value) const {
    const bool many = rule.type == ValueType::kTexts || rule.type == ValueType::kNumbers;
    if (!many && entry.children.size() != 2) {
      Fail(entry.line, entry.children[0].text + " takes one value");
    }
    std::vector<std::string> texts;
    std::vector<int> numbers;
    for (std::size_t i = 1; i < entry.children.size(); ++i) {
      const SyntaxNode& item = entry.children[i];
      if (rule.type == ValueType::kFlag) value.value = ReadFlag(item);
      if (rule.type == ValueType::kText || rule.type == ValueType::kTexts) {
        texts.push_back(ReadText(item));
      }
      if (rule.type == ValueType::kNumber || rule.type == ValueType::kNumbers) {
        numbers.push_back(ReadNumber(item, rule.smallest, rule.largest));
      }
    }
    if (rule.type == ValueType::kText) value.value = texts.front();
    if (rule.type == ValueType::kTexts) value.value = std::move(texts);
    if (rule.type == ValueType::kNumber) value.value = numbers.front();
    if (rule.type == ValueType::kNumbers) value.value = std::move(numbers);
  }

  bool ReadFlag(const SyntaxNode& item) const {
    if (!item.IsWord() || (item.text != "True" && item.text != "False")) {
      Fail(item.line, "expected True or False");
    }
    return item.text == "True";
  }

  std::string ReadText(const SyntaxNode& item) const {
    if (!item.IsString()) Fail(item.line, "expected a text in quotes");
    return item.text;
  }

  int ReadNumber(const SyntaxNode& item, int smallest, int largest) const {
    int number = 0;
    const char* end = item.text.data() + item.text.size();
    const auto parsed = std::from_chars(item.text.data(), end, number);
    if (!item.IsWord() || parsed.ec != std::errc() || parsed.ptr != end || number < smallest ||
        number > largest) {
      Fail(item.line,
           "expected a number from " + std::to_string(smallest) + " to " + std::to_string(largest));
    }
    return number;
  }

  LayoutGrid ReadLayout(const SyntaxNode& entry, const FieldResource& owner) {
    if (entry.children.size() != 2 || !entry.children[1].IsForm("Grid")) {
      Fail(entry.line, "a layout is one (Grid ...)");
    }
    return ReadGrid(entry.children[1], owner);
  }

  LayoutGrid ReadGrid(const SyntaxNode& node, const FieldResource& owner) {
    const auto& items = node.children;
    if (items.size() < 3 || !items[1].IsForm("Rows") || !items[2].IsForm("Cols")) {
      Fail(node.line, "a grid opens with (Rows ...) (Cols ...)");
    }
    LayoutGrid grid;
    grid.row_weights = ReadWeights(items[1]);
    grid.column_weights = ReadWeights(items[2]);
    CellCursor cursor(grid);
    for (std::size_t i = 3; i < items.size(); ++i) {
      if (items[i].IsForm("Pos")) {
        MoveTo(items[i], cursor);
      } else {
        grid.cells.push_back(ReadCell(items[i], cursor, owner));
      }
    }
    return grid;
  }

  std::vector<int> ReadWeights(const SyntaxNode& form) const {
    if (form.children.size() < 2) Fail(form.line, form.children[0].text + " needs a weight each");
    std::vector<int> weights;
    for (std::size_t i = 1; i < form.children.size(); ++i) {
      weights.push_back(ReadNumber(form.children[i], 0, 100));
    }
    return weights;
  }

  // Where the next cell of a grid goes: row by row from the top left, or where a Pos said.
  struct CellCursor {
    explicit CellCursor(const LayoutGrid& grid)
        : rows(static_cast<int>(grid.row_weights.size())),
          columns(static_cast<int>(grid.column_weights.size())),
          taken(grid.row_weights.size() * grid.column_weights.size()) {}
    int rows;
    int columns;
    std::vector<bool> taken;
    std::size_t next = 0;
  };

  void MoveTo(const SyntaxNode& form, CellCursor& cursor) const {
    if (form.children.size() != 3) Fail(form.line, "expected (Pos ROW COLUMN)");
    const int row = ReadNumber(form.children[1], 1, cursor.rows);
    const int column = ReadNumber(form.children[2], 1, cursor.columns);
    cursor.next = static_cast<std::size_t>((row - 1) * cursor.columns + column - 1);
  }

  LayoutCell ReadCell(const SyntaxNode& item, CellCursor& cursor, const FieldResource& owner) {
    if (cursor.next >= cursor.taken.size()) {
      Fail(item.line, "too many cells for a grid of " + std::to_string(cursor.rows) + " rows and " +
                          std::to_string(cursor.columns) + " columns");
    }
    if (cursor.taken[cursor.next]) Fail(item.line, "this cell of the grid is already taken");
    cursor.taken[cursor.next] = true;
    const int index = static_cast<int>(cursor.next++);
    LayoutCell cell{index / cursor.columns, index % cursor.columns, {}, {}};
    if (item.IsForm("Grid")) {
      cell.nested.push_back(ReadGrid(item, owner));
    } else if (item.IsWord()) {
      Place(item, owner);
      cell.component = item.text;
    } else {
      Fail(item.line, "a grid cell is a component name or a (Grid ...)");
    }
    return cell;
  }

  void Place(const SyntaxNode& item, const FieldResource& owner) {
    const auto found = index_.find(item.text);
    if (found == index_.end()) Fail(item.line, "the layout names unknown component " + item.text);
    if (!placed_.emplace(item.text, item.line).second) {
      Fail(item.line, "component " + item.text + " is placed twice; line " +
                          std::to_string(placed_[item.text]) + " places it first");
    }
    resource_.components[found->second].parent = owner.name;
  }

  const std::string& file_;
  DialogResource resource_;
  std::unordered_map<std::string, std::size_t> index_;
  std::unordered_map<std::string, int> placed_;  // component to the line that places it
};

}  // namespace

bool FieldResource::Flag(const std::string& attribute, bool fallback) const {
  return ValueOr<bool>(*this, attribute, fallback);
}

int FieldResource::Number(const std::string& attribute, int fallback) const {
  return ValueOr<int>(*this, attribute, fallback);
}

std::vector<int> FieldResource::Numbers(const std::string& attribute) const {
  return ValueOr<std::vector<int>>(*this, attribute, {});
}

std::string FieldResource::Text(const std::string& attribute) const {
  return ValueOr<std::string>(*this, attribute, {});
}

std::vector<std::string> FieldResource::Texts(const std::string& attribute) const {
  return ValueOr<std::vector<std::string>>(*this, attribute, {});
}

int FieldResource::LineOf(const std::string& attribute) const {
  const auto found = attributes.find(attribute);
  return found == attributes.end() ? line : found->second.line;
}

const FieldResource* DialogResource::Find(std::string_view component) const {
  for (const FieldResource& candidate : components) {
    if (candidate.name == component) return &candidate;
  }
  return nullptr;
}

DialogResource ParseDialogResource(std::string_view text, const std::string& file) {
  DialogResource resource = ResourceReader(file).Read(ParseSyntax(text, file));
  CheckDialogResource(resource, file);
  return resource;
}

DialogResource LoadDialogResource(const std::filesystem::path& path) {
  const std::string file = PathToUtf8(path);
  const std::optional<std::string> text = ReadFileBytes(path);
  if (!text) throw ResourceError(file, 0, "the dialog resource cannot be read");
  if (std::ranges::any_of(*text, [](char c) { return static_cast<unsigned char>(c) >= 0x80; }) &&
      WithoutBom(*text).size() == text->size()) {
    throw ResourceError(file, 1,
                        "the file holds other than plain characters and has no byte order mark: "
                        "the host would read it in the system's code page");
  }
  DialogResource resource = ParseDialogResource(*text, file);
  if (path.stem() != resource.name) {
    throw ResourceError(file, resource.dialog.line,
                        "the file must be named as its dialog, " + resource.name);
  }
  return resource;
}

}  // namespace wb
