// Item types of the popup's entries, by the host's numbers.
#include "frame/popup_rules.h"

#include <algorithm>
#include <iterator>

namespace qm {
namespace {

constexpr int kAssembly = 1;
constexpr int kPart = 2;
// Models, and what a click on a component in the graphics window or the tree may give instead.
constexpr int kNamedItems[] = {kAssembly, kPart, 5, 6, 25, 66, 71, 72, 176};

}  // namespace

bool DisplayEntriesOffered(int first_item_type) {
  return first_item_type == kAssembly || first_item_type == kPart;
}

bool NameEntriesOffered(int item_type) {
  return std::find(std::begin(kNamedItems), std::end(kNamedItems), item_type) !=
         std::end(kNamedItems);
}

}  // namespace qm
