// Compares each two faces where they cover each other, and sorts what the comparisons say. Faces in
// a ring are cut by the plane of one of them: what is behind it goes before what is in front.
#include "workbench/scene/painters_order.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "workbench/scene/rings.h"

namespace wb {
namespace {

using FacePlace = std::uint32_t;
constexpr FacePlace kNoFace = ~FacePlace{0};

// Faces that touch are apart by less than this part of the whole.
constexpr double kTouching = 1e-7;
// So many planes are tried where something has to be cut.
constexpr std::size_t kMostTries = 24;
// A piece more is as bad as so many faces that lie unevenly to both sides.
constexpr std::size_t kCostOfCut = 8;

struct FacePair {
  FacePlace first;
  FacePlace second;
  Covering covering;
};

// Faces that have to be sorted among each other.
struct FaceGroup {
  std::vector<FacePlace> members;
  std::vector<FacePair> pairs;  // of those that cover each other
};

// The rectangle around a face in the picture.
struct FaceBounds {
  FacePlace face;
  double left = HUGE_VAL, right = -HUGE_VAL, low = HUGE_VAL, high = -HUGE_VAL;
};

FaceBounds BoundsOf(FacePlace place, const SeenFace& face) {
  FaceBounds bounds{place};
  for (const SeenCorner& corner : face.corners) {
    bounds.left = std::min(bounds.left, corner.at[0]);
    bounds.right = std::max(bounds.right, corner.at[0]);
    bounds.low = std::min(bounds.low, corner.at[1]);
    bounds.high = std::max(bounds.high, corner.at[1]);
  }
  return bounds;
}

double SizeOfAll(const std::vector<SeenFace>& faces) {
  double size = 0;
  for (const SeenFace& face : faces) {
    for (const SeenCorner& corner : face.corners) {
      for (const double at : corner.at) size = std::max(size, std::abs(at));
    }
  }
  return size;
}

double MiddleDepth(const SeenFace& face) {
  double sum = 0;
  for (const SeenCorner& corner : face.corners) sum += corner.at[2];
  return sum / static_cast<double>(face.corners.size());
}

struct Reach {
  bool behind = false;
  bool before = false;
};

// Cutting a group of faces by the plane of one of them.
struct Parting {
  FacePlace by;
  std::size_t cuts = 0;
  std::size_t cost = 0;
};

class FaceSorter {
 public:
  FaceSorter(std::vector<SeenFace> faces, const PaintingBounds& bounds)
      : faces_(std::move(faces)),
        bounds_(bounds),
        pieces_(faces_.size()),
        touching_(kTouching * SizeOfAll(faces_)),
        is_hidden_(faces_.size()),
        local_(faces_.size()) {}

  std::vector<SeenFace> Sorted() {
    FaceGroup all;
    for (FacePlace i = 0; i < faces_.size(); ++i) all.members.push_back(i);
    all.pairs = PairsAmong(all.members);
    if (MayCompare()) {
      pending_.push_back(std::move(all));
    } else {
      DropHidden(all);
      GiveByDepth(std::move(all.members));
    }
    while (!pending_.empty()) {
      FaceGroup group = std::move(pending_.back());
      pending_.pop_back();
      Sort(std::move(group));
    }
    return std::move(sorted_);
  }

 private:
  void Sort(FaceGroup group) {
    DropHidden(group);
    if (group.pairs.empty()) return Give(group.members);
    const auto rings = RingsInOrder(group.members.size(), FollowingsIn(group));
    if (rings.size() == 1) return Part(group);
    Distribute(group, rings);
  }

  void Give(const std::vector<FacePlace>& members) {
    for (const FacePlace place : members) sorted_.push_back(std::move(faces_[place]));
  }

  void DropHidden(FaceGroup& group) {
    std::erase_if(group.members, [this](FacePlace place) { return is_hidden_[place]; });
    std::erase_if(group.pairs, [this](const FacePair& pair) {
      return is_hidden_[pair.first] || is_hidden_[pair.second];
    });
  }

  bool MayCompare() const { return comparisons_ < bounds_.comparisons; }

  // Adds the pair where one has to be painted before the other.
  void Compare(FacePlace first, FacePlace second, std::vector<FacePair>& pairs) {
    if (is_hidden_[first] || is_hidden_[second]) return;
    if (faces_[first].box == faces_[second].box) return;
    ++comparisons_;
    const Covering covering = CoveringOf(faces_[first], faces_[second], touching_);
    if (covering.hides_one) {
      is_hidden_[covering.first_is_behind ? first : second] = true;
    } else if (covering.first_is_behind || covering.second_is_behind) {
      pairs.push_back({first, second, covering});
    }
  }

  // By a line that sweeps over the picture from the left.
  std::vector<FacePair> PairsAmong(const std::vector<FacePlace>& members) {
    std::vector<FaceBounds> bounds;
    for (const FacePlace place : members) bounds.push_back(BoundsOf(place, faces_[place]));
    std::ranges::sort(bounds, {}, &FaceBounds::left);
    std::vector<FacePair> pairs;
    std::vector<FaceBounds> under_line;
    for (const FaceBounds& next : bounds) {
      if (!MayCompare()) break;
      std::erase_if(under_line, [&](const FaceBounds& other) { return other.right <= next.left; });
      for (const FaceBounds& other : under_line) {
        if (other.low < next.high && next.low < other.high) Compare(other.face, next.face, pairs);
      }
      under_line.push_back(next);
    }
    return pairs;
  }

