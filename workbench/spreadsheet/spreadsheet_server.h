// The spreadsheet program that the plug-in drives by automation: answers "Excel.Application" inside
// this process with the published members that the plug-in uses, and with nothing else. Calls are
// counted and traced like crossings into the host, as "Excel.Range.Merge"; a property that is put
// is written "Excel.Range.Value2=".
#pragma once

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "workbench/host/automation.h"
#include "workbench/workbook/spreadsheet_model.h"

namespace wb {

class AutomationObject;
struct Host;

// How the program behaves. Counts run from the moment the orders were given.
struct SpreadsheetOrders {
  bool missing = false;          // not installed
  int busy = 0;                  // this many calls to come are rejected, to be tried again
  long busy_after = 0;           // but not before this many calls have been taken
  int slow_ms = 0;               // taken by every call
  long fail_at = 0;              // the n-th call fails; 0: none
  std::string fail_member = {};  // only calls of this member count ("Range.Merge"); empty: of any
  bool fail_silently = false;    // by a bare result instead of an exception that explains itself
  long die_at = 0;               // the program is gone at the n-th call; 0: it lives
};

struct OpenWorkbook {
  Workbook book;
  bool saved = true;              // closing it asks nothing
  bool closing_failed = false;    // an order or fault kept the plug-in from closing it
  bool closing_rejected = false;  // it was busy when it was to be closed
  bool open = true;
};

// One started program.
struct SpreadsheetProgram {
  std::vector<std::shared_ptr<OpenWorkbook>> workbooks;
  std::shared_ptr<OpenWorkbook> active;
  long started_by = 0;  // number of the call
  bool running = true;
  bool told = false;  // as left behind, or excused
  bool died = false;
  bool quit_failed = false;    // an order or fault kept the plug-in from ending it
  bool quit_rejected = false;  // it was busy when it was to end
};

class SpreadsheetServer final : public AutomationProgram {
 public:
  // Is the host's program while it lives; `host` outlives it.
  explicit SpreadsheetServer(Host& host);
  ~SpreadsheetServer() override;
  SpreadsheetServer(const SpreadsheetServer&) = delete;
  SpreadsheetServer& operator=(const SpreadsheetServer&) = delete;

  void Order(SpreadsheetOrders orders);
  const SpreadsheetOrders& orders() const { return orders_; }
  Host& host() const { return host_; }

  // A class of another program than "Excel.Application" is not registered.
  long ClassOf(const std::string& program, void* class_id) override;
  long Start(const void* class_id, const void* interface_id, void** object) override;
  // Programs that still run, objects that the plug-in still holds.
  std::vector<std::string> Settle(long after) override;
  // Ends the programs that would not end.
  void EndAll();
  // No program runs, for whatever reason, and nobody holds an object.
  bool Gone() const;

  // --- For the objects themselves.
  enum class Refusal { kNone, kRejected, kRetryLater, kInterrupted, kDead, kException, kSilent };
  // Whether the orders refuse this call of `member`.
  Refusal Meet(const char* member, SpreadsheetProgram& program);
  std::shared_ptr<SpreadsheetProgram> StartProgram(long call);
  void Add(AutomationObject* object) { objects_.insert(object); }
  void Remove(AutomationObject* object) { objects_.erase(object); }

 private:
  Host& host_;
  SpreadsheetOrders orders_;
  long calls_ = 0;         // since the orders
  long member_calls_ = 0;  // of those, the ones that count towards fail_at
  std::vector<std::shared_ptr<SpreadsheetProgram>> programs_;
  std::set<AutomationObject*> objects_;
};

// Every call of the object model begins with this in traces and fault plans.
inline constexpr std::string_view kSpreadsheetPrefix = "Excel.";

}  // namespace wb
