// Basic types of the host's C interface: statuses, names, handles, model items and their numbers.
// Sizes are pinned below; every text is 16-bit wide unless its type is char.
#pragma once

typedef enum {
  PRO_TK_NO_ERROR = 0,
  PRO_TK_GENERAL_ERROR = -1,
  PRO_TK_BAD_INPUTS = -2,
  PRO_TK_USER_ABORT = -3,
  PRO_TK_E_NOT_FOUND = -4,
  PRO_TK_E_FOUND = -5,
  PRO_TK_LINE_TOO_LONG = -6,
  PRO_TK_CONTINUE = -7,
  PRO_TK_BAD_CONTEXT = -8,
  PRO_TK_NOT_IMPLEMENTED = -9,
  PRO_TK_OUT_OF_MEMORY = -10,
  PRO_TK_COMM_ERROR = -11,
  PRO_TK_NO_CHANGE = -12,
  PRO_TK_INVALID_DIR = -15,
  PRO_TK_INVALID_FILE = -16,
  PRO_TK_CANT_WRITE = -17,
  PRO_TK_INVALID_TYPE = -18,
  PRO_TK_INVALID_PTR = -19,
  PRO_TK_INVALID_NAME = -22,
  PRO_TK_CANT_OPEN = -24,
  PRO_TK_NOT_VALID = -26,
  PRO_TK_INVALID_ITEM = -27,
  PRO_TK_MSG_NOT_FOUND = -28,
  PRO_TK_MSG_NO_TRANS = -29,
  PRO_TK_MSG_FMT_ERROR = -30,
  PRO_TK_MSG_USER_QUIT = -31,
  PRO_TK_MSG_TOO_LONG = -32,
  PRO_TK_CANT_ACCESS = -33,
  PRO_TK_E_IN_USE = -39,
} ProErrors;
typedef ProErrors ProError;

typedef enum { PRO_B_FALSE = 0, PRO_B_TRUE = 1 } ProBooleans;
typedef ProBooleans ProBoolean;
typedef ProBooleans ProBool;

// Fixed text sizes, in characters with the closing zero.
#define PRO_NAME_SIZE 32
#define PRO_TYPE_SIZE 4
#define PRO_LINE_SIZE 81
#define PRO_PATH_SIZE 260
#define PRO_FILE_NAME_SIZE 80
#define PRO_MAX_ASSEM_LEVEL 25
#define PRO_VALUE_UNUSED (-1)

typedef wchar_t ProName[PRO_NAME_SIZE];
typedef wchar_t ProFamilyName[PRO_NAME_SIZE];
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

// Item types; the model types among them are also the values of ProMdlType.
typedef enum {
  PRO_TYPE_INVALID = -2,
  PRO_TYPE_UNUSED = -1,
  PRO_ASSEMBLY = 1,
  PRO_PART = 2,
  PRO_FEATURE = 3,
  PRO_DRAWING = 4,
  PRO_SURFACE = 5,
  PRO_EDGE = 6,
  PRO_MFG = 37,
} ProType;

typedef enum {
  PRO_MDL_UNUSED = PRO_TYPE_UNUSED,
  PRO_MDL_ASSEMBLY = PRO_ASSEMBLY,
  PRO_MDL_PART = PRO_PART,
  PRO_MDL_DRAWING = PRO_DRAWING,
  PRO_MDL_MFG = PRO_MFG,
} ProMdlType;

// Model subtypes used here.
typedef enum {
  PROMDLSTYPE_NONE = 0,
  PROMDLSTYPE_PART_SOLID = 3,
  PROMDLSTYPE_PART_SHEETMETAL = 4,
} ProMdlsubtype;

typedef struct pro_model_item {
  ProType type;
  int id;
  ProMdl owner;
} ProModelitem, ProGeomitem, ProFeature, ProAsmcomp;

static_assert(sizeof(wchar_t) == 2, "host texts are 16-bit");
static_assert(sizeof(ProError) == 4 && sizeof(ProBoolean) == 4 && sizeof(ProType) == 4);
static_assert(sizeof(ProModelitem) == 16, "type, id, owner on x64");
static_assert(sizeof(ProName) == 64 && sizeof(ProLine) == 162 && sizeof(ProPath) == 520);
