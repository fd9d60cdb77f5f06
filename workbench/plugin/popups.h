// Popup menus as a right click shows them, and the labels of menus and buttons.
#pragma once

#include <string>
#include <vector>

namespace wb {

// One button of a popup as the plug-in offers it now.
struct OfferedButton {
  std::string name;
  std::string label;
  std::string help;
  std::string command;
  int state = 0;  // uiCmdAccessState: 3 available, 1 or 2 greyed, 0 not shown

  bool available() const { return state == 3; }
};

// Creates the popup afresh, tells the plug-in (notification 72), and asks each button's own access
// function about the selection buffer. The order is that of the popup. Throws
// std::invalid_argument for a popup that the host does not have.
std::vector<OfferedButton> FirePopup(const std::string& name);

// The text of `key` in the message file of the host's language; the key itself where the file or
// the key is missing.
std::string MenuLabel(const std::string& key, const std::string& file);

}  // namespace wb
