// Names of models, links between them, and where things are placed.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "toolkit/numbers.h"

namespace wb {

// Values are the host's model type numbers.
enum class ModelKind {
  kAssembly = PRO_MDL_ASSEMBLY,
  kPart = PRO_MDL_PART,
  kDrawing = PRO_MDL_DRAWING,
  kManufacturing = PRO_MDL_MFG,
  kFormat = PRO_MDL_DWGFORM,
};

struct ModelKindRow {
  ModelKind kind;
  const char* word;       // in scripts and model files
  const char* extension;  // of model files, without the dot
};
inline constexpr ModelKindRow kKindNames[] = {
    {ModelKind::kAssembly, "assembly", "asm"}, {ModelKind::kPart, "part", "prt"},
    {ModelKind::kDrawing, "drawing", "drw"},   {ModelKind::kManufacturing, "manufacturing", "mfg"},
    {ModelKind::kFormat, "format", "frm"},
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

// The view in which a window opens: seen from above at a corner, at half size.
inline constexpr Placement kStandardView = {
    {{0.35355339059327379, -0.20412414523193151, 0.28867513459481287, 0},
     {0, 0.40824829046386302, 0.28867513459481287, 0},
     {-0.35355339059327379, -0.20412414523193151, 0.28867513459481287, 0},
     {100, 50, 0, 1}}};

}  // namespace wb
