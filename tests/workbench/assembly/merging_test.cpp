// Where components lie, and what a merge feature brings along.
#include "workbench/assembly/merging.h"

#include <gtest/gtest.h>

#include "workbench/session/extents.h"
#include "workbench/session/session.h"

namespace wb {
namespace {

// A quarter turn about z, then a shift.
constexpr Placement kTurned = {{{0, 1, 0, 0}, {-1, 0, 0, 0}, {0, 0, 1, 0}, {10, 20, 30, 1}}};
constexpr Placement kShifted = {{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {1, 2, 3, 1}}};

class Merging : public testing::Test {
 protected:
  Merging() {
    Model bolt({"bolt", ModelKind::kPart});
    bolt.solid().surfaces.Add({1, {{0, 0, 0}, {4, 2, 1}}});
    bolt_ = &session_.Add(std::move(bolt));
    body_ = &session_.Add(Model({"body", ModelKind::kPart}));
    Model rotor({"rotor", ModelKind::kAssembly});
    rotor.solid().features.Add(NewComponent(3, bolt_->id, kShifted));
    rotor.solid().features.Add(NewComponent(4, body_->id, kIdentityPlacement));
    rotor_ = &session_.Add(std::move(rotor));
    Model pump({"pump", ModelKind::kAssembly});
    pump.solid().features.Add(NewComponent(7, rotor_->id, kTurned));
    pump.solid().features.Add(NewComponent(8, body_->id, kShifted));
    pump_ = &session_.Add(std::move(pump));
  }

  Session session_;
  Model* bolt_;
  Model* body_;
  Model* rotor_;
  Model* pump_;
};

TEST_F(Merging, WhatAComponentHoldsComesBeforeTheNextOne) {
  EXPECT_EQ(FirstPlacementOf(*pump_, *body_), kTurned);
  EXPECT_EQ(FirstPlacementOf(*rotor_, *pump_), std::nullopt);
}

TEST_F(Merging, OnlyTurnsAndShiftsAreRigid) {
  EXPECT_TRUE(IsRigid(kTurned));
  const Placement scaled = {{{2, 0, 0, 0}, {0, 2, 0, 0}, {0, 0, 2, 0}, {0, 0, 0, 1}}};
  const Placement mirrored = {{{-1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
  const Placement open = {{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 0}}};
  for (const Placement& other : {scaled, mirrored, open, Placement{}}) {
    EXPECT_FALSE(IsRigid(other));
  }
}

TEST_F(Merging, GeometryIsFollowedThroughSeveralParts) {
  Model& plate = session_.Add(Model({"plate", ModelKind::kPart}));
  AddMergeFeature(*body_, *bolt_, kIdentityPlacement, "joined");
  AddMergeFeature(plate, *body_, kIdentityPlacement, "joined");
  EXPECT_TRUE(HasGeometryOf(session_, plate, *bolt_));
  EXPECT_TRUE(HasGeometryOf(session_, plate, plate));
  EXPECT_FALSE(HasGeometryOf(session_, *bolt_, plate));
}

}  // namespace
}  // namespace wb
