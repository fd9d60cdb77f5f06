// Host functions that write the shapes of models. Nobody reads SAT: such a file is a text that
// stands for the host's.
#include <array>

#include "workbench/api/export_file.h"
#include "workbench/base/text.h"
#include "workbench/host/arguments.h"

namespace wb {
namespace {

// In the order of the flags: wireframe, surfaces, solid, quilts.
using ShapeFlags = std::optional<std::array<bool, 4>>;
using ShapeFlagsIn =
    LentIn<ShapeFlags, HandleKind::kBrepRepresentation, ProOutputBrepRepresentation>;

constexpr const char* kShapeWords[] = {"wireframe", "surfaces", "solid", "quilts"};

std::string ShapeWords(const ShapeFlags& flags) {
  std::vector<std::string> words;
  for (size_t i = 0; i < flags->size(); ++i) {
    if ((*flags)[i]) words.emplace_back(kShapeWords[i]);
  }
  return words.empty() ? "nothing" : Join(", ", words);
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProOutputBrepRepresentationAlloc(ProOutputBrepRepresentation* brep) {
  return Crossing(__func__, Out(brep, "representation place"))
      .Run([](const Call& call, ProOutputBrepRepresentation& place) {
        Lend<ShapeFlags>(call, place, HandleKind::kBrepRepresentation,
                         Resource::kBrepRepresentation);
      });
}

ProError ProOutputBrepRepresentationFree(ProOutputBrepRepresentation brep) {
  return Crossing(__func__, GivenBack(brep))
      .Run([](const Call& call, ProOutputBrepRepresentation lent) {
        TakeBack<ShapeFlags>(call, lent, HandleKind::kBrepRepresentation,
                             Resource::kBrepRepresentation);
      });
}

ProError ProOutputBrepRepresentationFlagsSet(ProOutputBrepRepresentation brep,
                                             ProBoolean as_wireframe, ProBoolean as_surfaces,
                                             ProBoolean as_solid, ProBoolean as_quilts) {
  return Crossing(__func__, ShapeFlagsIn{brep}, as_wireframe, as_surfaces, as_solid, as_quilts)
      .Run([](const Call&, ShapeFlags& flags, ProBoolean a, ProBoolean b, ProBoolean c,
              ProBoolean d) {
        flags = {a == PRO_B_TRUE, b == PRO_B_TRUE, c == PRO_B_TRUE, d == PRO_B_TRUE};
      });
}

ProError ProIntf3DFileWrite(ProSolid solid, int type, ProPath file,
                            ProOutputAssemblyConfiguration configuration, ProSelection csys,
                            ProOutputBrepRepresentation brep, ProOutputInclusion inclusion,
                            ProOutputLayerOptions layers) {
  return Crossing(__func__, ModelIn{solid}, type, PathIn{file, "file"}, configuration, DataIn{csys},
                  ShapeFlagsIn{brep}, DataIn{inclusion}, DataIn{layers})
      .Run([](const Call& call, const Model& from, int kind, const std::filesystem::path& path,
              ProOutputAssemblyConfiguration made, const void* a, const ShapeFlags& flags,
              const void* b, const void* c) {
        if (from.As<SolidContent>() == nullptr) call.Fail("a model that is no solid");
        if (!flags) {
          // The plug-in cannot know that its setting was struck.
          if (call.host.faults.struck() > 0) return PRO_TK_BAD_INPUTS;
          call.Fail("a boundary representation without flags");
        }
        if (a != nullptr || b != nullptr || c != nullptr) {
          throw NotModelled{std::string("further arguments of ") + call.function};
        }
        if (made != PRO_OUTPUT_ASSEMBLY_SINGLE_FILE) {
          throw NotModelled{"other 3D files of assemblies than a single one"};
        }
        if (kind != call.host.writers.sat_type) return PRO_TK_UNSUPPORTED;
        const std::string asked = std::string(call.function) + ", type " + std::to_string(kind) +
                                  ", one file, " + ShapeWords(flags) + ".";
        return WriteExport(call, from, path,
                           {FileFormat::kSat, ".sat", "SAT", from.id.Text(), asked});
      });
}
