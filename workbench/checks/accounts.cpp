// Keeps the accounts of handed-out resources.
#include "workbench/checks/accounts.h"

#include <algorithm>

namespace wb {

namespace {

struct ResourceRow {
  Resource resource;
  const char* word;
};
constexpr ResourceRow kResources[] = {
    {Resource::kArray, "array"},
    {Resource::kSelection, "selection"},
    {Resource::kSelectionEnv, "selection environment"},
    {Resource::kConstraint, "constraint"},
    {Resource::kElement, "element"},
    {Resource::kValue, "value"},
    {Resource::kStringArray, "string array"},
    {Resource::kNarrowText, "narrow text"},
    {Resource::kWideText, "wide text"},
    {Resource::kWideTextArray, "wide text array"},
    {Resource::kGeometryData, "geometry data"},
    {Resource::kDialog, "dialog"},
    {Resource::kExportData, "export data"},
    {Resource::kPdfOptions, "PDF options"},
    {Resource::kBrepRepresentation, "boundary representation"},
    {Resource::kRepData, "data of a simplified representation"},
};

}  // namespace

const char* ResourceWord(Resource resource) {
  for (const ResourceRow& row : kResources) {
    if (row.resource == resource) return row.word;
  }
  return "unknown thing";
}

void Accounts::Give(const void* what, Resource resource, const char* function, long call) {
  open_[what] = {resource, function, call};
  ended_.erase(what);
}

std::string Accounts::Check(const void* what, Resource resource) const {
  const std::string word = ResourceWord(resource);
  if (what == nullptr) return "null " + word;
  const auto found = open_.find(what);
  if (found == open_.end()) {
    return ended_.contains(what) ? word + " used after it was freed" : "foreign pointer as " + word;
  }
  if (found->second.resource != resource) {
    return std::string(ResourceWord(found->second.resource)) + " given as " + word;
  }
  return "";
}

void Accounts::Take(const void* what) {
  open_.erase(what);
  ended_.insert(what);
}

void Accounts::Excuse(const void* what) {
  const auto found = open_.find(what);
  if (found != open_.end()) found->second.excused = true;
}

void Accounts::MoveTo(const void* from, const void* to) {
  if (from == to) return;
  const auto found = open_.find(from);
  if (found == open_.end()) return;
  const Account account = found->second;
  Take(from);
  open_[to] = account;
  ended_.erase(to);
}

std::vector<std::string> Accounts::Describe(long after) const {
  std::vector<Account> accounts;
  for (const auto& [what, account] : open_) {
    if (account.call > after && !account.excused) accounts.push_back(account);
  }
  std::sort(accounts.begin(), accounts.end(),
            [](const Account& a, const Account& b) { return a.call < b.call; });
  std::vector<std::string> lines;
  for (const Account& account : accounts) {
    lines.push_back(std::string(ResourceWord(account.resource)) + " from " + account.function +
                    " (call " + std::to_string(account.call) + ")");
  }
  return lines;
}

}  // namespace wb
