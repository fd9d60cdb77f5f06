// Tables of component kinds and of the attributes that each may carry.
#include "workbench/dialog/field_kinds.h"

namespace wb {
namespace {

struct KindRow {
  FieldKind kind;
  const char* name;
};

constexpr KindRow kKinds[] = {
    {FieldKind::kDialog, "Dialog"},
    {FieldKind::kSubLayout, "SubLayout"},
    {FieldKind::kTab, "Tab"},
    {FieldKind::kRadioGroup, "RadioGroup"},
    {FieldKind::kCheckButton, "CheckButton"},
    {FieldKind::kPushButton, "PushButton"},
    {FieldKind::kInputPanel, "InputPanel"},
    {FieldKind::kOptionMenu, "OptionMenu"},
    {FieldKind::kLabel, "Label"},
    {FieldKind::kTable, "Table"},
    {FieldKind::kList, "List"},
    {FieldKind::kTextArea, "TextArea"},
    {FieldKind::kDrawingArea, "DrawingArea"},
    {FieldKind::kSeparator, "Separator"},
};

constexpr unsigned Bit(FieldKind kind) {
  return 1u << static_cast<unsigned>(kind);
}

constexpr unsigned kDialog = Bit(FieldKind::kDialog);
constexpr unsigned kSubLayout = Bit(FieldKind::kSubLayout);
constexpr unsigned kTab = Bit(FieldKind::kTab);
constexpr unsigned kRadio = Bit(FieldKind::kRadioGroup);
constexpr unsigned kCheck = Bit(FieldKind::kCheckButton);
constexpr unsigned kPush = Bit(FieldKind::kPushButton);
constexpr unsigned kInput = Bit(FieldKind::kInputPanel);
constexpr unsigned kOption = Bit(FieldKind::kOptionMenu);
constexpr unsigned kLabel = Bit(FieldKind::kLabel);
constexpr unsigned kTable = Bit(FieldKind::kTable);
constexpr unsigned kList = Bit(FieldKind::kList);
constexpr unsigned kTextArea = Bit(FieldKind::kTextArea);
constexpr unsigned kDrawing = Bit(FieldKind::kDrawingArea);
constexpr unsigned kSeparator = Bit(FieldKind::kSeparator);
constexpr unsigned kPlaced = ~kDialog;  // everything that lies in a dialog
constexpr unsigned kButtons = kCheck | kPush;
constexpr unsigned kChoices = kRadio | kOption | kList;
constexpr unsigned kTyped = kInput | kTextArea;

// clang-format off
constexpr AttributeRule kAttributes[] = {
    {"Alignment",         kLabel | kRadio,                          ValueType::kNumber,  0, 2},
    {"AttachBottom",      kPlaced,                                  ValueType::kFlag,    0, 0},
    {"AttachLeft",        kPlaced,                                  ValueType::kFlag,    0, 0},
    {"AttachRight",       kPlaced,                                  ValueType::kFlag,    0, 0},
    {"AttachTop",         kPlaced,                                  ValueType::kFlag,    0, 0},
    {"Bitmap",            kButtons | kLabel,                        ValueType::kText,    0, 0},
    {"BottomOffset",      kPlaced,                                  ValueType::kNumber,  0, 1000},
    {"ButtonStyle",       kButtons,                                 ValueType::kNumber,  0, 10},
    {"ColumnLabels",      kTable,                                   ValueType::kTexts,   0, 0},
    {"ColumnNames",       kTable,                                   ValueType::kTexts,   0, 0},
    {"ColumnWidths",      kTable,                                   ValueType::kNumbers, 1, 500},
    {"Columns",           kInput | kOption | kLabel | kList | kTextArea | kTable,
                                                                    ValueType::kNumber,  1, 500},
    {"Decorate",          kSubLayout | kTab,                        ValueType::kFlag,    0, 0},
    {"DefaultButton",     kDialog,                                  ValueType::kText,    0, 0},
    {"DialogStyle",       kDialog,                                  ValueType::kNumber,  0, 20},
    {"DrawingHeight",     kDrawing,                                 ValueType::kNumber,  1, 5000},
    {"DrawingWidth",      kDrawing,                                 ValueType::kNumber,  1, 5000},
    {"Editable",          kTyped,                                   ValueType::kFlag,    0, 0},
    {"HelpText",          kPlaced,                                  ValueType::kText,    0, 0},
    {"InputType",         kInput,                                   ValueType::kNumber,  0, 3},
    {"Label",             kDialog | kSubLayout | kButtons | kLabel, ValueType::kText,    0, 0},
    {"Labels",            kChoices,                                 ValueType::kTexts,   0, 0},
    {"Layout",            kDialog | kSubLayout | kTab,              ValueType::kLayout,  0, 0},
    {"LeftOffset",        kPlaced,                                  ValueType::kNumber,  0, 1000},
    {"MaxLen",            kTyped,                                   ValueType::kNumber,  1, 100000},
    {"MinColumns",        kInput | kOption | kList | kTable,        ValueType::kNumber,  1, 500},
    {"MinRows",           kList | kTable,                           ValueType::kNumber,  1, 500},
    {"Names",             kChoices,                                 ValueType::kTexts,   0, 0},
    {"Orientation",       kRadio | kSeparator,                      ValueType::kFlag,    0, 0},
    {"Resizeable",        kDialog,                                  ValueType::kFlag,    0, 0},
    {"RightOffset",       kPlaced,                                  ValueType::kNumber,  0, 1000},
    {"RowLabels",         kTable,                                   ValueType::kTexts,   0, 0},
    {"RowNames",          kTable,                                   ValueType::kTexts,   0, 0},
    {"Rows",              kTextArea,                                ValueType::kNumber,  1, 500},
    {"SelectedNames",     kChoices,                                 ValueType::kTexts,   0, 0},
    {"SelectionPolicy",   kList | kTable,                           ValueType::kNumber,  1, 4},
    {"Sensitive",         kPlaced,                                  ValueType::kFlag,    0, 0},
    {"Set",               kCheck,                                   ValueType::kFlag,    0, 0},
    {"ShowGrid",          kTable,                                   ValueType::kFlag,    0, 0},
    {"StartLocation",     kDialog,                                  ValueType::kNumber,  0, 20},
    {"TopOffset",         kPlaced,                                  ValueType::kNumber,  0, 1000},
    {"Value",             kTyped | kOption,                         ValueType::kText,    0, 0},
    {"Visible",           kPlaced,                                  ValueType::kFlag,    0, 0},
    {"VisibleRows",       kList | kTable | kOption,                 ValueType::kNumber,  1, 500},
};
// clang-format on

}  // namespace

const char* KindName(FieldKind kind) {
  return kKinds[static_cast<unsigned>(kind)].name;
}

std::optional<FieldKind> DeclarableKind(std::string_view word) {
  for (const KindRow& row : kKinds) {
    if (row.kind != FieldKind::kDialog && word == row.name) return row.kind;
  }
  return std::nullopt;
}

const AttributeRule* FindAttributeRule(FieldKind kind, std::string_view name) {
  for (const AttributeRule& rule : kAttributes) {
    if (name == rule.name) return (rule.kinds & Bit(kind)) != 0 ? &rule : nullptr;
  }
  return nullptr;
}

}  // namespace wb
