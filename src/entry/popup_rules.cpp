// Item types of the popup's entries.
#include "entry/popup_rules.h"

#include <algorithm>
#include <iterator>

#include "toolkit/numbers.h"

namespace qm {
namespace {

// Models, and what a click on a component in the graphics window or the tree may give instead.
constexpr ProType kNamedItems[] = {
    PRO_ASSEMBLY, PRO_PART,       PRO_SURFACE,  PRO_EDGE,     PRO_CSYS,
    PRO_POINT,    PRO_EDGE_START, PRO_EDGE_END, PRO_TYPE_176,
};

}  // namespace

bool DisplayEntriesOffered(int first_item_type) {
  return first_item_type == PRO_ASSEMBLY || first_item_type == PRO_PART;
}

bool NameEntriesOffered(int item_type) {
  return std::ranges::find(kNamedItems, item_type) != std::end(kNamedItems);
}

}  // namespace qm
