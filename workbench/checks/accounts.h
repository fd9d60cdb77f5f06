// Accounts of everything handed to the plug-in that it must give back.
#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace wb {

enum class Resource {
  kArray,
  kSelection,
  kSelectionEnv,
  kConstraint,
  kElement,
  kValue,
  kStringArray,
  kNarrowText,
  kWideText,
  kWideTextArray,
  kGeometryData,
  kDialog,
  kExportData,
  kPdfOptions,
  kBrepRepresentation,
  kRepData,
};
const char* ResourceWord(Resource resource);

struct Account {
  Resource resource;
  const char* function;  // the call that handed it out
  long call = 0;         // its number within the command
  bool excused = false;  // may be left out
};

class Accounts {
 public:
  void Give(const void* what, Resource resource, const char* function, long call);
  // Empty when `what` is out as `resource`; otherwise what is wrong with giving it back or using
  // it.
  std::string Check(const void* what, Resource resource) const;
  void Take(const void* what);
  // A fault kept the plug-in from giving this back: it is not held against it.
  void Forgive(const void* what) { open_.erase(what); }
  // A fault may keep the plug-in from giving this back: it may, but need not.
  void Excuse(const void* what);
  void MoveTo(const void* from, const void* to);

  const std::unordered_map<const void*, Account>& open() const { return open_; }
  // What was handed out after call number `after`, one line each in order of hand-out: "array from
  // ProArrayAlloc (call 12)".
  std::vector<std::string> Describe(long after = 0) const;
  void Clear() { open_.clear(), ended_.clear(); }

 private:
  std::unordered_map<const void*, Account> open_;
  std::unordered_set<const void*> ended_;
};

}  // namespace wb
