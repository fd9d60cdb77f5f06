// Basic types of the host's C interface: names, handles, model items.
// Sizes are pinned below; every text is 16-bit wide unless its type is char.
#pragma once

#include "toolkit/numbers.h"

typedef wchar_t ProName[PRO_NAME_SIZE];
typedef wchar_t ProFamilyName[PRO_FAMILY_NAME_SIZE];
typedef wchar_t ProMdlExtension[PRO_TYPE_SIZE];
typedef wchar_t ProLine[PRO_LINE_SIZE];
typedef wchar_t ProPath[PRO_PATH_SIZE];
typedef wchar_t ProFileName[PRO_FILE_NAME_SIZE];
typedef char ProMenuName[PRO_NAME_SIZE];
typedef char ProMenuItemName[PRO_NAME_SIZE];
typedef double Pro3dPnt[3];
typedef double ProVector[3];
typedef double ProMatrix[4][4];
typedef double ProUvParam[2];

typedef void* ProArray;
typedef void* ProAppData;
typedef void* ProMdl;
typedef ProMdl ProSolid;
typedef ProMdl ProPart;
typedef ProMdl ProAssembly;
typedef ProMdl ProMfg;
typedef ProMdl ProDrawing;

typedef struct pro_model_item {
  ProType type;
  int id;
  ProMdl owner;
} ProModelitem, ProGeomitem, ProFeature, ProAsmcomp;

static_assert(sizeof(wchar_t) == 2, "host texts are 16-bit");
static_assert(sizeof(ProError) == 4 && sizeof(ProBoolean) == 4 && sizeof(ProType) == 4);
static_assert(sizeof(ProModelitem) == 16, "type, id, owner on x64");
static_assert(sizeof(ProName) == 64 && sizeof(ProLine) == 162 && sizeof(ProPath) == 520);
