// Outcome of an operation on a dialog. The host reports misuse of its dialogs by status, never by
// exception, and so does the state behind it.
#pragma once

namespace wb {

enum class UiStatus {
  kOk,
  kNoField,      // the dialog has no component of that name
  kWrongKind,    // the component is of another kind
  kBadArgument,  // the value cannot be: too long, a duplicate name, a count that does not match
  kNotFound,     // a name inside the component: an item, a row, a column
};

}  // namespace wb
