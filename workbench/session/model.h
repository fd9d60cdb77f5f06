// A model of the workbench's session: what its file holds, plus what only a session knows.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

namespace wb {

// Values are the host's model type numbers.
enum class ModelKind { kAssembly = 1, kPart = 2, kDrawing = 4, kManufacturing = 37 };

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
inline constexpr size_t kMaxNameLength = 31;

// A model named apart from any session: "bolt.prt".
struct ModelName {
  std::string name;
  ModelKind kind = ModelKind::kPart;
  std::string Text() const { return name + "." + KindExtension(kind); }
};
// "bolt.prt" -> name and kind; no value when the extension is unknown or missing.
std::optional<ModelName> ParseModelName(std::string_view text);

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
  kActive = 0,
  kInactive = 1,
  kFamilyTableSuppressed = 2,
  kSimplifiedRepSuppressed = 3,
  kProgramSuppressed = 4,
  kSuppressed = 5,
  kUnregenerated = 6,
};
const char* FeatureStatusWord(FeatureStatus status);
std::optional<FeatureStatus> FeatureStatusFromWord(std::string_view word);

inline constexpr int kComponentFeatureType = 1000;

struct Model;

struct Feature {
  int id = 0;
  int type = kComponentFeatureType;
  FeatureStatus status = FeatureStatus::kActive;
  bool visible = true;
  int status_flags = 0;
  bool hidden = false;
  // Of component features only:
  Model* model = nullptr;  // null: not found in session
  ModelName component;
  Placement placement = kIdentityPlacement;
  bool IsComponent() const { return type == kComponentFeatureType; }
};

struct Sheet {
  std::string size = "A4";
  double scale = 1.0;
};

struct Model {
  ModelName id;
  void* handle = nullptr;
  bool sheet_metal = false;
  bool skeleton = false;
  std::string note;  // free text of the model file, kept through a save
  std::vector<Feature> features;
  std::vector<Parameter> parameters;
  std::vector<Box> surfaces;
  std::vector<Sheet> sheets;              // drawings
  std::optional<ModelName> drawing_of;    // drawings: the solid shown
  std::optional<ModelName> mfg_assembly;  // manufacturing models
  Model* mfg_assembly_model = nullptr;

  std::filesystem::path folder;
  int version = 0;
  bool modified = false;

  Feature* FindFeature(int feature_id);
  Parameter* FindParameter(std::string_view name);
  // Adds or replaces; keeps the order of first definition.
  void SetParameter(const std::string& name, ParameterValue value);
  bool DeleteParameter(std::string_view name);
  int NextFeatureId() const;
  // Call after `features` or `parameters` changed other than through the members above.
  void Reindex();

 private:
  std::unordered_map<int, size_t> feature_index_;
  std::unordered_map<std::string, size_t> parameter_index_;
};

}  // namespace wb
