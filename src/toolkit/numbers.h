// The host's numbers: statuses, types, modes, sizes. Neither texts nor handles stand here, so that
// pure rules and native tools read the same numbers as the plug-in.
#pragma once

// Those from -60 on are likely rather than certain.
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
  PRO_TK_SUPP_PARENTS = -13,
  PRO_TK_PICK_ABOVE = -14,
  PRO_TK_INVALID_DIR = -15,
  PRO_TK_INVALID_FILE = -16,
  PRO_TK_CANT_WRITE = -17,
  PRO_TK_INVALID_TYPE = -18,
  PRO_TK_INVALID_PTR = -19,
  PRO_TK_UNAV_SEC = -20,
  PRO_TK_INVALID_MATRIX = -21,
  PRO_TK_INVALID_NAME = -22,
  PRO_TK_NOT_EXIST = -23,
  PRO_TK_CANT_OPEN = -24,
  PRO_TK_ABORT = -25,
  PRO_TK_NOT_VALID = -26,
  PRO_TK_INVALID_ITEM = -27,
  PRO_TK_MSG_NOT_FOUND = -28,
  PRO_TK_MSG_NO_TRANS = -29,
  PRO_TK_MSG_FMT_ERROR = -30,
  PRO_TK_MSG_USER_QUIT = -31,
  PRO_TK_MSG_TOO_LONG = -32,
  PRO_TK_CANT_ACCESS = -33,
  PRO_TK_OBSOLETE_FUNC = -34,
  PRO_TK_NO_COORD_SYSTEM = -35,
  PRO_TK_E_AMBIGUOUS = -36,
  PRO_TK_E_DEADLOCK = -37,
  PRO_TK_E_BUSY = -38,
  PRO_TK_E_IN_USE = -39,
  PRO_TK_NO_LICENSE = -40,
  PRO_TK_BSPL_UNSUITABLE_DEGREE = -41,
  PRO_TK_BSPL_NON_STD_END_KNOTS = -42,
  PRO_TK_BSPL_MULTI_INNER_KNOTS = -43,
  PRO_TK_BAD_SRF_CRV = -44,
  PRO_TK_EMPTY = -45,
  PRO_TK_BAD_DIM_ATTACH = -46,
  PRO_TK_NOT_DISPLAYED = -47,
  PRO_TK_CANT_MODIFY = -48,
  PRO_TK_CHECKOUT_CONFLICT = -49,
  PRO_TK_CRE_VIEW_BAD_SHEET = -50,
  PRO_TK_CRE_VIEW_BAD_MODEL = -51,
  PRO_TK_CRE_VIEW_BAD_PARENT = -52,
  PRO_TK_CRE_VIEW_BAD_TYPE = -53,
  PRO_TK_CRE_VIEW_BAD_EXPLODE = -54,
  PRO_TK_UNATTACHED_FEATS = -55,
  PRO_TK_REGEN_AGAIN = -56,
  PRO_TK_DWGCREATE_ERRORS = -57,
  PRO_TK_UNSUPPORTED = -58,
  PRO_TK_NO_PERMISSION = -59,
  PRO_TK_AUTHENTICATION_FAILURE = -60,
  PRO_TK_OUTDATED = -61,
  PRO_TK_INCOMPLETE = -62,
  PRO_TK_CHECK_OMITTED = -63,
  PRO_TK_MAX_LIMIT_REACHED = -64,
  PRO_TK_OUT_OF_RANGE = -65,
  PRO_TK_CHECK_LAST_ERROR = -66,
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
#define PRO_FAMILY_NAME_SIZE 66  // "instance<generic>"
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
  PRO_DIMENSION = 8,
  PRO_AXIS = 21,
  PRO_CSYS = 25,
  PRO_REF_DIMENSION = 28,
  PRO_DWGFORM = 33,
  PRO_MFG = 37,
  PRO_QUILT = 57,
  PRO_CURVE = 62,
  PRO_POINT = 66,
  PRO_NOTE = 68,
  PRO_EDGE_START = 71,
  PRO_EDGE_END = 72,
  PRO_DRAW_TABLE = 84,
  PRO_VIEW = 92,
  // Another one that a click on a component may give; its name is not known here.
  PRO_TYPE_176 = 176,
} ProType;

typedef enum {
  PRO_MDL_UNUSED = PRO_TYPE_UNUSED,
  PRO_MDL_ASSEMBLY = PRO_ASSEMBLY,
  PRO_MDL_PART = PRO_PART,
  PRO_MDL_DRAWING = PRO_DRAWING,
  PRO_MDL_DWGFORM = PRO_DWGFORM,
  PRO_MDL_MFG = PRO_MFG,
} ProMdlType;

