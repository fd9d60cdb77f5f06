// Handles stand for things by their id, wherever a list may have moved them.
#include "workbench/checks/handles.h"

#include <gtest/gtest.h>

#include "workbench/session/model.h"

namespace wb {
namespace {

TEST(Handles, OfThingsInAListOutliveItsGrowth) {
  HandleTable handles;
  Model part({"bolt", ModelKind::kPart});
  ItemList<Surface>& surfaces = part.solid().surfaces;
  std::vector<void*> given;
  for (int id = 1; id <= 1000; ++id) {
    surfaces.Add({id, {{0, 0, 0}, {1.0 * id, 0, 0}}});
    given.push_back(handles.GiveInside(HandleKind::kSurface, &part, id));
    EXPECT_EQ(given.back(), handles.GiveInside(HandleKind::kSurface, &part, id));
  }
  for (int id = 1; id <= 1000; ++id) {
    const HandleTable::Found found =
        handles.Look(given[static_cast<size_t>(id - 1)], HandleKind::kSurface);
    ASSERT_EQ(found.object, &part);
    EXPECT_EQ(surfaces.Find(found.id)->box.max[0], id);
  }
}

TEST(Handles, OfWhatIsGoneAreStaleAndNeverStandForANewcomer) {
  HandleTable handles;
  int thing = 0;
  int other = 0;
  const auto why = [&](void* handle, HandleKind kind) { return handles.Look(handle, kind).why; };
  void* const whole = handles.Give(HandleKind::kModel, &thing);
  void* const first = handles.GiveInside(HandleKind::kSurface, &thing, 1);
  void* const second = handles.GiveInside(HandleKind::kSurface, &thing, 2);
  void* const elsewhere = handles.GiveInside(HandleKind::kSurface, &other, 1);
  handles.EndInside(HandleKind::kSurface, &thing, 1);
  EXPECT_EQ(why(first, HandleKind::kSurface), "stale surface handle (its object is gone)");
  EXPECT_NE(handles.GiveInside(HandleKind::kSurface, &thing, 1), first);
  EXPECT_EQ(why(first, HandleKind::kSurface), "stale surface handle (its object is gone)");
  EXPECT_EQ(why(second, HandleKind::kSurface), "");
  EXPECT_EQ(why(second, HandleKind::kModel), "a surface handle given as a model handle");
  handles.EndAllInside(&thing);
  handles.End(whole);
  EXPECT_TRUE(handles.Look(second, HandleKind::kSurface).stale);
  EXPECT_TRUE(handles.Look(whole, HandleKind::kModel).stale);
  EXPECT_EQ(why(elsewhere, HandleKind::kSurface), "");
  EXPECT_EQ(why(reinterpret_cast<void*>(0x1234560), HandleKind::kSurface),
            "foreign pointer given as a surface handle");
}

}  // namespace
}  // namespace wb
