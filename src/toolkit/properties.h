// What models have besides shape: appearances, relations, units, materials and bend tables.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

// --- Appearances of models, surfaces and quilts.

// The order of the fields is likely, the size is not known: the reserve keeps a longer record
// inside our buffer. The texts are null in a record of our own and stay as read in any other.
typedef struct {
  double color_rgb[3];
  double ambient;
  double diffuse;
  double highlite;
  double shininess;
  double transparency;
  double highlight_color[3];
  double reflection;
  char* name;
  char* label;
  char* description;
  char* keywords;
  char reserve[128];
} ProSurfaceAppearanceProps;
static_assert(sizeof(ProSurfaceAppearanceProps) == 256);

// Zero the record before: for an item without an appearance of its own it may stay untouched.
PRO_FUNCTION(ProError, ProSurfaceAppearancepropsGet, ProModelitem* item,
             ProSurfaceAppearanceProps* properties);
// Null: back to the default. Repaints nothing.
PRO_FUNCTION(ProError, ProSurfaceAppearancepropsSet, ProModelitem* item,
             ProSurfaceAppearanceProps* properties);

// --- Relations of models: the ordinary set and the one that holds after a regeneration.

// A model item in itself; the size of the host's record is not certain, so the reserve keeps a
// longer one inside our buffer.
typedef struct {
  ProModelitem item;
  char reserve[64];
} ProRelset;

// Fails, with whatever status, for a model that has no such set yet.
PRO_FUNCTION(ProError, ProModelitemToRelset, ProModelitem* item, ProRelset* relset);
PRO_FUNCTION(ProError, ProRelsetCreate, ProModelitem* item, ProRelset* relset);
PRO_FUNCTION(ProError, ProRelsetPostregenerationInit, ProMdl model, ProRelset* relset);
// Lines as a ProArray that ProWstringproarrayFree frees; PRO_TK_E_NOT_FOUND, no array or an empty
// one when there are none.
PRO_FUNCTION(ProError, ProRelsetRelationsGet, ProRelset* relset, wchar_t*** lines);
// Replaces all lines; `lines` is a ProArray whose size is `count`. The texts are copied.
PRO_FUNCTION(ProError, ProRelsetRelationsSet, ProRelset* relset, wchar_t** lines, int count);

// --- Units and unit systems of models.

// Both stand in arrays, where a wrong size would break the step: every element's owner is the model
// that was asked, which tells.
typedef struct {
  ProMdl owner;
  ProName name;
} ProUnititem;
typedef struct {
  ProMdl owner;
  ProName name;
} ProUnitsystem;
static_assert(sizeof(ProUnititem) == 72 && sizeof(ProUnitsystem) == 72);

PRO_FUNCTION(ProError, ProUnitInit, ProMdl model, ProName name, ProUnititem* unit);
// Predefined ones and the model's own, as a ProArray that the caller frees.
PRO_FUNCTION(ProError, ProMdlUnitsystemsCollect, ProMdl model, ProUnitsystem** systems);
PRO_FUNCTION(ProError, ProUnitsystemTypeGet, ProUnitsystem* system, ProUnitsystemType* type);
// `units` is a ProArray of length, mass (or force), time and temperature.
PRO_FUNCTION(ProError, ProMdlUnitsystemCreate, ProMdl model, ProUnitsystemType type, ProName name,
             ProUnititem* units, ProUnitsystem* created);
PRO_FUNCTION(ProError, ProMdlPrincipalunitsystemGet, ProMdl model, ProUnitsystem* system);
// The system's unit for lengths, masses and so on.
PRO_FUNCTION(ProError, ProUnitsystemUnitGet, ProUnitsystem* system, ProUnitType type,
             ProUnititem* unit);
PRO_FUNCTION(ProError, ProMdlPrincipalunitsystemSet, ProMdl model, ProUnitsystem* system,
             ProUnitConvertType conversion, ProBoolean ignore_param_units, int regeneration_flags);

// --- Materials of parts, bend tables of sheet-metal parts, and the regeneration that follows.

// Filled by the caller.
typedef struct {
  ProName matl_name;
  ProPart part;
} ProMaterial;
static_assert(sizeof(ProMaterial) == 72);

// The file's name without folder and extension: looked for in the working directory first. Does not
// make the material the current one. PRO_TK_E_FOUND: the part has it already.
PRO_FUNCTION(ProError, ProMaterialfileRead, ProSolid part, ProName name);
PRO_FUNCTION(ProError, ProMaterialCurrentSet, ProMaterial* material);
// The name without extension, of a file in the folder that "pro_sheet_met_dir" names or in the
// working directory.
PRO_FUNCTION(ProError, ProSmtPartBendtableApply, ProPart part, ProName table, ProBoolean from_file);
PRO_FUNCTION(ProError, ProSolidRegenerate, ProSolid solid, int flags);
