// What the user has preselected, read from the host's selection buffer.
#pragma once

#include <optional>
#include <utility>

#include "toolkit/owners.h"

namespace qm {

// The preselected items; at least one.
class Preselected {
 public:
  Preselected(SelectionArray items, int count) : items_(std::move(items)), count_(count) {}
  int size() const { return count_; }
  ProSelection operator[](int index) const { return items_[index]; }

 private:
  SelectionArray items_;
  int count_;
};

struct PreselectionAnswer {
  std::optional<Preselected> items;
  bool is_unreadable = false;  // there are items, but how many is not told
  bool has_failed = false;     // the host gave a failure that an empty buffer does not have
};
// For commands that take everything where nothing is preselected.
PreselectionAnswer AskPreselection();

// What is preselected; nothing when the buffer cannot be read. Deliberately a success without
// selections counts as such a failure: hosts answer an empty buffer either way.
std::optional<Preselected> ReadPreselection();

// Item of a selection; nothing when the host does not tell.
std::optional<ProModelitem> ItemOf(ProSelection selection);

// Model at the end of a selection's component path; null when there is none.
ProMdl ComponentModelOf(ProSelection selection);

}  // namespace qm
