// Element trees as the plug-in builds them, and what the host knows of the tree of a merge feature.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "workbench/host/call.h"

namespace wb {

// What an element holds. A selection is kept by its handle: the plug-in keeps it alive.
struct TreeValue {
  int type = 0;  // 0: no data yet
  int number = 0;
  std::string text;
  ProSelection selection = nullptr;
};

struct TreeElement {
  int id = 0;
  TreeElement* parent = nullptr;
  std::optional<TreeValue> value;
  std::vector<TreeElement*> children;
  void* handle = nullptr;
};

// Ends the handles of an element and of all below it, and frees them.
void FreeTree(Host& host, TreeElement* element);

// In one line: "386(387=1238 1964=合并 3388(3390=bolt.prt@7/3(605)))".
std::string TreeText(const Call& call, const TreeElement& root);

// What is wrong with the tree of a merge feature: an element that is missing, unknown, or holds
// something else than it should. "" for nothing.
std::string WrongInMergeTree(const TreeElement& root);

// The element's value at the end of a way of ids below `root`; null: there is none.
const TreeValue* ValueAt(const TreeElement& root, const std::vector<int>& way);

}  // namespace wb
