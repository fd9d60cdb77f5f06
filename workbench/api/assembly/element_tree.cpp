// Walks element trees.
#include "workbench/api/assembly/element_tree.h"

#include <algorithm>

namespace wb {
namespace {

// An element of a merge feature's tree: what it hangs below, and what it holds.
struct DeclaredElement {
  int id;
  int parent;  // 0: the root
  int type;    // 0: others alone
};
constexpr DeclaredElement kDeclared[] = {
    {386, 0, 0},
    {387, 386, PRO_VALUE_TYPE_INT},
    {1964, 386, PRO_VALUE_TYPE_WSTRING},
    {3386, 386, PRO_VALUE_TYPE_INT},
    {3388, 386, 0},
    {3389, 3388, PRO_VALUE_TYPE_INT},
    {3390, 3388, PRO_VALUE_TYPE_SELECTION},
    {3391, 3390, 0},
    {605, 3391, 0},
    {606, 605, 0},
    {607, 606, PRO_VALUE_TYPE_INT},
};

std::string Name(int id) {
  return "element " + std::to_string(id);
}

std::string ValueText(const Call& call, const TreeValue& value) {
  if (value.type == PRO_VALUE_TYPE_INT) return std::to_string(value.number);
  if (value.type == PRO_VALUE_TYPE_WSTRING) return value.text;
  const PickedItem& picked = call.SelectionAt(value.selection);
  std::string text = picked.owner == nullptr ? "nothing" : picked.owner->id.Text();
  const char* mark = "@";
  for (const int id : picked.path) text += std::exchange(mark, "/") + std::to_string(id);
  return text;
}

std::string WrongIn(const TreeElement& element) {
  const int parent = element.parent == nullptr ? 0 : element.parent->id;
  const auto* const declared = std::ranges::find_if(kDeclared, [&](const DeclaredElement& known) {
    return known.id == element.id && known.parent == parent;
  });
  if (declared == std::end(kDeclared)) {
    return Name(element.id) + " does not belong below " + std::to_string(parent);
  }
  const int type = element.value ? element.value->type : 0;
  if (type == declared->type) return "";
  return Name(element.id) + " holds a value of type " + std::to_string(type) + " instead of " +
         std::to_string(declared->type);
}

void CollectIds(const TreeElement& element, std::vector<int>* ids, std::string* wrong) {
  if (wrong->empty()) *wrong = WrongIn(element);
  ids->push_back(element.id);
  for (const TreeElement* const child : element.children) CollectIds(*child, ids, wrong);
}

}  // namespace

void FreeTree(Host& host, TreeElement* element) {
  for (TreeElement* const child : element->children) FreeTree(host, child);
  host.handles.End(element->handle);
  delete element;
}

std::string TreeText(const Call& call, const TreeElement& root) {
  std::string text = std::to_string(root.id);
  if (root.value) text += "=" + ValueText(call, *root.value);
  if (root.children.empty()) return text;
  const char* between = "(";
  for (const TreeElement* const child : root.children) {
    text += std::exchange(between, " ") + TreeText(call, *child);
  }
  return text + ")";
}

std::string WrongInMergeTree(const TreeElement& root) {
  std::vector<int> ids;
  std::string wrong;
  CollectIds(root, &ids, &wrong);
  for (const DeclaredElement& declared : kDeclared) {
    const auto count = std::ranges::count(ids, declared.id);
    if (wrong.empty() && count == 0) wrong = Name(declared.id) + " is missing";
    if (wrong.empty() && count > 1) wrong = Name(declared.id) + " is there twice";
  }
  return wrong;
}

const TreeValue* ValueAt(const TreeElement& root, const std::vector<int>& way) {
  const TreeElement* at = &root;
  for (const int id : way) {
    const auto found = std::ranges::find_if(
        at->children, [&](const TreeElement* child) { return child->id == id; });
    if (found == at->children.end()) return nullptr;
    at = *found;
  }
  return at->value ? &*at->value : nullptr;
}

}  // namespace wb
