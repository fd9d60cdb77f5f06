// Strongly connected components by one walk (Tarjan), on a stack of our own.
#include "workbench/scene/rings.h"

#include <algorithm>

namespace wb {
namespace {

class RingFinder {
 public:
  RingFinder(std::size_t count, const std::vector<Following>& followings)
      : first_(count + 1), number_(count), lowest_(count), is_open_(count) {
    for (const Following& following : followings) ++first_[following.later + 1];
    for (std::size_t i = 0; i < count; ++i) first_[i + 1] += first_[i];
    earlier_.resize(followings.size());
    std::vector<std::size_t> place(first_.begin(), first_.end() - 1);
    for (const auto& [earlier, later] : followings) earlier_[place[later]++] = earlier;
  }

  // A ring is left when everything before it has been.
  std::vector<std::vector<std::uint32_t>> Find() {
    for (std::uint32_t i = 0; i < number_.size(); ++i) {
      if (number_[i] == 0) Enter(i);
      while (!visits_.empty()) Step();
    }
    return std::move(rings_);
  }

 private:
  struct Visit {
    std::uint32_t at;
    std::size_t next;  // in earlier_
  };

  void Enter(std::uint32_t at) {
    number_[at] = lowest_[at] = ++met_;
    is_open_[at] = true;
    open_.push_back(at);
    visits_.push_back({at, first_[at]});
  }

  void Step() {
    Visit& visit = visits_.back();
    if (visit.next == first_[visit.at + 1]) return Leave(visit.at);
    const std::uint32_t earlier = earlier_[visit.next++];
    if (number_[earlier] == 0) return Enter(earlier);
    if (is_open_[earlier]) lowest_[visit.at] = std::min(lowest_[visit.at], number_[earlier]);
  }

  void Leave(std::uint32_t at) {
    visits_.pop_back();
    if (!visits_.empty()) {
      std::uint32_t& above = lowest_[visits_.back().at];
      above = std::min(above, lowest_[at]);
    }
    if (lowest_[at] == number_[at]) CloseRing(at);
  }

  void CloseRing(std::uint32_t from) {
    const auto begin = std::ranges::find(open_.rbegin(), open_.rend(), from).base() - 1;
    rings_.emplace_back(begin, open_.end());
    for (const std::uint32_t at : rings_.back()) is_open_[at] = false;
    open_.erase(begin, open_.end());
  }

  std::vector<std::size_t> first_;  // place in earlier_ of what each follows
  std::vector<std::uint32_t> earlier_;
  std::vector<std::uint32_t> number_;  // in which they were met; 0: not yet
  std::vector<std::uint32_t> lowest_;  // number that can be come back to
  std::vector<bool> is_open_;
  std::uint32_t met_ = 0;
  std::vector<std::uint32_t> open_;
  std::vector<Visit> visits_;
  std::vector<std::vector<std::uint32_t>> rings_;
};

}  // namespace

std::vector<std::vector<std::uint32_t>> RingsInOrder(std::size_t count,
                                                     const std::vector<Following>& followings) {
  return RingFinder(count, followings).Find();
}

}  // namespace wb
