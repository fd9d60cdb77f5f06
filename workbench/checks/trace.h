// The record of every crossing between plug-in and host: counted always, written out on demand.
#pragma once

#include <chrono>
#include <string>
#include <unordered_map>
#include <vector>

namespace wb {

struct Crossed {
  long call = 0;
  int depth = 0;  // crossings this one happened inside of
  std::string function;
  std::string arguments;
  int status = 0;
};

class Trace {
 public:
  bool keep_lines = false;

  // Starts a crossing and gives its number.
  long Enter(const char* function) {
    ++calls_;
    const auto [tally, fresh] = tallies_.try_emplace(function);
    if (fresh) tally->second.first = {calls_, std::chrono::steady_clock::now()};
    ++tally->second.count;
    last_ = function;
    ++depth_;
    return calls_;
  }
  void Leave(long call, const char* function, std::string arguments, int status);
  void LeaveQuietly() { --depth_; }

  long calls() const { return calls_; }
  // Without those that reach Windows or the spreadsheet program: how often the run log is written
  // rests on the length of its lines.
  long HostCalls() const;
  // The function of the latest crossing; for crash reports.
  const char* last() const { return last_; }
  long Count(const std::string& function) const;
  // The first call of `function`; number 0: not called.
  struct FirstCall {
    long call = 0;
    std::chrono::steady_clock::time_point time;
  };
  FirstCall First(const std::string& function) const;
  // By function name, summed over call sites.
  std::unordered_map<std::string, long> Counts() const;
  const std::vector<Crossed>& lines() const { return lines_; }
  // Begins the count of a new command.
  void Restart();

 private:
  long calls_ = 0;
  int depth_ = 0;
  const char* last_ = "none";
  // Keyed by the address of the name: hashing text for every crossing would cost more than the
  // call.
  struct Tally {
    long count = 0;
    FirstCall first;
  };
  std::unordered_map<const char*, Tally> tallies_;
  std::vector<Crossed> lines_;
};

}  // namespace wb
