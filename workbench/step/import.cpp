// Models from STEP products, and their way into a folder.
#include "workbench/step/import.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <stdexcept>

#include "workbench/base/utf8_text.h"
#include "workbench/session/model_file.h"
#include "workbench/session/session.h"
#include "workbench/step/import_staging.h"
#include "workbench/step/step_names.h"
#include "workbench/step/step_product.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

Point PointOf(const StepPoint& point) {
  return {point[0], point[1], point[2]};
}

// The six sides of a box, each as the flat box it fills.
std::vector<Box> SidesOf(const StepBox& box) {
  const Box whole{PointOf(box.min), PointOf(box.max)};
  std::vector<Box> sides;
  for (size_t axis = 0; axis < 3; ++axis) {
    sides.insert(sides.end(), 2, whole);
    sides[sides.size() - 2].max[axis] = whole.min[axis];
    sides[sides.size() - 1].min[axis] = whole.max[axis];
  }
  return sides;
}

std::vector<Box> SurfacesOf(const StepModel& step) {
  std::vector<Box> surfaces;
  for (const StepBox& face : step.faces) surfaces.push_back({PointOf(face.min), PointOf(face.max)});
  if (surfaces.empty() && step.extents) surfaces = SidesOf(*step.extents);
  return surfaces;
}

Feature ComponentOf(const StepOccurrence& occurrence, const ModelName& model, int id) {
  Placement placement;
  for (size_t row = 0; row < 4; ++row) {
    for (size_t column = 0; column < 4; ++column) {
      placement[row][column] = occurrence.placement.m[row][column];
    }
  }
  return NewComponent(id, model, placement);
}

// A note a product whose model could not bear its name alone, up to this many.
constexpr size_t kMostRenamed = 20;

std::vector<ModelName> NamesOf(const StepAssembly& step, std::vector<std::string>& notes) {
  std::vector<ProductName> products;
  for (const StepModel& model : step.models) products.push_back({model.name, model.assembly});
  const std::vector<HostName> names = MakeHostNames(products);
  std::vector<ModelName> full;
  size_t renamed = 0;
  for (size_t i = 0; i < names.size(); ++i) {
    full.push_back({names[i].name, products[i].assembly ? ModelKind::kAssembly : ModelKind::kPart});
    if (!names[i].numbered || ++renamed > kMostRenamed) continue;
    notes.push_back("another product named \"" + products[i].name + "\" is the model " +
                    full.back().Text());
  }
  if (renamed > kMostRenamed) {
    notes.push_back("and " + std::to_string(renamed - kMostRenamed) + " more of such products");
  }
  return full;
}

// A file in the way of `folder`, or of a folder above it.
void RefuseFileInTheWay(const fs::path& folder) {
  fs::path at = fs::absolute(folder);
  while (!fs::exists(at) && at.has_relative_path()) at = at.parent_path();
  if (!fs::exists(at) || fs::is_directory(at)) return;
  throw std::runtime_error(PathToUtf8(at) +
                           " is a file, and models need a folder; name another folder, which is "
                           "made when it is missing, or move the file away");
}

std::string PlacedName(const Feature& component) {
  return component.component->link.name.Text();
}

// Models in an order in which each comes before those under it.
std::vector<const Model*> FromTheTop(const ImportedModels& imported) {
  std::map<std::string, const Model*> by_name;
  std::map<std::string, int> above;  // placements not yet passed
  for (const Model& model : imported.models) {
    by_name[model.id.Text()] = &model;
    for (const Feature& feature : model.solid().features) ++above[PlacedName(feature)];
  }
  std::vector<const Model*> order;
  for (const ModelName& top : imported.tops) order.push_back(by_name.at(top.Text()));
  for (size_t i = 0; i < order.size(); ++i) {
    for (const Feature& feature : order[i]->solid().features) {
      const std::string name = PlacedName(feature);
      if (--above[name] == 0) order.push_back(by_name.at(name));
    }
  }
  return order;
}

// Assemblies of assemblies of assemblies hold more than any number tells; it stays at this.
constexpr std::uint64_t kUncounted = std::numeric_limits<std::uint64_t>::max();

std::uint64_t Sum(std::uint64_t a, std::uint64_t b) {
  return a > kUncounted - b ? kUncounted : a + b;
}

std::string CountText(std::uint64_t count) {
  return count < kUncounted ? std::to_string(count) : "over " + std::to_string(kUncounted - 1);
}

