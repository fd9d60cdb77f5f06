// The list of statements.
#include "workbench/language/script_grammar.h"

namespace wb {
namespace {

constexpr unsigned kT = kTopPlace;
constexpr unsigned kA = kAnswerPlace;
constexpr unsigned kD = kDialogPlace;

#define WB_STATE                                                             \
  "STATE:active|inactive|family_table_suppressed|simplified_rep_suppressed|" \
  "program_suppressed|suppressed|unregenerated"

// clang-format off
constexpr StatementForm kForms[] = {
    // Folders, files and the installation.
    {"folder_temp",       "folder temp", kT},
    {"folder_copy",       "folder copy PATH", kT},
    {"folder",            "folder PATH", kT},
    {"make_folder",       "make_folder PATH", kT},
    {"write",             "write PATH TEXT [ansi]", kT},
    {"install_as",        "install as NAME", kT},
    {"plugin_as",         "plugin as NAME", kT},
    {"require_code_page", "require code_page N", kT},

    // Models.
    {"part",              "part NAME {[sheet_metal] [skeleton]}", kT},
    {"assembly",          "assembly NAME", kT},
    {"manufacturing",     "manufacturing NAME [of MODEL]", kT},
    {"drawing",           "drawing NAME [of MODEL] size SIZE...", kT},
    {"component",         "component MODEL <- COMPONENT {[id ID] [" WB_STATE "] [invisible] "
                          "[flags FLAGS] [hidden] [missing] [at X Y Z] [times TIMES]}", kT},
    {"feature",           "feature MODEL type FEATURE_TYPE {[id ID] [" WB_STATE "] [invisible] "
                          "[flags FLAGS] [hidden]}", kT},
    {"parameter_real",    "parameter MODEL NAME real NUMBER", kT | kD},
    {"parameter_integer", "parameter MODEL NAME integer INTEGER", kT | kD},
    {"parameter_string",  "parameter MODEL NAME string TEXT", kT | kD},
    {"parameter_yes_no",  "parameter MODEL NAME yes_no FLAG:yes|no", kT | kD},
    {"parameter_missing", "parameter MODEL NAME missing", kT | kD},
    {"surface",           "surface MODEL X Y Z X2 Y2 Z2", kT},
    {"bulk",              "bulk SHAPE:flat|tree|chain|single|half|repeated|pool TIMES", kT},
    {"import",            "import PATH", kT},
    {"retrieve",          "retrieve MODEL", kT},
    {"open",              "open MODEL", kT},
    {"activate",          "activate MODEL", kT | kD},
    {"close_window",      "close window", kT | kD},
    {"erase",             "erase MODEL", kT | kD},
    {"save_all",          "save all", kT},
    {"save",              "save MODEL [in PATH]", kT},

    // What the user has chosen and set.
    {"select_none",       "select none", kT},
    {"select_item",       "select [also] item ITEM ID of MODEL [at PATH]", kT},
    {"select",            "select [also] PATH...", kT},
    {"option_none",       "option NAME none", kT},
    {"option",            "option NAME TEXT...", kT},
    {"setting_missing",   "setting FILE SECTION KEY missing", kT},
    {"setting",           "setting FILE SECTION KEY TEXT", kT},
    {"config_folder",     "config_folder missing", kT},
    {"config_file",       "config_file FILE missing", kT},
    {"mode",              "mode MODE", kT},
    {"language",          "language LANGUAGE:chinese|english", kT},
    {"clipboard",         "clipboard text TEXT", kT},
    {"clipboard_busy",    "clipboard STATE:busy|free", kT},

    // The plug-in's life and its commands.
    {"start",             "start", kT},
    {"stop",              "stop", kT},
    {"timers",            "timers", kT},
    {"popup",             "popup NAME", kT},
    {"run_with",          "run COMMAND with", kT | kD, kA},
    {"run",               "run COMMAND", kT | kD},
    {"sweep_with",        "sweep COMMAND with", kT, kA},
    {"sweep",             "sweep COMMAND", kT},
    {"fault_none",        "fault none", kT},
    {"fault_empty",       "fault FUNCTION NTH empty [from_then_on]", kT},
    {"fault",             "fault FUNCTION NTH status STATUS [from_then_on]", kT},
    {"withhold",          "withhold FUNCTION...", kT},
    {"trace",             "trace STATE:on|off", kT},

    // How the spreadsheet program behaves from now on.
    {"excel_ready",       "excel ready", kT},
    {"excel_missing",     "excel missing", kT},
    {"excel_busy",        "excel busy N", kT},
    {"excel_slow",        "excel slow N", kT},
    {"excel_fail",        "excel fail call NTH {[of MEMBER] [silently]}", kT},
    {"excel_dies",        "excel dies at NTH", kT},

    // The user's answers.
    {"dialog",            "dialog NAME", kA | kD, kD},
    {"message_while",     "message KIND:caption|plain|warning TEXT [answer BUTTON:ok|cancel|yes|no] while", kA | kD, kD},
    {"message",           "message KIND:caption|plain|warning TEXT [answer BUTTON:ok|cancel|yes|no]", kA | kD},
    {"pick_cancel",       "pick cancel", kA | kD},
    {"pick_item",         "pick item ITEM ID of MODEL [at PATH]", kA | kD},
    {"pick",              "pick PATH...", kA | kD},
    {"file_cancel",       "file cancel {[title TITLE] [filter FILTER] [folder FOLDER]}", kA | kD},
    {"file",              "file PATH {[title TITLE] [filter FILTER] [folder FOLDER]}", kA | kD},
    {"prompt_cancel",     "prompt cancel [asks PROMPT]", kA | kD},
    {"prompt",            "prompt TEXT [asks PROMPT]", kA | kD},

    // What the user does in the middle of an action that shows nothing.
    {"at_call",           "at call NTH of FUNCTION", kA | kD, kD},

    // The user's deeds in a dialog.
    {"set",               "set COMPONENT TEXT", kD},
    {"choose",            "choose COMPONENT ITEM_NAME...", kD},
    {"check",             "check COMPONENT", kD},
    {"uncheck",           "uncheck COMPONENT", kD},
    {"rows",              "rows COMPONENT ROW...", kD},
    {"double_click",      "double_click COMPONENT ROW", kD},
    {"focus",             "focus COMPONENT ROW COLUMN", kD},
    {"press",             "press COMPONENT", kD},
    {"close",             "close", kD},

    // What a dialog shows.
    {"expect_title",      "expect title TEXT", kD},
    {"expect_field",      "expect field COMPONENT TEXT", kD},
    {"expect_choice_none","expect choice COMPONENT none", kD},
    {"expect_choice",     "expect choice COMPONENT ITEM_NAME...", kD},
    {"expect_items",      "expect items COMPONENT ITEM_NAME...", kD},
    {"expect_check",      "expect STATE:checked|unchecked COMPONENT", kD},
    {"expect_enabled",    "expect STATE:enabled|disabled COMPONENT", kD},
    {"expect_visible",    "expect STATE:visible|invisible COMPONENT", kD},
    {"expect_label",      "expect label COMPONENT TEXT", kD},
    {"expect_cell",       "expect cell COMPONENT ROW COLUMN TEXT", kD},
    {"expect_rows_none",  "expect rows COMPONENT none", kD},
    {"expect_rows",       "expect rows COMPONENT ROW...", kD},
    {"expect_columns",    "expect columns COMPONENT COLUMN...", kD},
    {"expect_labels",     "expect labels COMPONENT TEXT...", kD},
    {"expect_colour_none","expect colour COMPONENT ROW COLUMN none", kD},
    {"expect_colour",     "expect colour COMPONENT ROW COLUMN N", kD},

    // What the last action showed and asked of Windows.
    {"expect_note",       "expect note TEXT", kT | kD},
    {"expect_notes",      "expect notes TEXT...", kT | kD},
    {"expect_no_note",    "expect no note", kT | kD},
    {"expect_message",    "expect message KIND:caption|plain|warning TEXT", kT | kD},
    {"expect_no_message", "expect no message", kT | kD},
    {"expect_shell",      "expect shell PROGRAM PARAMETERS", kT | kD},
    {"expect_no_shell",   "expect no shell", kT | kD},
    {"expect_winexec",    "expect winexec TEXT", kT | kD},
    {"expect_clipboard",  "expect clipboard TEXT", kT | kD},
    {"expect_timer",      "expect timer N", kT},
    {"expect_no_timer",   "expect no timer", kT},

    // Models and session.
    {"expect_parameter_missing", "expect parameter MODEL NAME is missing", kT | kD},
    {"expect_parameter_real",    "expect parameter MODEL NAME is real NUMBER", kT | kD},
    {"expect_parameter_integer", "expect parameter MODEL NAME is integer INTEGER", kT | kD},
    {"expect_parameter_string",  "expect parameter MODEL NAME is string TEXT", kT | kD},
    {"expect_parameter_yes_no",  "expect parameter MODEL NAME is yes_no FLAG:yes|no", kT | kD},
    {"expect_parameters",        "expect parameters MODEL N", kT | kD},
    {"expect_feature",           "expect feature MODEL ID STATE:hidden|shown", kT | kD},
    {"expect_hidden",            "expect STATE:hidden|shown PATH...", kT | kD},
    {"expect_modified",          "expect STATE:modified|unmodified MODEL...", kT | kD},
    {"expect_session",           "expect STATE:in_session|not_in_session MODEL...", kT | kD},
    {"expect_directory",         "expect directory PATH", kT | kD},
    {"expect_window_none",       "expect window none", kT | kD},
    {"expect_window",            "expect window MODEL", kT | kD},
    {"expect_selection_none",    "expect selection none", kT | kD},
    {"expect_selection_item",    "expect selection item ITEM ID of MODEL", kT | kD},
    {"expect_selection",         "expect selection PATH...", kT | kD},
    {"expect_repaint",           "expect repaint", kT | kD},
    {"expect_no_repaint",        "expect no repaint", kT | kD},
    {"expect_refresh",           "expect refresh MODEL", kT | kD},

    // Files, settings and the run log.
    {"expect_no_file",         "expect no file PATH", kT | kD},
    {"expect_file_is",         "expect file PATH is TEXT [ansi]", kT | kD},
    {"expect_file_contains",   "expect file PATH contains TEXT", kT | kD},
    {"expect_file",            "expect file PATH", kT | kD},
    {"expect_setting_missing", "expect setting FILE SECTION KEY is missing", kT | kD},
    {"expect_setting",         "expect setting FILE SECTION KEY is TEXT", kT | kD},
    {"expect_log",             "expect log STATE:contains|lacks TEXT", kT},

    // Calls of the last action.
    {"expect_calls_none",    "expect calls FUNCTION none", kT | kD},
    {"expect_calls_at_most", "expect calls FUNCTION at most N", kT | kD},
    {"expect_calls",         "expect calls FUNCTION N", kT | kD},
    {"expect_call",          "expect call FUNCTION with TEXT", kT | kD},
    {"expect_order",         "expect order FUNCTION...", kT | kD},
    {"expect_environment",   "expect selection_environment TEXT", kT | kD},
    {"expect_status",        "expect status STATUS", kT},
    {"expect_faults",        "expect faults N", kT},

    // The spreadsheet program, and the first sheets of workbooks.
    {"expect_excel_calls",       "expect excel calls N", kT | kD},
    {"expect_excel_order",       "expect excel order MEMBER...", kT | kD},
    {"expect_excel_gone",        "expect excel gone", kT | kD},
    {"expect_sheet_number",      "expect workbook PATH cell CELL is number NUMBER", kT | kD},
    {"expect_sheet_empty",       "expect workbook PATH cell CELL is empty", kT | kD},
    {"expect_sheet_cell",        "expect workbook PATH cell CELL is TEXT", kT | kD},
    {"expect_sheet_format",      "expect workbook PATH cell CELL format TEXT", kT | kD},
    {"expect_sheet_size",        "expect workbook PATH cell CELL size NUMBER", kT | kD},
    {"expect_sheet_fill_none",   "expect workbook PATH cell CELL fill none", kT | kD},
    {"expect_sheet_fill_rgb",    "expect workbook PATH cell CELL fill rgb COLOR", kT | kD},
    {"expect_sheet_fill_index",  "expect workbook PATH cell CELL fill index N", kT | kD},
    {"expect_sheet_style",       "expect workbook PATH cell CELL STATE:bold|not_bold|centred|not_centred", kT | kD},
    {"expect_sheet_merged_none", "expect workbook PATH merged none", kT | kD},
    {"expect_sheet_merged",      "expect workbook PATH merged AREA...", kT | kD},
    {"expect_sheet_used",        "expect workbook PATH used AREA", kT | kD},
    {"expect_sheet_row",         "expect workbook PATH row NTH is TEXT...", kT | kD},

    // What the plug-in has registered.
    {"expect_access",        "expect access COMMAND is STATE:available|unavailable", kT},
    {"expect_popup_none",    "expect popup none", kT},
    {"expect_popup_missing", "expect popup button NAME missing", kT},
    {"expect_popup_button",  "expect popup button NAME label TEXT STATE:available|not_available|unavailable|not_offered", kT},
    {"expect_popup_order",   "expect popup order NAME...", kT},
    {"expect_registered",    "expect command NAME STATE:registered|missing", kT},
    {"expect_registrations", "expect command NAME registrations N", kT},
    {"expect_priority",      "expect command NAME priority N", kT},
    {"expect_designated",    "expect command NAME STATE:designated|not_designated", kT},
    {"expect_icon",          "expect command NAME icon FILE", kT},
    {"expect_help_key",      "expect command NAME help_key TEXT", kT},
    {"expect_command_label", "expect command NAME label TEXT", kT},
    {"expect_command_help",  "expect command NAME help TEXT", kT},
    {"expect_menu_label",    "expect menu NAME label TEXT", kT},
    {"expect_menu_after",    "expect menu NAME after OTHER", kT},
    {"expect_menu_missing",  "expect menu NAME missing", kT},
    {"expect_menu_count",    "expect menu NAME buttons N", kT},
    {"expect_menu_button",   "expect menu NAME button NTH is COMMAND", kT},
    {"expect_notification",  "expect notification popup_create STATE:registered|missing", kT},
};
// clang-format on

#undef WB_STATE

}  // namespace

std::span<const StatementForm> StatementForms() {
  return kForms;
}

}  // namespace wb