// Of the subtypes of models only this one is known: compare with it and with nothing else.
typedef enum {
  PROMDLSTYPE_UNUSED = -1,
  PROMDLSTYPE_PART_SHEETMETAL = 4,
} ProMdlsubtype;

typedef int ProFeattype;
enum {
  PRO_FEAT_COMPONENT = 1000,
  // Further feature types that the show-all command accepts on the top level.
  PRO_FEAT_TOP_LEVEL_1104 = 1104,
  PRO_FEAT_TOP_LEVEL_1232 = 1232,
  // One part's geometry in another one.
  PRO_FEAT_MERGE = 1238,
};

// Certain are the first two, the order of the others is likely.
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

// Window id that stands for all windows in a repaint; the host likely takes it for the current one,
// which is the one that the user looks at.
inline constexpr int kAllWindows = -1;

// A popup menu is being created; the callback takes its name.
typedef int ProNotifyType;
inline constexpr ProNotifyType kNotifyPopupCreate = 72;

// The sheets of a drawing count from 1; this one stands for all of them.
inline constexpr int kFirstSheet = 1;
inline constexpr int kAllSheets = -1;

// Bits of how a drawing is made of a template; certain is the first.
enum {
  PRO_DWGCREATE_DISPLAY_DRAWING = 1,
  PRO_DWGCREATE_SHOW_ERRORS = 2,
  PRO_DWGCREATE_WRITE_ERRORS = 4,
};

// Certain is the first, the others are likely.
typedef enum {
  PRO_VIEW_GENERAL = 0,
  PRO_VIEW_PROJECTION = 1,
  PRO_VIEW_AUXILIARY = 2,
  PRO_VIEW_DETAIL = 3,
  PRO_VIEW_REVOLVE = 4,
  PRO_VIEW_COPY_AND_ALIGN = 5,
  PRO_VIEW_OF_FLAT_TYPE = 6,
} ProViewType;

// Certain are those of hidden and of no hidden lines.
typedef enum {
  PRO_DISPSTYLE_DEFAULT = 0,
  PRO_DISPSTYLE_WIREFRAME = 1,
  PRO_DISPSTYLE_HIDDEN_LINE = 2,
  PRO_DISPSTYLE_NO_HIDDEN = 3,
  PRO_DISPSTYLE_SHADED = 4,
} ProDisplayStyle;
// What a record of a view's display may hold as its style.
inline constexpr int kLastDisplayStyle = 6;

// How views made by the plug-in show tangent edges; the number is given, its name is not known.
inline constexpr int kTangentEdgesOfOurViews = 15;

// Screen axes. Whether the host counts them from 0 or from 1, and which way it turns, is not known.
typedef enum {
  PRO_X_ROTATION = 0,
  PRO_Y_ROTATION = 1,
  PRO_Z_ROTATION = 2,
} ProRotationAxis;

// Certain are the numbers 2 and 4, the names are likely.
typedef enum {
  PRO_TOL_DEFAULT = 0,
  PRO_TOL_LIMITS = 1,
  PRO_TOL_PLUS_MINUS = 2,
  PRO_TOL_PLUS_MINUS_SYM = 3,
  PRO_TOL_PLUS_MINUS_SYM_SUPER = 4,
} ProDimToleranceType;
inline constexpr int kNoToleranceTable = 0;

typedef enum {
  PRO_FILE_LIST_ALL = 0,
  PRO_FILE_LIST_LATEST = 1,
} ProFileListOpt;

// Files that the host writes of a model, by number.
typedef enum {
  PRO_DXF_FILE = 9,
  PRO_IGES_3D_FILE = 21,
  PRO_STEP_FILE = 22,
  PRO_DWG_FILE = 34,
} ProImportExportFile;

// How a 3D file of an assembly comes to be. The names are likely, and so are the numbers.
typedef enum {
  PRO_OUTPUT_ASSEMBLY_FLAT_FILE = 0,
  PRO_OUTPUT_ASSEMBLY_SINGLE_FILE = 1,
  PRO_OUTPUT_ASSEMBLY_MULTI_FILES = 2,
  PRO_OUTPUT_ASSEMBLY_PARTS = 3,
} ProOutputAssemblyConfiguration;

// Which sheets of a drawing a file shows. The number of the last is given: a chosen sheet.
typedef enum {
  PRO2DEXPORT_CURRENT_TO_MODEL_SPACE = 0,
  PRO2DEXPORT_CURRENT_TO_PAPER_SPACE = 1,
  PRO2DEXPORT_ALL = 2,
  PRO2DEXPORT_SELECTED = 3,
} Pro2dSheetoption;

