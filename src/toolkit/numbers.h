// The host's numbers: statuses, types, modes, sizes. Neither texts nor handles stand here, so that
// pure rules and native tools read the same numbers as the plug-in.
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

typedef enum {
  PRO_B_FALSE = 0,
  PRO_B_TRUE = 1,
} ProBooleans;
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
  PRO_CSYS = 25,
  PRO_MFG = 37,
  PRO_POINT = 66,
  PRO_EDGE_START = 71,
  PRO_EDGE_END = 72,
  // Another one that a click on a component may give; its name is not known here.
  PRO_TYPE_176 = 176,
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

typedef int ProFeattype;
enum {
  PRO_FEAT_COMPONENT = 1000,
  // Further feature types that the show-all command accepts on the top level.
  PRO_FEAT_TOP_LEVEL_1104 = 1104,
  PRO_FEAT_TOP_LEVEL_1232 = 1232,
};

typedef enum {
  PRO_FEAT_INVALID = -1,
  PRO_FEAT_ACTIVE = 0,
  PRO_FEAT_INACTIVE = 1,
  PRO_FEAT_FAMTAB_SUPPRESSED = 2,
  PRO_FEAT_SIMP_REP_SUPPRESSED = 3,
  PRO_FEAT_PROG_SUPPRESSED = 4,
  PRO_FEAT_SUPPRESSED = 5,
  PRO_FEAT_UNREGENERATED = 6,
} ProFeatStatus;

typedef enum {
  PRO_PARAM_DOUBLE = 50,
  PRO_PARAM_STRING = 51,
  PRO_PARAM_INTEGER = 52,
  PRO_PARAM_BOOLEAN = 53,
  PRO_PARAM_NOTE_ID = 54,
  PRO_PARAM_VOID = 57,
} ProParamvalueType;

typedef enum {
  PRO_PARAM_OWNER_ITEM = 0,
} ProParamfrom;

typedef enum {
  PRO_SRF_NONE = 0,
  PRO_SRF_PLANE = 34,
  PRO_SRF_CYL = 36,
} ProSrftype;

typedef enum {
  PRO_SURF_ORIENT_IN = -1,
  PRO_SURF_ORIENT_NONE = 0,
  PRO_SURF_ORIENT_OUT = 1,
} ProSurfaceOrient;

// Options of a selection environment, by number.
typedef enum {
  PRO_SELECT_DONE_REQUIRED = 50,
  PRO_SELECT_BY_MENU_ALLOWED = 51,
  PRO_SELECT_BY_BOX_ALLOWED = 52,
} ProSelectionEnvAttr;

typedef enum {
  ACCESS_REMOVE = 0,
  ACCESS_UNAVAILABLE = 1,
  ACCESS_DISALLOW = 2,
  ACCESS_AVAILABLE = 3,
} uiCmdAccessState;

// Modes as the access rules compare them.
typedef enum {
  PRO_MODE_UNUSED = -1,
  PRO_MODE_PART_1 = 1,
  PRO_MODE_PART_2 = 2,
  PRO_MODE_ASSEMBLY = 5,
  PRO_MODE_DRAWING = 6,
  PRO_MODE_MFG = 8,
} ProMode;

// Window id that stands for all windows in a repaint.
inline constexpr int kAllWindows = -1;

// A popup menu is being created; the callback takes its name.
typedef int ProNotifyType;
inline constexpr ProNotifyType kNotifyPopupCreate = 72;
