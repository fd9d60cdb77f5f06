// A model of the workbench's session: what its file holds, plus what only a session knows. Every
// model has an identity, parameters and links to other models; what else it holds depends on its
// kind.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "toolkit/numbers.h"
#include "workbench/session/drawing.h"
#include "workbench/session/facts.h"
#include "workbench/session/item_list.h"
#include "workbench/session/model_link.h"
#include "workbench/session/units.h"

namespace wb {

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

// One end of a constraint: an item by type and id, and the side of it.
struct ConstraintEnd {
  int type = 0;  // 0: there is none
  int id = 0;
  int side = 0;
};

// What places a component: an item of its assembly and one of its own model.
struct ComponentConstraint {
  int type = 0;  // the host's number
  ConstraintEnd in_assembly;
  ConstraintEnd in_model;
};

struct Feature {
  int id = 0;
  int type = kComponentFeatureType;
  FeatureStatus status = FeatureStatus::kActive;
  bool visible = true;
  int status_flags = 0;
  bool hidden = false;
  std::optional<ComponentPart> component = std::nullopt;
  std::vector<ComponentConstraint> constraints{};  // of a component
  std::string name{};                              // empty: the host's own
  std::string merged{};  // of a merge feature: the part whose geometry it has brought

  bool IsComponent() const { return component.has_value(); }
  // Of the component's model; null also for other features.
  Model* ComponentModel() const { return component ? component->link.model : nullptr; }
};
Feature NewComponent(int id, ModelName model, const Placement& placement = kIdentityPlacement);

// Red, green and blue from 0 to 1.
using Rgb = std::array<double, 3>;

// How a model or one of its surfaces looks. All numbers but the reflection lie between 0 and 1. By
// default the grey of a model that has no appearance of its own.
struct Appearance {
  Rgb colour = {0.6, 0.6, 0.6};
  double ambient = 0.6;
  double diffuse = 0.9;
  double highlight = 0.6;
  double shininess = 0.6;
  double transparency = 0;  // 1: clear
  Rgb highlight_colour = {1, 1, 1};
  double reflection = 0.3;
  std::string name{};
  int finish = 0;  // stands in a part of the host's record that the plug-in does not know
  bool operator==(const Appearance&) const = default;
};

struct Surface {
  int id = 0;
  Box box;
  std::optional<Appearance> appearance = std::nullopt;  // none of its own: its model's
};

struct SolidDimension {
  int id = 0;
  double value = 0;
};

using RelationLines = std::vector<std::string>;

// A material that a part has read, with the first line of its file.
struct Material {
  std::string name;
  std::string text;
};

// Its axes and origin in the model's frame.
struct CoordinateSystem {
  int id = 0;
  Placement placement = kIdentityPlacement;
};

// A family table, which its generic holds: a column for each parameter that instances have a value
// of their own for, and what their cells say. An instance is a model of its own that names its
// generic.
struct FamilyColumn {
  std::string name;
};
struct FamilyInstance {
  std::string name;
  ItemList<Parameter> cells;  // by column; none: the generic's value
};

// What a simplified representation does with components. Values are the host's numbers.
enum class RepAction {
  kInclude = PRO_SIMPREP_INCLUDE,
  kExclude = PRO_SIMPREP_EXCLUDE,
};
struct RepItem {
  std::vector<int> path;  // ids from the top down to the assembly that has the component
  int component = 0;
  RepAction action = RepAction::kInclude;
};
struct SimplifiedRep {
  std::string name;
  RepAction action = RepAction::kInclude;  // for what no item names
  std::vector<RepItem> items;
};

// Parts and assemblies.
struct SolidContent {
  bool sheet_metal = false;
  bool skeleton = false;
  ItemList<Feature> features;
  ItemList<Surface> surfaces;
  ItemList<SolidDimension> dimensions;
  std::optional<Appearance> appearance;  // none of its own: the host's grey

  // None: there is no such set.
  std::optional<RelationLines> relations;
  std::optional<RelationLines> post_relations;  // those after a regeneration

  std::string units = kDefaultUnits;  // the principal system
  ItemList<UnitSystem> unit_systems;  // those of its own

  ItemList<Material> materials;
  std::string material;         // the current one; empty: none
  std::string bend_table;       // empty: none
  std::string bend_table_text;  // the first line of its file

  std::optional<ModelLink> generic;  // none: no instance of a family
  ItemList<FamilyColumn> family_columns;
  ItemList<FamilyInstance> family_instances;

  ItemList<SimplifiedRep> reps;
  std::string active_rep;  // empty: the master representation
  ItemList<CoordinateSystem> coordinate_systems;
};

struct ManufacturingContent {
  std::optional<ModelLink> assembly;
};

using ModelContent =
    std::variant<SolidContent, DrawingContent, ManufacturingContent, FormatContent>;

struct Model {
  Model() : Model(ModelName{}) {}
  // With the content of its kind, empty.
  explicit Model(ModelName name);

  ModelName id;
  std::string note;  // free text of the model file, kept through a save
  ItemList<Parameter> parameters;
  // How its window shows it: its axes on the screen times the view's scale, and the shift.
  Placement view = kStandardView;
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
