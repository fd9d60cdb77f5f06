// The user of the benchmark: adds one parameter in the dialog of QmParams, loads and exports bills
// in the dialog of QmBom, answers what the other commands ask, and nothing else.
#pragma once

#include <functional>
#include <map>

#include "workbench/bench/bench_parts.h"
#include "workbench/host/user.h"

namespace wb {

// One press of a button, as it was seen from outside.
struct BenchPress {
  long calls = 0;
  long parameters = 0;  // looked up
  double seconds = 0;
  double table_seconds = 0;  // of these, inside the functions of the host's tables
  long long heap_bytes = 0;  // the plug-in's peak; 0 unless it was to be watched
};

// The material and the bend table that are picked, in the working directory.
inline constexpr char kBenchMaterial[] = "bench.mtl";
inline constexpr char kBenchBendTable[] = "bench.bnd";

// Every question that a benchmark does not expect throws std::runtime_error.
class BenchUser : public User {
 public:
  void WorkDialog(LiveDialog& dialog) override;
  std::optional<std::vector<PickedItem>> Pick(const PickRequest& request) override;
  std::optional<std::string> ChooseFile(const FileRequest& request) override;
  std::optional<std::string> AnswerPrompt(const std::string& prompt, int max_length) override;
  int AnswerMessageBox(const MessageBox& box) override;

  // The heap of this HMODULE is watched during each press, which takes time; null: no longer.
  void WatchHeapOf(void* module) { watched_ = module; }
  // The unit system that the latest press has asked for.
  const std::string& units() const { return units_; }
  // The latest press of a part.
  const BenchPress& press(BenchPart part) const { return presses_.at(part); }

 private:
  void AddParameter(LiveDialog& dialog);
  void ListForRenaming(LiveDialog& dialog);
  void WorkBills(LiveDialog& dialog);
  void AddRelations(LiveDialog& dialog);
  void SetUnits(LiveDialog& dialog);
  void Take(BenchPart part, const std::function<void()>& press);

  void* watched_ = nullptr;
  std::string units_;
  std::map<BenchPart, BenchPress> presses_;
};

}  // namespace wb