// Options of PDF files, by number; the two flags take a ProBoolean, the others a number.
typedef enum {
  PRO_PDFOPT_FONT_STROKE = 0,
  PRO_PDFOPT_COLOR_DEPTH = 1,
  PRO_PDFOPT_LAUNCH_VIEWER = 5,
  PRO_PDFOPT_PENTABLE = 25,
  PRO_PDFOPT_SHEETS = 28,
} ProPDFOptiontype;
typedef enum { PRO_PDF_USE_TRUE_TYPE_FONTS = 0, PRO_PDF_STROKE_ALL_FONTS = 1 } ProPDFFontStrokeMode;
typedef enum { PRO_PDF_CD_COLOR = 0, PRO_PDF_CD_GRAY = 1, PRO_PDF_CD_MONO = 2 } ProPDFColorDepth;
typedef enum {
  PRO_PRINT_CURRENT_SHEET = 0,
  PRO_PRINT_ALL_SHEETS = 1,
  PRO_PRINT_SELECTED_SHEETS = 2
} ProPrintSheets;

// What a simplified representation does with a component. Both numbers are doubtful: were they
// exchanged, what is to be kept would be left out.
typedef enum {
  PRO_SIMPREP_INCLUDE = 1,
  PRO_SIMPREP_EXCLUDE = 2,
} ProSimprepActionType;
// An item of a representation that stands for a component; doubtful as well.
typedef enum {
  PRO_SIMPREP_COMPONENT_ITEM = 1,
} ProSimprepItemType;

// How many rows or columns of a table the user can select.
typedef enum {
  PROUISELPOLICY_SINGLE = 1,
  PROUISELPOLICY_BROWSE = 2,
  PROUISELPOLICY_MULTIPLE = 3,
  PROUISELPOLICY_EXTENDED = 4,
} ProUISelectionpolicy;

// What a change of a model's units keeps. The numbers are likely; were they exchanged, models would
// be scaled without a word.
typedef enum {
  PRO_UNITCONVERT_SAME_DIMS = 0,
  PRO_UNITCONVERT_SAME_SIZE = 1,
} ProUnitConvertType;
// Mass or force with length and time. The numbers are doubtful: ask a predefined system.
typedef enum {
  PRO_UNITSYSTEM_MLT = 0,
  PRO_UNITSYSTEM_FLT = 1,
} ProUnitsystemType;
// Kinds of units of a system. The number is doubtful: were it another one, sizes would be told in
// grams or seconds.
typedef enum {
  PRO_UNITTYPE_LENGTH = 0,
} ProUnitType;
// How a model regenerates after a change of its units; the number is given.
inline constexpr int kUnitRegenerationFlags = -1;
// A regeneration without any option.
inline constexpr int kPlainRegeneration = 0;

// Certain is the use of the first for coordinate systems and of the second for a fixed place.
typedef enum {
  PRO_ASM_UNDEFINED = -1,
  PRO_ASM_CSYS = 6,
  PRO_ASM_FIX = 13,
} ProAsmcompConstrType;
typedef enum {
  PRO_DATUM_SIDE_RED = -1,
  PRO_DATUM_SIDE_NONE = 0,
  PRO_DATUM_SIDE_YELLOW = 1,
} ProDatumside;

typedef enum {
  PRO_VALUE_TYPE_INT = 1,
  PRO_VALUE_TYPE_WSTRING = 5,
  PRO_VALUE_TYPE_SELECTION = 6,
} ProValueDataType;
typedef enum {
  PRO_FEAT_CR_NO_OPTS = 0,
} ProFeatureCreateOptions;
// Elements of any feature, and those of a merge feature, which are known by their numbers alone.
enum {
  PRO_E_FEATURE_TREE = 386,
  PRO_E_FEATURE_TYPE = 387,
  PRO_E_MERGE_605 = 605,
  PRO_E_MERGE_606 = 606,
  PRO_E_MERGE_607 = 607,
  PRO_E_FEATURE_NAME = 1964,
  PRO_E_MERGE_3386 = 3386,
  PRO_E_MERGE_3388 = 3388,
  PRO_E_MERGE_3389 = 3389,
  PRO_E_MERGE_SOURCE = 3390,
  PRO_E_MERGE_3391 = 3391,
};

// The record of a model's data (ProMdldata): the two orders of its texts that are known, each in
// characters from the start of the record.
struct ProMdldataOrder {
  int name;     // PRO_NAME_SIZE
  int type;     // PRO_TYPE_SIZE
  int host;     // PRO_NAME_SIZE
  int device;   // PRO_NAME_SIZE
  int path;     // PRO_PATH_SIZE
  int version;  // an int
};
inline constexpr ProMdldataOrder kModelDataNameLast = {324, 356, 0, 32, 64, 360};
inline constexpr ProMdldataOrder kModelDataNameFirst = {0, 32, 36, 68, 100, 360};
