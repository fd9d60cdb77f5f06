// Opens, reads and writes relation sets.
#include "params/relation_set.h"

#include <algorithm>

#include "frame/messages/run_log.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

struct KindRow {
  std::string_view button;
  RelationKind kind;
};
constexpr KindRow kKinds[] = {
    {"init", RelationKind::kOrdinary},
    {"after", RelationKind::kPostRegeneration},
};

// A success that fills nothing in is a failure. Where in the record the host writes is not certain.
bool IsFilled(const ProRelset& set) {
  const char* const bytes = reinterpret_cast<const char*>(&set);
  return std::any_of(bytes, bytes + sizeof(set), [](char byte) { return byte != 0; });
}

std::optional<ProRelset> Opened(const ModelTarget& target, const char* function, ProError status,
                                const ProRelset& set) {
  if (Ok(status) && IsFilled(set)) return set;
  LogFailure(target.name, function, status);
  return std::nullopt;
}

// How one question for the lines ended.
struct ReadAnswer {
  std::optional<RelationLines> lines;  // nothing: not known
  ProError status;
};

ReadAnswer AskLines(ProRelset* set) {
  TextArray texts;
  const ProError status = ProRelsetRelationsGet(set, texts.put());
  if (status == PRO_TK_E_NOT_FOUND) return {RelationLines(), status};
  if (!Ok(status)) return {std::nullopt, status};
  if (!texts) return {RelationLines(), status};
  int size = -1;
  const ProError counted = ProArraySizeGet(texts.get(), &size);
  if (!Ok(counted) || size < 0) return {std::nullopt, counted};
  RelationLines lines;
  for (int i = 0; i < size; ++i) {
    if (texts.get()[i] == nullptr) return {std::nullopt, PRO_TK_INVALID_PTR};
    lines.emplace_back(texts.get()[i]);
  }
  return {std::move(lines), status};
}

}  // namespace

std::optional<RelationKind> RelationKindOf(std::string_view button) {
  for (const KindRow& row : kKinds) {
    if (row.button == button) return row.kind;
  }
  return std::nullopt;
}

std::optional<ProRelset> OpenRelations(const ModelTarget& target, RelationKind kind) {
  ProRelset set = {};
  if (kind == RelationKind::kPostRegeneration) {
    const ProError status = ProRelsetPostregenerationInit(target.model, &set);
    return Opened(target, "ProRelsetPostregenerationInit", status, set);
  }
  ProModelitem owner = target.owner;
  // No line in the log: most models have no relations.
  const bool is_open = Ok(ProModelitemToRelset(&owner, &set)) && IsFilled(set);
  return is_open ? std::optional(set) : std::nullopt;
}

std::optional<ProRelset> CreateRelations(const ModelTarget& target) {
  ProRelset set = {};
  ProModelitem owner = target.owner;
  const ProError status = ProRelsetCreate(&owner, &set);
  return Opened(target, "ProRelsetCreate", status, set);
}

std::optional<RelationLines> ReadRelations(const ModelTarget& target, ProRelset* set) {
  ReadAnswer answer = AskLines(set);
  // A success with nothing may also be one that has filled nothing in, and lines would be lost: it
  // counts when it comes twice.
  if (Ok(answer.status) && answer.lines && answer.lines->empty()) answer = AskLines(set);
  if (!answer.lines) LogFailure(target.name, "ProRelsetRelationsGet", answer.status);
  return std::move(answer.lines);
}

bool WriteRelations(const ModelTarget& target, ProRelset* set, RelationLines lines) {
  HostArray<wchar_t*> texts;
  std::vector<wchar_t*> places;
  for (std::wstring& line : lines) places.push_back(line.data());
  const ProError status = texts.Assign(places);
  if (!Ok(status)) {
    LogFailure(target.name, "ProArrayObjectAdd", status);
    return false;
  }
  const ProError written = ProRelsetRelationsSet(set, texts.get(), static_cast<int>(places.size()));
  if (!Ok(written)) LogFailure(target.name, "ProRelsetRelationsSet", written);
  return Ok(written);
}

}  // namespace qm
