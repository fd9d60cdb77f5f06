// Each shape stresses one thing: breadth, depth, branching, repetition, components to leave out.
#include "workbench/shapes/bench_shapes.h"

#include <algorithm>

#include "workbench/base/text.h"

namespace wb {
namespace {

constexpr int kBranches = 10;
constexpr char kTop[] = "top";

Model NewModel(std::string name, ModelKind kind) {
  return Model({std::move(name), kind});
}

Model& AddPart(Session& session, int number) {
  Model part = NewModel("part" + std::to_string(number), ModelKind::kPart);
  part.parameters.Add({"材料", std::string("Q235")});
  return session.Add(std::move(part));
}

void Place(Model& assembly, const Model& component) {
  ItemList<Feature>& features = assembly.solid().features;
  features.Add(NewComponent(static_cast<int>(features.size()) + 1, component.id));
}

Model& BuildFlat(Session& session, int occurrences) {
  Model top = NewModel(kTop, ModelKind::kAssembly);
  for (int i = 0; i < occurrences; ++i) Place(top, AddPart(session, i));
  return session.Add(std::move(top));
}

Model& BuildSingle(Session& session, int occurrences) {
  Model top = NewModel(kTop, ModelKind::kAssembly);
  const Model& part = AddPart(session, 0);
  for (int i = 0; i < occurrences; ++i) Place(top, part);
  return session.Add(std::move(top));
}

Model& BuildHalfSuppressed(Session& session, int occurrences) {
  Model top = NewModel(kTop, ModelKind::kAssembly);
  for (int i = 0; i < occurrences; ++i) {
    Place(top, AddPart(session, i));
    if (i % 2 == 1) top.solid().features.back().status = FeatureStatus::kSuppressed;
  }
  return session.Add(std::move(top));
}

// Node i has the nodes from 10 i + 1 to 10 i + 10 below it; leaves are parts. From the last node to
// the first, so that each finds its components in session.
Model& BuildTree(Session& session, int occurrences) {
  const auto name = [](int node) {
    const bool leaf_or_branch = node != 0;
    return leaf_or_branch ? "node" + std::to_string(node) : std::string(kTop);
  };
  const auto kind = [&](int node) {
    return kBranches * node + 1 <= occurrences ? ModelKind::kAssembly : ModelKind::kPart;
  };
  Model* added = nullptr;
  for (int node = occurrences; node >= 0; --node) {
    Model model = NewModel(name(node), kind(node));
    const int last = std::min(kBranches * node + kBranches, occurrences);
    for (int child = kBranches * node + 1; child <= last; ++child) {
      Place(model, NewModel(name(child), kind(child)));
    }
    added = &session.Add(std::move(model));
  }
  return *added;
}

Model& BuildChain(Session& session, int occurrences) {
  Model* below = &AddPart(session, 0);
  for (int level = occurrences - 1; level >= 0; --level) {
    Model assembly =
        NewModel(level == 0 ? kTop : "level" + std::to_string(level), ModelKind::kAssembly);
    Place(assembly, *below);
    below = &session.Add(std::move(assembly));
  }
  return *below;
}

// A subassembly of nine parts, ten occurrences with itself.
Model& BuildRepeated(Session& session, int occurrences) {
  Model unit = NewModel("unit", ModelKind::kAssembly);
  for (int i = 1; i < kBranches; ++i) Place(unit, AddPart(session, i));
  const Model& placed = session.Add(std::move(unit));
  Model top = NewModel(kTop, ModelKind::kAssembly);
  for (int i = 0; i < occurrences / kBranches; ++i) Place(top, placed);
  return session.Add(std::move(top));
}

// A hundredth of the occurrences are subassemblies of 99 parts, three each of 33 that follow one
// another in a pool of a twenty-fifth of the occurrences: a twentieth are models.
Model& BuildPool(Session& session, int occurrences) {
  constexpr int kUnit = 100;
  constexpr int kTimes = 3;
  constexpr int kDistinct = (kUnit - 1) / kTimes;
  const int parts = std::max(occurrences / 25, 1);
  for (int i = 0; i < parts; ++i) AddPart(session, i);
  const auto part = [](int number) {
    return NewModel("part" + std::to_string(number), ModelKind::kPart);
  };
  Model top = NewModel(kTop, ModelKind::kAssembly);
  for (int unit = 0; unit < occurrences / kUnit; ++unit) {
    Model assembly = NewModel("unit" + std::to_string(unit), ModelKind::kAssembly);
    for (int i = 0; i < kUnit - 1; ++i) {
      Place(assembly, part((unit * kDistinct + i / kTimes) % parts));
    }
    Place(top, session.Add(std::move(assembly)));
  }
  for (int i = 0; i < occurrences % kUnit; ++i) Place(top, part(i % parts));
  return session.Add(std::move(top));
}

constexpr BenchShape kShapes[] = {
    {"flat", "one level of distinct parts", &BuildFlat, 0},
    {"tree", "ten components an assembly, all models distinct", &BuildTree, 0},
    {"chain", "one component a level", &BuildChain, kDeepestChain},
    {"single", "one part placed again and again", &BuildSingle, 0},
    {"half", "one level of distinct parts, every other one suppressed", &BuildHalfSuppressed, 0},
    {"repeated", "one subassembly of nine parts placed again and again", &BuildRepeated, 0},
    {"pool", "subassemblies of 99 parts from a pool, twenty occurrences a model", &BuildPool, 0},
};

}  // namespace

std::span<const BenchShape> BenchShapes() {
  return kShapes;
}

const BenchShape* FindBenchShape(const std::string& name) {
  const auto* const found = std::ranges::find(kShapes, name, &BenchShape::name);
  return found == std::end(kShapes) ? nullptr : found;
}

}  // namespace wb
