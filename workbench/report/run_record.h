// What happened in one run, as the report shows it: plain data, filled while the script runs and
// read once at the end. Nothing in it depends on the clock, so two runs give the same report.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "workbench/scene/scene.h"
#include "workbench/session/user_requests.h"
#include "workbench/sheet/sheet_picture.h"

namespace wb {

enum class TreeIcon { kAssembly, kPart, kSheetMetal, kSkeleton, kDrawing, kManufacturing };

// One row of a model tree. Rows stand in the order of the tree, a parent before its components.
struct TreeRow {
  int depth = 0;  // 0: the model itself
  int id = 0;     // of the component in its parent; tells rows before and after apart
  std::string name;
  TreeIcon icon = TreeIcon::kPart;
  bool hidden = false;
  bool suppressed = false;
  bool missing = false;  // the component's model is not in session
  bool operator==(const TreeRow&) const = default;
};

struct ModelTree {
  std::vector<TreeRow> rows;
  std::uint64_t left_out = 0;  // rows beyond those kept
  bool operator==(const ModelTree&) const = default;
};

// A parameter or other fact that a command added (no value before), deleted (no value after) or
// set.
struct ValueChange {
  std::string model;
  std::string name;
  std::optional<std::string> before;
  std::optional<std::string> after;
};

// A feature whose state changed: "component bolt.prt (12)" of "pump.asm", "shown" to "hidden".
struct StateChange {
  std::string model;
  std::string item;
  std::string before;
  std::string after;
};

struct DrawingPicture {
  std::string name;
  std::string shows;  // the solid drawn; empty: none
  std::vector<SheetPicture> sheets;
  std::vector<SheetPicture> before{};  // the command; none: the drawing was not there
  bool operator==(const DrawingPicture&) const = default;
};

struct ShownDialog {
  std::string name;
  std::string before;   // the user's deed that follows, as the script writes it
  std::string html;     // as DrawDialog gives it
  std::string trouble;  // "nobody answered it"; empty: none
};

struct ShownBox {
  MessageBox box;
  int pressed = 0;  // id of the button the user pressed
};

// A prompt, file choice or pick.
struct Question {
  std::string kind;  // "prompt", "file", "pick"
  std::string asked;
  std::optional<std::string> answer;  // no value: the user cancelled
};

struct WrittenFile {
  std::string path;
  std::string what;     // "new", "changed", "deleted"
  std::string link;     // to its copy, from the page's folder; empty: there is none
  std::string no_copy;  // why, where there should be one
};

// A workbook among the files written, as it was when the command ended.
struct WorkbookPicture {
  std::string path;
  std::string html;  // as DrawWorkbookFile gives it
};

// What the plug-in had Windows start or open.
struct OpenedProgram {
  std::string program;
  std::string parameters;
};

struct CallCount {
  std::string function;
  long calls = 0;
};

enum class Outcome {
  kDone,
  kFailed,        // the action ran and gave a failing status
  kNotAvailable,  // the access rule greyed or withheld the command
  kUnknown,       // no such command
};

struct CommandRecord {
  std::string name;   // "QmIsolate"
  std::string label;  // of its menu entry; empty: it has none
  std::string file;   // of the script, with the line that ran the command
  int line = 0;
  Outcome outcome = Outcome::kDone;
  std::string status;  // in words, such as "PRO_TK_NO_ERROR"; may be empty

  std::vector<ShownDialog> dialogs;  // each as the user last saw it
  std::vector<ShownBox> boxes;
  std::vector<std::string> notes;  // of the message area
  std::vector<Question> questions;

  ModelTree tree_before;  // of the current model; no rows: there was none
  ModelTree tree_after;
  // Of the current model. Where it looks as before the command, that stands in `scene_before` alone
  // or, where it has been shown in the page already, nowhere.
  Scene scene_before;
  Scene scene_after;
  std::vector<StateChange> states;
  std::vector<ValueChange> parameters;
  std::vector<ValueChange> facts;        // other than states and parameters
  std::vector<DrawingPicture> drawings;  // the current one, and those that changed

  std::vector<WrittenFile> files;
  std::vector<WorkbookPicture> workbooks;
  std::vector<OpenedProgram> programs;
  std::optional<std::string> clipboard;  // what was put into it; no value: nothing was
  std::vector<CallCount> calls;
};

struct RunFailure {
  std::string file;  // with `line`: the statement at fault
  int line = 0;      // 0: none
  std::string text;
  int command = -1;  // index into `commands` of the one at work; -1: none
};

struct RunRecord {
  std::string script;
  // What a reader wants to know of the run, in order: {"Plug-in", "quillmax.dll"}.
  std::vector<std::pair<std::string, std::string>> facts;
  std::vector<CommandRecord> commands;
  std::vector<RunFailure> failures;
  int passed = 0;  // as the closing line of the run counts
  int failed = 0;
};

}  // namespace wb
