// QmMdlCount: counts the occurrences, asks which models are instances of family tables, and writes
// the counts. All is counted and asked before anything is written.
#include "assembly/components/mdl_count.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "assembly/components/instance_cell.h"
#include "assembly/components/mdl_count_rules.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/handle_index.h"
#include "frame/models/model_name.h"
#include "frame/models/opening.h"
#include "frame/models/parameters.h"
#include "frame/settings/config.h"
#include "frame/text/list_rules.h"
#include "toolkit/parameter.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr wchar_t kNoComponents[] = L"当前模型中没有合适的子零件/组件";
constexpr wchar_t kDone[] = L"\t元件数量统计已完成\t";
constexpr wchar_t kDefaultName[] = L"数量";
// Above one instance; beyond that the host goes round in a ring.
constexpr int kMostGenerics = 100;

// What the user has set.
struct CountWishes {
  std::wstring parameter;
  InstanceCounts instances;
};

struct ModelCount {
  ProMdl model;
  int count;
  ProMdl generic;  // of an instance whose count goes into its own cell; else null
  int depth = 0;   // so many generics stand above it; of instances with cells of their own alone
};

// Counts by model, in the order in which the models are first met.
class Tally {
 public:
  void Add(ProMdl model, int count, ProMdl generic = nullptr, int depth = 0) {
    const auto [number, is_new] = numbers_.Insert(model);
    if (is_new) counts_.push_back({model, 0, generic, depth});
    counts_[number].count += count;
  }
  // What a table gives its instances is there before those that are generics are looked at.
  void OuterFirst() { std::ranges::stable_sort(counts_, {}, &ModelCount::depth); }
  const std::vector<ModelCount>& counts() const { return counts_; }

 private:
  HandleIndex numbers_;
  std::vector<ModelCount> counts_;
};

// Nothing when they cannot be read: counts would go where nobody wants them.
std::optional<CountWishes> AskWishes() {
  const std::wstring path = ConfigPath(kConfigFile);
  const auto name = TryReadSetting(L"QmMdlCountName", kContentKey, path);
  const auto instances = TryReadSetting(L"QmCountForInstance", kValueKey, path);
  if (!name || !instances) return std::nullopt;
  const std::wstring parameter = WithoutBlanks(*name);
  return CountWishes{parameter.empty() ? kDefaultName : parameter,
                     InstanceCountsBy(WithoutBlanks(*instances))};
}

Tally Occurrences(const ComponentList& components) {
  Tally tally;
  for (int i = 0; i < components.size(); ++i) {
    if (components.model(i) != nullptr) tally.Add(components.model(i), 1);
  }
  return tally;
}

// The generic that counts for an instance; null for a model that is none. Nothing, after a line in
// the log, when the host does not tell.
std::optional<ProMdl> GenericOf(ProMdl model, InstanceCounts instances) {
  const bool sums = instances == InstanceCounts::kIntoGeneric;
  ProMdl generic = nullptr;
  // A table's cells are those of the instances right below its generic.
  const ProError status =
      ProFaminstanceGenericGet(model, sums ? PRO_B_FALSE : PRO_B_TRUE, &generic);
  if (status == PRO_TK_E_NOT_FOUND) return ProMdl{nullptr};
  if (Ok(status) && generic != nullptr) return generic;
  LogFailure(model, "ProFaminstanceGenericGet", status);
  return std::nullopt;
}

// How many generics stand above an instance, of which `generic` is the nearest. Nothing, after a
// line in the log, when the host does not tell.
std::optional<int> DepthBelow(ProMdl generic) {
  for (int depth = 1; depth <= kMostGenerics; ++depth) {
    const auto above = GenericOf(generic, InstanceCounts::kOwnCells);
    if (!above) return std::nullopt;
    if (*above == nullptr) return depth;
    generic = *above;
  }
  LogFailure(generic, "ProFaminstanceGenericGet, again and again,", PRO_TK_GENERAL_ERROR);
  return std::nullopt;
}

// False when it is not known whether its generic is an instance itself.
bool AddInstance(const ModelCount& counted, ProMdl generic, Tally* plan) {
  const auto depth = DepthBelow(generic);
  if (depth) plan->Add(counted.model, counted.count, generic, *depth);
  return depth.has_value();
}

// What is to be written; a model of which it is not known whether it is an instance is left out.
Tally Plan(const Tally& occurrences, InstanceCounts instances, long long* left_out) {
  Tally plan;
  for (const ModelCount& counted : occurrences.counts()) {
    const auto generic = GenericOf(counted.model, instances);
    if (!generic) {
      ++*left_out;
    } else if (*generic == nullptr) {
      plan.Add(counted.model, counted.count);
    } else if (instances == InstanceCounts::kIntoGeneric) {
      plan.Add(*generic, counted.count);
    } else if (!AddInstance(counted, *generic, &plan)) {
      ++*left_out;
    }
  }
  plan.OuterFirst();
  return plan;
}

constexpr ParameterResult kLoggedAlready = {nullptr, PRO_TK_GENERAL_ERROR};

// In the type that the parameter has; a new one is a whole number.
ParameterResult WriteParameter(ProMdl model, HostName& name, int count) {
  ProModelitem owner{};
  const ProError status = ProMdlToModelitem(model, &owner);
  if (!Ok(status) || owner.owner == nullptr) {
    return {"ProMdlToModelitem", Ok(status) ? PRO_TK_GENERAL_ERROR : status};
  }
  const ReadValue held = ReadParameter(owner, name);
  if (!held.is_known) return kLoggedAlready;
  if (!held.value) return CreateParameter(owner, name, *HostValue(ParamValue(count)));
  const auto value = CountAs(held.value->type, count);
  if (!value) return {"a parameter that is neither number nor text", PRO_TK_INVALID_TYPE};
  return SetParameter(owner, name, *HostValue(*value));
}

bool Write(const ModelCount& counted, HostName& name) {
  if (counted.generic != nullptr) {
    const auto instance = ModelName(counted.model);
    return instance &&
           WriteInstanceCount({counted.generic, counted.depth > 1, *instance, counted.count}, name);
  }
  const auto [function, status] = WriteParameter(counted.model, name, counted.count);
  if (!Ok(status) && function != nullptr) LogFailure(counted.model, function, status);
  return Ok(status);
}

}  // namespace

ProError QmMdlCount() {
  const auto wishes = AskWishes();
  if (!wishes) {
    LogOutcome("nothing counted, the settings cannot be read");
    return PRO_TK_CANT_ACCESS;
  }
  auto name = HostName::From(wishes->parameter);
  if (!name) {
    LogOutcome("nothing counted, the parameter's name is too long");
    return PRO_TK_LINE_TOO_LONG;
  }
  Opening opening = OpenCurrentAssembly(ComponentsOf(ComponentKind::kAll), kNoComponents);
  if (opening.components.empty()) return opening.status;
  const Tally plan = Plan(Occurrences(opening.components), wishes->instances, &opening.left_out);
  opening.components = ComponentList();
  long long written = 0;
  for (const ModelCount& counted : plan.counts()) {
    ++(Write(counted, *name) ? written : opening.left_out);
  }
  LogCount("models", static_cast<long long>(plan.counts().size()));
  LogCount("written", written);
  ShowMessage(kDone);
  NoteLeftOut(opening.left_out);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
