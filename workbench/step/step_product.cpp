// Puts products, occurrences, placements and shapes together into models.
#include "workbench/step/step_product.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <unordered_set>

#include "workbench/base/text.h"
#include "workbench/step/shape/step_shape.h"
#include "workbench/step/step_definitions.h"
#include "workbench/step/step_placement.h"

namespace wb {
namespace {

// Usages that put a component directly into an assembly.
constexpr std::string_view kDirectUsages[] = {
    "NEXT_ASSEMBLY_USAGE_OCCURRENCE",
    "ASSEMBLY_COMPONENT_USAGE",
    "QUANTIFIED_ASSEMBLY_COMPONENT_USAGE",
};

// Usages that speak of components which other usages put there, or that nobody has placed yet.
struct IndirectUsage {
  std::string_view entity;
  std::string_view why;
};
constexpr IndirectUsage kIndirectUsages[] = {
    {"SPECIFIED_HIGHER_USAGE_OCCURRENCE", "they single out components of lower assemblies"},
    {"PROMISSORY_USAGE_OCCURRENCE", "their assemblies are not settled yet"},
    {"MULTI_LEVEL_REFERENCE_DESIGNATOR", "they single out components of lower assemblies"},
};

// A line with a quantity must not take all memory.
constexpr std::size_t kMostByQuantity = 100'000;

struct Usage {
  const StepRecord* record;  // of the usage, or of the mapped item that shows the component
  int parent, child;         // definitions
  std::string name;
  std::optional<StepPlacement> placement;
};

// The number of a measure; 0 where it has none that can be read, since quantities are also given in
// words and are not worth a whole import.
double NumberOfMeasure(const StepFile& file, const StepRecord* measure) {
  if (measure == nullptr) return 0;
  const StepType& type = file.TypeOf(*measure);
  const bool is_item = type.names.front() == "MEASURE_REPRESENTATION_ITEM";
  if (type.names.size() > 1 && !type.Has("MEASURE_WITH_UNIT")) return 0;
  // A plain item carries its name in front.
  const StepArguments values =
      file.Arguments(*measure, "MEASURE_WITH_UNIT", is_item && type.names.size() == 1 ? 1 : 0);
  if (values.size() == 0) return 0;
  const StepValue* value = &values.At(0);
  if (value->kind == StepValue::Kind::kTyped && value->items.size() == 1) value = &value->items[0];
  return value->kind == StepValue::Kind::kNumber ? value->number : 0;
}

class ProductReader {
 public:
  explicit ProductReader(const StepFile& file)
      : file_(file),
        catalog_(file),
        definitions_(file, catalog_),
        units_(file),
        shapes_(file, units_,
                [this](const StepRecord& showing, const StepRecord& shown) {
                  const int owner = definitions_.OwnerOf(shown);
                  return owner >= 0 && !definitions_.Owns(owner, showing);
                }),
        placements_(file, catalog_, definitions_, units_, shapes_) {}

  StepAssembly Read() {
    ReadUsages();
    PlaceByMappedItems();
    MakeModels();
    AddComponents();
    RefuseCircles();
    FindTops();
    AddShapes();
    Finish();
    return std::move(assembly_);
  }

 private:
  void ReadUsages();
  void ReadUsage(const StepRecord& record);
  std::size_t QuantityOf(const Usage& usage);
  void PlaceByMappedItems();
  void MakeModels();
  void AddComponents();
  void RefuseCircles() const;
  void FindTops();
  void AddShapes();
  void AddShape(StepModel& model, const StepRecord& representation, StepBox& wires);
  void Finish();
  void Note(std::string note) { assembly_.notes.push_back(std::move(note)); }