// How often each model occurs under the tops, those themselves once.
std::map<std::string, std::uint64_t> OccurrencesBelow(const ImportedModels& imported) {
  std::map<std::string, std::uint64_t> totals;
  for (const Model& model : imported.models) totals[model.id.Text()] = 0;
  for (const ModelName& top : imported.tops) totals[top.Text()] = 1;
  for (const Model* const model : FromTheTop(imported)) {
    const std::uint64_t above = totals[model->id.Text()];
    for (const Feature& feature : model->solid().features) {
      std::uint64_t& total = totals[PlacedName(feature)];
      total = Sum(total, above);
    }
  }
  return totals;
}

std::string LengthUnits(const std::vector<std::string>& units) {
  if (units.empty()) return "millimetre, assumed, since the file names none";
  return Join(", ", units);
}

// A path as it stands between the quotes of a script.
std::string Quotable(const fs::path& path) {
  std::string text;
  const std::u8string generic = path.generic_u8string();
  for (const char8_t c : generic) {
    if (c == u8'"' || c == u8'\\') text += '\\';
    text += static_cast<char>(c);
  }
  return text;
}

std::string Padded(std::string text, size_t width) {
  const size_t length = WideLength(text);
  if (length < width) text.append(width - length, ' ');
  return text;
}

}  // namespace

ImportedModels ReadStepModels(const fs::path& file) {
  const StepAssembly step = ReadStepAssembly(file);
  ImportedModels imported{{}, {}, step.notes, LengthUnits(step.length_units)};
  const std::vector<ModelName> names = NamesOf(step, imported.notes);
  for (size_t i = 0; i < step.models.size(); ++i) {
    Model model(names[i]);
    for (const Box& box : SurfacesOf(step.models[i])) {
      ItemList<Surface>& surfaces = model.solid().surfaces;
      surfaces.Add({static_cast<int>(surfaces.size()) + 1, box});
    }
    int id = 0;
    for (const StepOccurrence& occurrence : step.models[i].components) {
      model.solid().features.Add(
          ComponentOf(occurrence, names[static_cast<size_t>(occurrence.child)], ++id));
    }
    imported.models.push_back(std::move(model));
  }
  for (const int top : step.tops) imported.tops.push_back(names[static_cast<size_t>(top)]);
  return imported;
}

void WriteModels(const ImportedModels& imported, const fs::path& folder, bool force) {
  RefuseFileInTheWay(folder);
  UndoDeadImports(folder);
  const FolderIndex present(folder);
  for (const Model& model : imported.models) {
    if (force || present.NewestVersion(model.id) == 0) continue;
    throw std::runtime_error(PathToUtf8(folder) + " holds a model " + model.id.Text() +
                             " already; import into another folder, or add --force to write "
                             "next versions");
  }
  const ImportStaging staging(folder);
  for (const Model& model : imported.models) {
    const int version = present.NewestVersion(model.id) + 1;
    const fs::path file =
        staging.folder() / PathFromUtf8(model.id.Text() + "." + std::to_string(version));
    // The file system may take more names for one than we do.
    if (fs::exists(file)) {
      throw std::runtime_error("two models would share the file " + PathToUtf8(file.filename()) +
                               "; rename one of the products");
    }
    WriteNewModelFile(model, file);
  }
  staging.Deliver();
}

std::string ModelTable(const ImportedModels& imported) {
  const std::map<std::string, std::uint64_t> totals = OccurrencesBelow(imported);
  std::map<std::string, std::size_t> placed;
  size_t width = 5;
  for (const Model& model : imported.models) {
    width = std::max(width, WideLength(model.id.Text()));
    for (const Feature& feature : model.solid().features) ++placed[PlacedName(feature)];
  }
  std::string table = Padded("model", width) + "  components  surfaces  placed  in all\n";
  for (const Model& model : imported.models) {
    const std::string name = model.id.Text();
    table += Padded(name, width) + "  " +
             Padded(std::to_string(model.solid().features.size()), 10) + "  " +
             Padded(std::to_string(model.solid().surfaces.size()), 8) + "  " +
             Padded(std::to_string(placed[name]), 6) + "  " + CountText(totals.at(name)) + "\n";
  }
  return table;
}

const ModelName& MainModel(const ImportedModels& imported) {
  const auto assembly = std::ranges::find(imported.tops, ModelKind::kAssembly,
                                          [](const auto& top) { return top.kind; });
  return assembly != imported.tops.end() ? *assembly : imported.tops.front();
}

std::vector<std::string> NextScript(const ImportedModels& imported, const fs::path& folder) {
  const ModelName& top = MainModel(imported);
  return {"folder copy \"" + Quotable(folder) + "\"", "open " + top.Text(),
          top.kind == ModelKind::kAssembly ? "run QmShowAllComp" : "run QmOpenDir"};
}

}  // namespace wb
