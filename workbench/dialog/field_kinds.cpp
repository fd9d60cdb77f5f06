// Tables of component kinds and of the attributes that each may carry.
#include "workbench/dialog/field_kinds.h"

namespace wb {
namespace {

struct KindRow {
  ComponentKind kind;
  const char* name;
};

constexpr KindRow kKinds[] = {
    {ComponentKind::kDialog, "Dialog"},
    {ComponentKind::kSubLayout, "SubLayout"},
    {ComponentKind::kTab, "Tab"},
    {ComponentKind::kRadioGroup, "RadioGroup"},
    {ComponentKind::kCheckButton, "CheckButton"},
    {ComponentKind::kPushButton, "PushButton"},
    {ComponentKind::kInputPanel, "InputPanel"},
    {ComponentKind::kOptionMenu, "OptionMenu"},
    {ComponentKind::kLabel, "Label"},
    {ComponentKind::kTable, "Table"},
    {ComponentKind::kList, "List"},
    {ComponentKind::kTextArea, "TextArea"},
    {ComponentKind::kDrawingArea, "DrawingArea"},
    {ComponentKind::kSeparator, "Separator"},
};

constexpr unsigned Bit(ComponentKind kind) {
  return 1u << static_cast<unsigned>(kind);
}

constexpr unsigned kDialog = Bit(ComponentKind::kDialog);
constexpr unsigned kSubLayout = Bit(ComponentKind::kSubLayout);
constexpr unsigned kTab = Bit(ComponentKind::kTab);
constexpr unsigned kRadio = Bit(ComponentKind::kRadioGroup);
constexpr unsigned kCheck = Bit(ComponentKind::kCheckButton);
constexpr unsigned kPush = Bit(ComponentKind::kPushButton);
constexpr unsigned kInput = Bit(ComponentKind::kInputPanel);
constexpr unsigned kOption = Bit(ComponentKind::kOptionMenu);
constexpr unsigned kLabel = Bit(ComponentKind::kLabel);
constexpr unsigned kTable = Bit(ComponentKind::kTable);
constexpr unsigned kList = Bit(ComponentKind::kList);
constexpr unsigned kTextArea = Bit(ComponentKind::kTextArea);
constexpr unsigned kDrawing = Bit(ComponentKind::kDrawingArea);
constexpr unsigned kSeparator = Bit(ComponentKind::kSeparator);
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

const char* KindName(ComponentKind kind) {
  return kKinds[static_cast<unsigned>(kind)].name;
}

std::optional<ComponentKind> DeclarableKind(std::string_view word) {
  for (const KindRow& row : kKinds) {
    if (row.kind != ComponentKind::kDialog && word == row.name) return row.kind;
  }
  return std::nullopt;
}

const AttributeRule* FindAttributeRule(ComponentKind kind, std::string_view name) {
  for (const AttributeRule& rule : kAttributes) {
    if (name == rule.name) return (rule.kinds & Bit(kind)) != 0 ? &rule : nullptr;
  }
  return nullptr;
}

}  // namespace wb