  const StepFile& file_;
  StepCatalog catalog_;
  StepDefinitions definitions_;
  StepUnits units_;
  StepShapes shapes_;
  StepPlacements placements_;
  std::vector<Usage> usages_;
  std::vector<int> model_of_;                            // by definition, -1 for none
  std::vector<int> definition_of_;                       // by model
  std::vector<std::vector<const StepRecord*>> sources_;  // by model, one for each component
  StepAssembly assembly_;
};

void ProductReader::ReadUsages() {
  std::unordered_set<const StepRecord*> left_out;
  for (const IndirectUsage& kind : kIndirectUsages) {
    const auto& records = catalog_.Of(kind.entity);
    left_out.insert(records.begin(), records.end());
    if (records.empty()) continue;
    Note(std::to_string(records.size()) + " " + std::string(kind.entity) +
         " left out: " + std::string(kind.why));
  }
  std::vector<const StepRecord*> direct;
  for (const std::string_view entity : kDirectUsages) {
    for (const StepRecord* record : catalog_.Of(entity)) {
      if (left_out.insert(record).second) direct.push_back(record);
    }
  }
  std::sort(direct.begin(), direct.end(),
            [](const auto* a, const auto* b) { return a->offset < b->offset; });
  for (const StepRecord* record : direct) ReadUsage(*record);
}

void ProductReader::ReadUsage(const StepRecord& record) {
  const StepArguments values = file_.Arguments(record, "PRODUCT_DEFINITION_RELATIONSHIP");
  Usage usage{&record,
              definitions_.Resolve(record, values, 3),
              definitions_.Resolve(record, values, 4),
              values.OptionalText(1),
              {}};
  if (usage.name.empty()) usage.name = values.OptionalText(0);
  usage.placement = placements_.OfUsage(record, usage.parent, usage.child);
  const std::size_t quantity = QuantityOf(usage);
  if (quantity > 1 && usages_.size() + quantity > kMostByQuantity) {
    file_.Fail(record, "with this quantity the file has more than " +
                           std::to_string(kMostByQuantity) + " components");
  }
  usages_.insert(usages_.end(), quantity, usage);
}

// How many components a usage stands for. They all lie in its one place, unless mapped items have
// others for them.
std::size_t ProductReader::QuantityOf(const Usage& usage) {
  constexpr std::string_view kQuantified = "QUANTIFIED_ASSEMBLY_COMPONENT_USAGE";
  constexpr std::size_t kInherited = 6;  // those of other usages
  constexpr double kMost = 10000;
  if (!file_.TypeOf(*usage.record).Has(kQuantified)) return 1;
  const StepArguments values = file_.Arguments(*usage.record, kQuantified, kInherited);
  const double quantity = NumberOfMeasure(file_, values.OptionalReference(0));
  if (quantity == 1) return 1;
  const std::string where = usage.name + " in " + definitions_.all()[usage.parent].name;
  if (quantity > 1 && quantity <= kMost && quantity == std::floor(quantity)) {
    Note(where + ": given with a quantity, imported " + NumberText(quantity) + " times");
    return static_cast<std::size_t>(quantity);
  }
  Note(where + ": given with a quantity that is no number of pieces, imported once");
  return 1;
}

// Mapped items place the usages that have no placement yet, in order; those beyond the number of
// usages are components of their own, in files that list no usages.
void ProductReader::PlaceByMappedItems() {
  std::map<std::pair<int, int>, std::vector<StepPlacements::Shown>> shown;
  for (int parent = 0; parent < static_cast<int>(definitions_.all().size()); ++parent) {
    for (const auto& item : placements_.ShownBy(parent)) {
      shown[{parent, item.child}].push_back(item);
    }
  }
  std::map<std::pair<int, int>, std::size_t> taken;
  std::size_t unplaced = 0;
  for (Usage& usage : usages_) {
    const std::pair key(usage.parent, usage.child);
    const auto items = shown.find(key);
    const std::size_t at = taken[key]++;
    if (usage.placement) continue;
    if (items != shown.end() && at < items->second.size()) {
      usage.placement = items->second[at].placement;
    } else {
      ++unplaced;
    }
  }
  for (const auto& [key, items] : shown) {
    for (std::size_t i = taken[key]; i < items.size(); ++i) {
      const std::string name =
          file_.Arguments(*items[i].item, "REPRESENTATION_ITEM").OptionalText(0);
      usages_.push_back({items[i].item, key.first, key.second, name, items[i].placement});
    }
  }
  if (unplaced > 0) {
    Note(std::to_string(unplaced) +
         " components have no placement in the file; they stand at their assembly's origin");
  }
}

void ProductReader::MakeModels() {
  for (const Usage& usage : usages_) {
    definitions_.all()[usage.parent].used = true;
    definitions_.all()[usage.child].used = true;
  }
  const auto left_out = std::ranges::count_if(
      definitions_.all(), [](const StepDefinition& d) { return d.raw_material && !d.used; });
  if (left_out > 0) {
    Note(std::to_string(left_out) + " products left out: they are raw material, no parts");
  }
  model_of_.assign(definitions_.all().size(), -1);
  for (const int definition : definitions_.Models()) {
    model_of_[definition] = static_cast<int>(assembly_.models.size());
    definition_of_.push_back(definition);
    assembly_.models.push_back({definitions_.all()[definition].name, false, {}, {}, {}});
  }
  sources_.resize(assembly_.models.size());
}

void ProductReader::AddComponents() {
  for (const Usage& usage : usages_) {
    const int parent = model_of_[usage.parent];
    StepModel& model = assembly_.models[parent];
    model.assembly = true;
    model.components.push_back(
        {model_of_[usage.child], usage.placement.value_or(StepPlacement()), usage.name});
    sources_[parent].push_back(usage.record);
  }
}

// Walks down from every model; meeting one that is still being walked closes a circle.
void ProductReader::RefuseCircles() const {
  enum State : char { kNew, kOpen, kDone };
  std::vector<State> states(assembly_.models.size(), kNew);
  struct Level {
    int model;
    std::size_t next;
  };
  std::vector<Level> path;
  for (int start = 0; start < static_cast<int>(states.size()); ++start) {
    if (states[start] == kNew) path.push_back({start, 0});
    while (!path.empty()) {
      Level& level = path.back();
      const StepModel& model = assembly_.models[level.model];
      states[level.model] = kOpen;
      if (level.next == model.components.size()) {
        states[level.model] = kDone;
        path.pop_back();
        continue;
      }
      const std::size_t at = level.next++;
      const int child = model.components[at].child;
      if (states[child] == kOpen) {
        file_.Fail(*sources_[level.model][at],
                   "puts " + assembly_.models[child].name + " inside itself");
      }
      if (states[child] == kNew) path.push_back({child, 0});
    }
  }
}

void ProductReader::FindTops() {
  std::vector<bool> inside(assembly_.models.size(), false);
  for (const StepModel& model : assembly_.models) {
    for (const StepOccurrence& component : model.components) inside[component.child] = true;
  }
  for (std::size_t i = 0; i < inside.size(); ++i) {
    if (!inside[i]) assembly_.tops.push_back(static_cast<int>(i));
  }
}

void ProductReader::AddShape(StepModel& model, const StepRecord& representation, StepBox& wires) {
  const StepShape& shape = shapes_.Of(representation);
  model.faces.insert(model.faces.end(), shape.faces.begin(), shape.faces.end());
  wires.Add(shape.wires);
}

void ProductReader::AddShapes() {
  std::size_t bare = 0;
  for (std::size_t i = 0; i < assembly_.models.size(); ++i) {
    StepModel& model = assembly_.models[i];
    const StepDefinition& definition = definitions_.all()[definition_of_[i]];
    StepBox box, wires;
    for (const StepRecord* representation : definition.representations) {
      AddShape(model, *representation, wires);
    }
    for (const StepBox& face : model.faces) box.Add(face);
    if (box.empty()) box = wires;
    if (!box.empty()) model.extents = box;
    if (box.empty() && !model.assembly && definition.other_file.empty()) ++bare;
  }
  if (bare > 0) Note(std::to_string(bare) + " parts have no geometry in the file");
}

void ProductReader::Finish() {
  assembly_.schema = file_.schema();
  assembly_.length_units = units_.names();
  if (units_.guessed()) Note("a length unit is missing; millimetres are assumed");
  auto& notes = assembly_.notes;
  notes.insert(notes.begin(), definitions_.notes().begin(), definitions_.notes().end());
  std::unordered_set<std::string> told;
  std::erase_if(notes, [&](const std::string& note) { return !told.insert(note).second; });
  if (assembly_.models.empty()) {
    throw StepError(file_.file_name(), 0, "the file holds documents or raw material, but no part");
  }
}

}  // namespace

StepAssembly ReadStepAssembly(const StepFile& file) {
  return ProductReader(file).Read();
}

StepAssembly ReadStepAssembly(const std::filesystem::path& path) {
  return ReadStepAssembly(StepFile::Read(path));
}

}  // namespace wb
