// A model of the workbench's session: what its file holds, plus what only a session knows. Every
// model has an identity, parameters and links to other models; what else it holds depends on its
// kind.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "toolkit/numbers.h"
#include "workbench/session/facts.h"
#include "workbench/session/item_list.h"

namespace wb {

// Values are the host's model type numbers.
enum class ModelKind {
  kAssembly = PRO_MDL_ASSEMBLY,
  kPart = PRO_MDL_PART,
  kDrawing = PRO_MDL_DRAWING,
  kManufacturing = PRO_MDL_MFG,
};

struct ModelKindRow {
  ModelKind kind;
  const char* word;       // in scripts and model files
  const char* extension;  // of model files, without the dot
};
inline constexpr ModelKindRow kKindNames[] = {
    {ModelKind::kAssembly, "assembly", "asm"},
    {ModelKind::kPart, "part", "prt"},
    {ModelKind::kDrawing, "drawing", "drw"},
    {ModelKind::kManufacturing, "manufacturing", "mfg"},
};
const char* KindWord(ModelKind kind);
const char* KindExtension(ModelKind kind);
std::optional<ModelKind> KindFromWord(std::string_view word);
std::optional<ModelKind> KindFromExtension(std::string_view extension);

// The longest model name, in 16-bit characters.
inline constexpr size_t kMaxNameLength = PRO_NAME_SIZE - 1;

// A model named apart from any session: "bolt.prt".
struct ModelName {
  std::string name;
  ModelKind kind = ModelKind::kPart;
  std::string Text() const { return name + "." + KindExtension(kind); }
};
// "bolt.prt" -> name and kind; no value when the extension is unknown or missing.
std::optional<ModelName> ParseModelName(std::string_view text);

struct Model;

// A model that another one refers to.
struct ModelLink {
  ModelName name;
  Model* model = nullptr;  // null: not found in session
};

// Lengths are millimetres.
using Point = std::array<double, 3>;
struct Box {
  Point min{};
  Point max{};
};

// Row-vector convention: rows 0..2 are the component's axes, row 3 its origin.
using Placement = std::array<std::array<double, 4>, 4>;
inline constexpr Placement kIdentityPlacement = {
    {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};

using ParameterValue = std::variant<double, std::string, int, bool>;
struct Parameter {
  std::string name;
  ParameterValue value;
};
// "real", "string", "integer" or "yes_no": the words of scripts and model files.
const char* ParameterTypeWord(const ParameterValue& value);
// As a script or a report shows it: text as it is, yes_no as "yes" or "no".
std::string ParameterText(const ParameterValue& value);

// Values are the host's feature status numbers.
enum class FeatureStatus {
  kActive = PRO_FEAT_ACTIVE,
  kInactive = PRO_FEAT_INACTIVE,
  kFamilyTableSuppressed = PRO_FEAT_FAMTAB_SUPPRESSED,
  kSimplifiedRepSuppressed = PRO_FEAT_SIMP_REP_SUPPRESSED,
  kProgramSuppressed = PRO_FEAT_PROG_SUPPRESSED,
  kSuppressed = PRO_FEAT_SUPPRESSED,
  kUnregenerated = PRO_FEAT_UNREGENERATED,
};

inline constexpr int kComponentFeatureType = PRO_FEAT_COMPONENT;

// What makes a feature a component.
struct ComponentPart {
  ModelLink link;
  Placement placement = kIdentityPlacement;
};

struct Feature {
  int id = 0;
  int type = kComponentFeatureType;
  FeatureStatus status = FeatureStatus::kActive;
  bool visible = true;
  int status_flags = 0;
  bool hidden = false;
  std::optional<ComponentPart> component = std::nullopt;

  bool IsComponent() const { return component.has_value(); }
  // Of the component's model; null also for other features.
  Model* ComponentModel() const { return component ? component->link.model : nullptr; }
};
Feature NewComponent(int id, ModelName model, const Placement& placement = kIdentityPlacement);

struct Surface {
  int id = 0;
  Box box;
};

struct Sheet {
  std::string size = "A4";
  double scale = 1.0;
};

// Parts and assemblies.
struct SolidContent {
  bool sheet_metal = false;
  bool skeleton = false;
  ItemList<Feature> features;
  ItemList<Surface> surfaces;
};

struct DrawingContent {
  std::optional<ModelLink> shows;  // the solid drawn
  std::vector<Sheet> sheets;
};

struct ManufacturingContent {
  std::optional<ModelLink> assembly;
};

using ModelContent = std::variant<SolidContent, DrawingContent, ManufacturingContent>;

struct Model {
  Model() : Model(ModelName{}) {}
  // With the content of its kind, empty.
  explicit Model(ModelName name);

  ModelName id;
  std::string note;  // free text of the model file, kept through a save
  ItemList<Parameter> parameters;
  ModelContent content;

  // What only the session knows.
  void* handle = nullptr;
  std::filesystem::path folder;
  int version = 0;
  bool modified = false;

  // The content, of a model that has it; null for others.
  template <typename Content>
  Content* As() {
    return std::get_if<Content>(&content);
  }
  template <typename Content>
  const Content* As() const {
    return std::get_if<Content>(&content);
  }
  // Of a part or assembly only.
  SolidContent& solid() { return std::get<SolidContent>(content); }
  const SolidContent& solid() const { return std::get<SolidContent>(content); }

  // Null for no such feature, and for models that have none.
  Feature* FindFeature(int feature_id);
  const Feature* FindFeature(int feature_id) const;
  Parameter* FindParameter(std::string_view name);
  // Adds or replaces; keeps the order of first definition.
  void SetParameter(const std::string& name, ParameterValue value);
  bool DeleteParameter(std::string_view name);
};

// The features of a part or assembly; of other models an empty list.
const ItemList<Feature>& FeaturesOf(const Model& model);

// What a user sees of a model as its structure: of a manufacturing model its assembly.
const Model& ShownSolid(const Model& model);
inline Model& ShownSolid(Model& model) {
  return const_cast<Model&>(ShownSolid(static_cast<const Model&>(model)));
}

// Every link of a model to another one, in order.
void ForEachLink(Model& model, const std::function<void(ModelLink&)>& use);

}  // namespace wb
