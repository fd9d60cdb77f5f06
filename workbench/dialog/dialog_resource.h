// A dialog as its resource file describes it: which components it has, how they start out and where
// they lie. A file that says anything the tables do not know is refused with its line, so that a
// dialog which opens here names nothing the host would stumble over.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "workbench/dialog/field_kinds.h"
#include "workbench/dialog/resource_syntax.h"

namespace wb {

struct LayoutCell;

// A grid of cells. The weights say how a row or column grows with the dialog; 0 keeps its size.
struct LayoutGrid {
  std::vector<int> row_weights;
  std::vector<int> column_weights;
  std::vector<LayoutCell> cells;  // only the cells that hold something
};

struct LayoutCell {
  int row = 0;  // counted from 0
  int column = 0;
  std::string component;           // empty when the cell holds a nested grid
  std::vector<LayoutGrid> nested;  // at most one
};

struct AttributeValue {
  int line = 0;
  std::variant<bool, int, std::vector<int>, std::string, std::vector<std::string>> value;
};

struct FieldResource {
  bool Has(const std::string& attribute) const { return attributes.count(attribute) != 0; }

  // The attribute's value, or the fallback when the file does not give it. The type asked for must
  // be the one that the attribute table names.
  bool Flag(const std::string& attribute, bool fallback) const;
  int Number(const std::string& attribute, int fallback) const;
  std::vector<int> Numbers(const std::string& attribute) const;
  std::string Text(const std::string& attribute) const;
  std::vector<std::string> Texts(const std::string& attribute) const;
  // Line of the attribute, or of the component's declaration when it is not given.
  int LineOf(const std::string& attribute) const;

  FieldKind kind = FieldKind::kLabel;
  std::string name;
  int line = 0;
  std::string parent;  // the sublayout or tab it lies in; empty for the dialog itself
  std::map<std::string, AttributeValue> attributes;
  LayoutGrid layout;  // of dialogs, sublayouts and tabs
};

struct DialogResource {
  // Null when the dialog has no such component.
  const FieldResource* Find(std::string_view component) const;

  std::string name;
  FieldResource dialog;                   // the dialog's own attributes and layout
  std::vector<FieldResource> components;  // in file order, which is the tab order
};

// Parses and checks a whole resource. `file` is what errors name. Throws ResourceError.
DialogResource ParseDialogResource(std::string_view text, const std::string& file);

// Reads a resource file; the dialog inside must be named as the file. Throws ResourceError, with
// line 0 when the file cannot be read.
DialogResource LoadDialogResource(const std::filesystem::path& path);

}  // namespace wb
