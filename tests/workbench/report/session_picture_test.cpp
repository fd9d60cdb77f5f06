// What is kept of a session before and after a command, and the differences found.
#include "workbench/report/session_picture.h"

#include <gtest/gtest.h>

namespace wb {
namespace {

Model Named(const std::string& name, ModelKind kind) {
  return Model({name, kind});
}

// An assembly in session that holds `part` so many times, with component ids from 1.
Model& AddAssembly(Session& session, const std::string& name, Model& part, int times) {
  Model assembly = Named(name, ModelKind::kAssembly);
  for (int id = 1; id <= times; ++id) {
    assembly.solid().features.Add(NewComponent(id, part.id));
  }
  return session.Add(std::move(assembly));
}

Model& AddNested(Session& session, int levels, int times_each) {
  Model* below = &session.Add(Named("part", ModelKind::kPart));
  for (int i = 0; i < levels; ++i) {
    below = &AddAssembly(session, "level" + std::to_string(i), *below, times_each);
  }
  return *below;
}

TEST(SessionPictureTest, TakesDeepTrees) {
  Session session;
  const ModelTree tree = TakeTree(AddNested(session, 10'000, 1));
  ASSERT_EQ(tree.rows.size(), 10'001u);
  EXPECT_EQ(tree.rows.back().depth, 10'000);
  EXPECT_EQ(tree.rows.back().name, "part.prt");
  EXPECT_EQ(tree.left_out, 0u);
}

TEST(SessionPictureTest, CountsOccurrencesBeyondTheLimitWithoutVisitingThem) {
  Session session;
  const ModelTree tree = TakeTree(AddNested(session, 40, 2), 100);
  EXPECT_EQ(tree.rows.size(), 100u);
  EXPECT_EQ(tree.left_out, (std::uint64_t{1} << 41) - 1 - 100);
}

TEST(SessionPictureTest, NotesWhatACommandChanged) {
  Session session;
  Model& bolt = session.Add(Named("bolt", ModelKind::kPart));
  Model& top = AddAssembly(session, "top", bolt, 2);
  for (const char* name : {"OLD", "KEPT", "SET"}) bolt.SetParameter(name, 3);
  const SessionPicture before = TakePicture(session);
  bolt.DeleteParameter("OLD");
  bolt.SetParameter("SET", 4);
  bolt.SetParameter("NEW", std::string("x"));
  top.solid().features[0].status_flags = 130;
  top.solid().features[1].hidden = true;
  session.Add(Named("late", ModelKind::kPart)).SetParameter("P", 1);

  CommandRecord command;
  NoteChanges(before, TakePicture(session), command);
  std::vector<std::string> parameters;
  for (const ValueChange& change : command.parameters) {
    parameters.push_back(change.model + " " + change.name + ": " + change.before.value_or("none") +
                         " to " + change.after.value_or("none"));
  }
  EXPECT_EQ(parameters, (std::vector<std::string>{"bolt.prt OLD: 3 to none", "bolt.prt SET: 3 to 4",
                                                  "bolt.prt NEW: none to x"}));
  ASSERT_EQ(command.states.size(), 1u);
  EXPECT_EQ(command.states[0].item, "bolt.prt (2)");
  EXPECT_EQ(command.states[0].before, "shown");
  EXPECT_EQ(command.states[0].after, "hidden");
  ASSERT_EQ(command.facts.size(), 1u);
  EXPECT_EQ(command.facts[0].model, "top.asm");
  EXPECT_EQ(command.facts[0].name, "features/1/flags");
  EXPECT_EQ(command.facts[0].after, "130");
}

}  // namespace
}  // namespace wb
