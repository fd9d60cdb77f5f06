// What a dialog can be made of: the kinds of component and, for each, the attributes a resource
// file may give it. Anything outside these tables is a mistake in the file.
#pragma once

#include <optional>
#include <string_view>

namespace wb {

enum class FieldKind {
  kDialog,
  kSubLayout,
  kTab,
  kRadioGroup,
  kCheckButton,
  kPushButton,
  kInputPanel,
  kOptionMenu,
  kLabel,
  kTable,
  kList,
  kTextArea,
  kDrawingArea,
  kSeparator,
};

// The word that resource files and error texts use, for example "RadioGroup".
const char* KindName(FieldKind kind);

// The kind that a resource may declare under `word`; none for unknown words and for "Dialog".
std::optional<FieldKind> DeclarableKind(std::string_view word);

enum class ValueType { kFlag, kNumber, kNumbers, kText, kTexts, kLayout };

struct AttributeRule {
  const char* name;
  unsigned kinds;  // bit set of FieldKind
  ValueType type;
  int smallest;  // bounds of each number; unused for the other types
  int largest;
};

// The rule for attribute `name` of a component of `kind`, null when the kind has no such attribute.
const AttributeRule* FindAttributeRule(FieldKind kind, std::string_view name);

}  // namespace wb