  std::vector<Following> FollowingsIn(const FaceGroup& group) {
    for (FacePlace i = 0; i < group.members.size(); ++i) local_[group.members[i]] = i;
    std::vector<Following> followings;
    for (const auto& [first, second, covering] : group.pairs) {
      if (covering.first_is_behind) followings.push_back({local_[first], local_[second]});
      if (covering.second_is_behind) followings.push_back({local_[second], local_[first]});
    }
    return followings;
  }

  // What is to be painted first is taken up first: it is put on top.
  void Distribute(const FaceGroup& group, const std::vector<std::vector<FacePlace>>& rings) {
    std::vector<FaceGroup> parts(rings.size());
    for (FacePlace i = 0; i < rings.size(); ++i) {
      for (const FacePlace at : rings[i]) {
        parts[i].members.push_back(group.members[at]);
        local_[group.members[at]] = i;
      }
    }
    for (const FacePair& pair : group.pairs) {
      const FacePlace ring = local_[pair.first];
      if (ring == local_[pair.second]) parts[ring].pairs.push_back(pair);
    }
    std::move(parts.rbegin(), parts.rend(), std::back_inserter(pending_));
  }

  // Where a face reaches to from the plane of another.
  Reach ReachOf(FacePlace place, const SeenFace& by) const {
    Reach reach;
    for (const SeenCorner& corner : faces_[place].corners) {
      const double at = BeforePlane(by, corner.at);
      reach.behind = reach.behind || at < -touching_;
      reach.before = reach.before || at > touching_;
    }
    return reach;
  }

  Parting PartingBy(FacePlace by, const std::vector<FacePlace>& members) const {
    Parting parting{by};
    std::size_t behind = 0, before = 0;
    for (const FacePlace place : members) {
      const Reach reach = ReachOf(place, faces_[by]);
      if (reach.behind && reach.before) ++parting.cuts;
      if (reach.behind) ++behind;
      if (reach.before) ++before;
    }
    parting.cost = kCostOfCut * parting.cuts + std::max(behind, before);
    return parting;
  }

  Parting BestParting(const std::vector<FacePlace>& members) const {
    const std::size_t step = (members.size() + kMostTries - 1) / kMostTries;
    Parting best = PartingBy(members.front(), members);
    for (std::size_t i = step; i < members.size(); i += step) {
      const Parting other = PartingBy(members[i], members);
      if (other.cost < best.cost) best = other;
    }
    return best;
  }

  // What became of a group's faces on one side of a plane.
  struct Side {
    std::vector<FacePlace> piece_of;  // by the face's place in the group
    FaceGroup group;
  };

  void Part(const FaceGroup& group) {
    const Parting parting = BestParting(group.members);
    if (pieces_ + parting.cuts > bounds_.pieces || !MayCompare()) return GiveByDepth(group.members);
    pieces_ += parting.cuts;
    const SeenFace by = faces_[parting.by];
    Side behind, before;
    FaceGroup between;
    for (FacePlace i = 0; i < group.members.size(); ++i) {
      local_[group.members[i]] = i;
      if (!PutAside(group.members[i], by, behind, before)) {
        between.members.push_back(group.members[i]);
      }
    }
    for (Side* const side : {&behind, &before}) KeepPairs(group.pairs, *side);
    pending_.push_back(std::move(before.group));
    pending_.push_back(std::move(between));
    pending_.push_back(std::move(behind.group));
  }

  void GiveByDepth(std::vector<FacePlace> members) {
    std::ranges::stable_sort(members, {},
                             [this](FacePlace place) { return MiddleDepth(faces_[place]); });
    Give(members);
  }

  // Whether a face has anything on either side of a plane.
  bool PutAside(FacePlace place, const SeenFace& by, Side& behind, Side& before) {
    const Reach reach = ReachOf(place, by);
    FacePlace lower = reach.behind ? place : kNoFace;
    FacePlace upper = reach.before ? place : kNoFace;
    if (reach.behind && reach.before) {
      CutFace cut = CutBy(faces_[place], by, touching_);
      lower = Added(std::move(cut.behind));
      upper = Added(std::move(cut.before));
    }
    AddTo(behind, lower);
    AddTo(before, upper);
    return reach.behind || reach.before;
  }

  FacePlace Added(SeenFace piece) {
    faces_.push_back(std::move(piece));
    is_hidden_.push_back(false);
    local_.push_back(0);
    return static_cast<FacePlace>(faces_.size() - 1);
  }

  static void AddTo(Side& side, FacePlace piece) {
    side.piece_of.push_back(piece);
    if (piece != kNoFace) side.group.members.push_back(piece);
  }

  // Only what was cut is compared anew.
  void KeepPairs(const std::vector<FacePair>& pairs, Side& side) {
    for (const FacePair& pair : pairs) {
      const FacePlace first = side.piece_of[local_[pair.first]];
      const FacePlace second = side.piece_of[local_[pair.second]];
      if (first == kNoFace || second == kNoFace) continue;
      if (first == pair.first && second == pair.second) {
        side.group.pairs.push_back(pair);
      } else {
        Compare(first, second, side.group.pairs);
      }
    }
  }

  std::vector<SeenFace> faces_;  // pieces behind the faces they were cut from
  PaintingBounds bounds_;
  std::size_t pieces_;
  std::size_t comparisons_ = 0;
  double touching_;
  std::vector<bool> is_hidden_;
  std::vector<FacePlace> local_;  // a face's place in what is looked at
  std::vector<FaceGroup> pending_;
  std::vector<SeenFace> sorted_;
};

}  // namespace

std::vector<SeenFace> PaintersOrder(std::vector<SeenFace> faces, const PaintingBounds& bounds) {
  return FaceSorter(std::move(faces), bounds).Sorted();
}

}  // namespace wb
