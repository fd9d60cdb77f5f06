// The user of a script: answers the plug-in with the statements of the running command's block, in
// their order. What is asked without an answer, and answers that nobody asks for, are failures.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "workbench/host/live_dialog.h"
#include "workbench/host/user.h"
#include "workbench/language/script_moments.h"
#include "workbench/language/script_parser.h"
#include "workbench/report/run_record.h"

namespace wb {

class ScriptRun;

class ScriptUser : public User {
 public:
  explicit ScriptUser(ScriptRun& run) : run_(run) {}

  // Answers from `answers` while `action` runs, which belongs to the statement `asked_at`.
  void Answering(const Statement& asked_at, const std::vector<Statement>& answers,
                 const std::function<void()>& action);

  void WorkDialog(LiveDialog& dialog) override;
  std::optional<std::vector<PickedItem>> Pick(const PickRequest& request) override;
  std::optional<std::string> ChooseFile(const FileRequest& request) override;
  std::optional<std::string> AnswerPrompt(const std::string& prompt, int max_length) override;
  bool LeavesMacro(const std::string& macro) override;
  std::optional<PlacementAnswer> PlaceComponent(const PlacementRequest& request) override;
  int AnswerMessageBox(const MessageBox& box) override;
  bool CallBegins(const char* function) override;

  // Carries out the block of an "at call" when its call comes.
  void Await(const Statement& statement) { moments_.Await(statement, levels_.size()); }

  // The innermost open dialog. Throws ScriptError when none is open.
  LiveDialog& dialog() const;
  // Fires what a deed of the user's sets off, after the picture for the report.
  void Fire(LiveDialog& dialog, const std::string& component, const std::string& event);

  // The tables of dialogs as they looked before each press and at the end.
  const std::vector<std::string>& shown() const { return shown_; }
  // What the user was asked for, apart from boxes: picks, files, texts.
  const std::vector<std::string>& asked() const { return asked_; }

  // Writes down in `record` what is shown and asked; null: no longer.
  void StartNoting(CommandRecord* record) { noting_ = record; }

 private:
  struct Level {
    const Statement* opened_at;
    const std::vector<Statement>* statements;
    bool of_answers = false;  // taken when asked for; otherwise deeds, done one after another
    size_t next = 0;
  };

  std::optional<std::vector<PickedItem>> AnswerPick(const PickRequest& request);
  std::optional<std::string> AnswerFile(const FileRequest& request);
  std::optional<std::string> AnswerText(const std::string& prompt, int max_length);
  std::optional<PlacementAnswer> AnswerPlacement(const PlacementRequest& request);
  void CheckBox(const Statement& answer, const MessageBox& box);
  int PressedButton(const MessageBox& box);

  const Statement& Place() const;
  std::string Deed() const;
  // The next statement when it begins with `word`, taken; null otherwise.
  const Statement* Take(const char* word);
  void Perform(const Statement& opened_at, const std::vector<Statement>& statements,
               const LiveDialog* dialog);
  void ExecuteGuarded(const Statement& statement);
  // Ends the innermost level, with what it left over.
  void EndLevel();
  void ReportUnused(const Level& level);
  void ReportMissed(const ScriptMoments::Missed& missed);
  void AwaitNext();
  void Unanswered(const std::string& what);
  void CloseForUser(LiveDialog& dialog);
  void KeepShown(const LiveDialog& dialog);
  void CheckFileRequest(const Statement& answer, const FileRequest& request);

  std::string HowToAnswer(const LiveDialog& dialog) const;
  void NoteDialog(const LiveDialog& dialog, const std::string& trouble = "");
  void NoteQuestion(const char* kind, const std::string& asked,
                    const std::optional<std::string>& answer);

  ScriptRun& run_;
  CommandRecord* noting_ = nullptr;
  std::vector<std::string> shown_;  // kept for sweeps only, like the next
  std::vector<std::string> asked_;
  std::vector<Level> levels_;
  ScriptMoments moments_;
  std::vector<LiveDialog*> dialogs_;
};

// The answers, and what the user does in the middle of an action that shows nothing.
StatementForms AnswerStatements();

// A message box by kind and text; the kinds are "caption", "plain" and "other".
std::string DescribeBox(const MessageBox& box);
bool BoxIs(const MessageBox& box, const std::string& kind, const std::string& text);

}  // namespace wb
