// Works the dialogs the way a user does.
#include "workbench/bench/bench_user.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>

#include "workbench/base/text.h"
#include "workbench/bench/bench_heap.h"
#include "workbench/bench/bench_walk.h"
#include "workbench/host/family_clock.h"
#include "workbench/host/host.h"

namespace wb {
namespace {

constexpr char kCentimetres[] = "Centimeter Gram Second (CGS)";
constexpr char kMillimetres[] = "millimeter Kilogram Sec (mmKs)";

constexpr char kBillTable[] = "bom_list";
constexpr char kRenameTable[] = "mdl_list";
// The spreadsheet program is kept away, so that an export ends when its table has been read.
constexpr char kNoSpreadsheet[] = "创建Excel失败";
// What the commands say when they are done.
constexpr std::string_view kDone[] = {
    "\tSTEP导出已完成\t",          "\t批量关系创建操作已完成\t",
    "\t模型批量单位设置完成\t",    "\t材料设置完成\t",
    "\t元件数量统计已完成\t",      "\t\t所有带约束元件均已更改为固定约束！\t\t",
    "\t钣金件批量折弯表设置完成\t"};
// How the answer of QmBox begins.
constexpr std::string_view kMeasured = "\t尺寸：";

void Require(const UserOutcome& outcome) {
  if (!outcome.Done()) throw std::runtime_error(outcome.refusal);
}

void Fire(LiveDialog& dialog, const char* component, const char* event) {
  if (!dialog.Fire(component, event)) {
    throw std::runtime_error(std::string("nothing is bound to ") + component);
  }
}

void Press(LiveDialog& dialog, const char* button) {
  Require(dialog.state.UserPress(button));
  Fire(dialog, button, kActivateEvent);
}

void FillIn(Dialog& dialog) {
  Require(dialog.UserSelect("TypeRadio", {"AsmAndPart"}));
  Require(dialog.UserSetField("ParaName", kBenchParameter));
  Require(dialog.UserSetField("ParaValue", "1"));
  Require(dialog.UserSelect("PtypeOption", {"整数"}));
  Require(dialog.UserSetField("InputKeyWords", ""));
}

void RequireRows(LiveDialog& dialog, const char* name) {
  TableModel* table = nullptr;
  const UiStatus status = dialog.state.Find(FieldKind::kTable, name, &table);
  if (status != UiStatus::kOk || table->Rows().empty()) {
    throw std::runtime_error(std::string(name) + " has no rows");
  }
}

long ParametersLookedUp() {
  const auto counts = TheHost().trace.Counts();
  const auto found = counts.find("ProParameterInit");
  return found == counts.end() ? 0 : found->second;
}

[[noreturn]] void Unexpected(const std::string& question) {
  throw std::runtime_error("unexpected question: " + question);
}

}  // namespace

void BenchUser::Take(BenchPart part, const std::function<void()>& press) {
  std::optional<HeapWatch> watch;
  if (watched_ != nullptr) watch.emplace(watched_);
  const Trace& trace = TheHost().trace;
  const long calls_before = trace.HostCalls();
  const long parameters_before = ParametersLookedUp();
  TheFamilyClock() = {"ProUITable"};
  const auto start = std::chrono::steady_clock::now();
  press();
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  TheFamilyClock().family = nullptr;
  presses_[part] = {trace.HostCalls() - calls_before, ParametersLookedUp() - parameters_before,
                    seconds.count(), TheFamilyClock().spent.count(), watch ? watch->peak() : 0};
}

void BenchUser::AddParameter(LiveDialog& dialog) {
  FillIn(dialog.state);
  Take(BenchPart::kAddParameter, [&] { Press(dialog, "Add"); });
}

void BenchUser::WorkBills(LiveDialog& dialog) {
  Take(BenchPart::kSummaryBill, [&] { Press(dialog, "QmLoadBom"); });
  RequireRows(dialog, kBillTable);
  Take(BenchPart::kReadTable, [&] { Press(dialog, "QmExportBom"); });
  Require(dialog.state.UserSelect("BomRadio", {"LevelBom"}));
  Fire(dialog, "BomRadio", kSelectEvent);
  Require(dialog.state.UserSelect("LevelOption", {"99"}));
  Take(BenchPart::kLevelBill, [&] { Press(dialog, "QmLoadBom"); });
  RequireRows(dialog, kBillTable);
}

void BenchUser::ListForRenaming(LiveDialog& dialog) {
  Take(BenchPart::kRenameList, [&] { Press(dialog, "UpdateRenameIni"); });
  RequireRows(dialog, kRenameTable);
}

void BenchUser::AddRelations(LiveDialog& dialog) {
  Require(dialog.state.UserSelect("TypeRadio", {"AsmAndPart"}));
  Require(dialog.state.UserSetField("RelTxtarea", "qm_a=1\nqm_b=2"));
  Take(BenchPart::kAddRelations, [&] { Press(dialog, "AddRels"); });
}

void BenchUser::SetUnits(LiveDialog& dialog) {
  // In turn, so that lengths change each time.
  const bool are_centimetres = units_ == kCentimetres;
  units_ = are_centimetres ? kMillimetres : kCentimetres;
  Require(dialog.state.UserSelect("UnitRadio", {are_centimetres ? "mmKs" : "CGS"}));
  Take(BenchPart::kSetUnits, [&] { Press(dialog, "ApplyBt"); });
}

void BenchUser::WorkDialog(LiveDialog& dialog) {
  if (dialog.name == "QmBom") {
    WorkBills(dialog);
  } else if (dialog.name == "QmRename") {
    ListForRenaming(dialog);
  } else if (dialog.name == "Relations") {
    AddRelations(dialog);
  } else if (dialog.name == "SetUnit") {
    SetUnits(dialog);
  } else if (dialog.name == "QmRemoveCons") {
    Press(dialog, "OK");
  } else {
    AddParameter(dialog);
  }
  Fire(dialog, "", kCloseEvent);
}

std::optional<std::vector<PickedItem>> BenchUser::Pick(const PickRequest& request) {
  // Of the parts to merge: none.
  if (request.filter == "part") return std::nullopt;
  Unexpected("pick of " + request.filter);
}

std::optional<std::string> BenchUser::ChooseFile(const FileRequest& request) {
  const auto& folder = TheHost().session.working_directory();
  if (request.asked_by == "ProDirectoryChoose") return PathToUtf8(folder);
  const bool is_table = request.filter.find("bnd") != std::string::npos;
  if (request.asked_by == "ProFileOpen") {
    return PathToUtf8(folder / (is_table ? kBenchBendTable : kBenchMaterial));
  }
  if (request.asked_by != "GetSaveFileNameW") Unexpected("file for " + request.asked_by);
  return PathToUtf8(folder / "bench.xlsx");
}

std::optional<std::string> BenchUser::AnswerPrompt(const std::string& prompt, int) {
  // The name of a simplified representation is the one that is offered.
  if (prompt.find("简化表示") != std::string::npos) return std::string();
  Unexpected("prompt \"" + prompt + "\"");
}

int BenchUser::AnswerMessageBox(const MessageBox& box) {
  const bool is_known = box.text == kNoSpreadsheet || box.text.starts_with(kMeasured) ||
                        std::ranges::find(kDone, box.text) != std::end(kDone);
  if (!is_known) Unexpected("box \"" + box.text + "\"");
  return 1;  // OK
}

}  // namespace wb
