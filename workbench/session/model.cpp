// Names and look-ups of session models.
#include "workbench/session/model.h"

#include <algorithm>

#include "workbench/base/text.h"

namespace wb {
namespace {

const ModelKindRow* FindKind(auto&& matches) {
  const auto found = std::find_if(std::begin(kKindNames), std::end(kKindNames), matches);
  return found == std::end(kKindNames) ? nullptr : found;
}

struct StatusWord {
  FeatureStatus status;
  const char* word;
};
constexpr StatusWord kStatusWords[] = {
    {FeatureStatus::kActive, "active"},
    {FeatureStatus::kInactive, "inactive"},
    {FeatureStatus::kFamilyTableSuppressed, "family_table_suppressed"},
    {FeatureStatus::kSimplifiedRepSuppressed, "simplified_rep_suppressed"},
    {FeatureStatus::kProgramSuppressed, "program_suppressed"},
    {FeatureStatus::kSuppressed, "suppressed"},
    {FeatureStatus::kUnregenerated, "unregenerated"},
};

}  // namespace

const char* KindWord(ModelKind kind) {
  const ModelKindRow* row = FindKind([&](const ModelKindRow& k) { return k.kind == kind; });
  return row == nullptr ? "unknown" : row->word;
}

const char* KindExtension(ModelKind kind) {
  const ModelKindRow* row = FindKind([&](const ModelKindRow& k) { return k.kind == kind; });
  return row == nullptr ? "unknown" : row->extension;
}

std::optional<ModelKind> KindFromWord(std::string_view word) {
  const ModelKindRow* row = FindKind([&](const ModelKindRow& k) { return word == k.word; });
  return row == nullptr ? std::nullopt : std::optional(row->kind);
}

std::optional<ModelKind> KindFromExtension(std::string_view extension) {
  const ModelKindRow* row =
      FindKind([&](const ModelKindRow& k) { return EqualFolded(extension, k.extension); });
  return row == nullptr ? std::nullopt : std::optional(row->kind);
}

std::optional<ModelName> ParseModelName(std::string_view text) {
  const size_t dot = text.rfind('.');
  if (dot == std::string_view::npos || dot == 0) return std::nullopt;
  const auto kind = KindFromExtension(text.substr(dot + 1));
  if (!kind) return std::nullopt;
  return ModelName{std::string(text.substr(0, dot)), *kind};
}

const char* ParameterTypeWord(const ParameterValue& value) {
  constexpr const char* kWords[] = {"real", "string", "integer", "yes_no"};
  return kWords[value.index()];
}

std::string ParameterText(const ParameterValue& value) {
  if (const auto* real = std::get_if<double>(&value)) return NumberText(*real);
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* whole = std::get_if<int>(&value)) return std::to_string(*whole);
  return std::get<bool>(value) ? "yes" : "no";
}

const char* FeatureStatusWord(FeatureStatus status) {
  for (const StatusWord& row : kStatusWords) {
    if (row.status == status) return row.word;
  }
  return "unknown";
}

std::optional<FeatureStatus> FeatureStatusFromWord(std::string_view word) {
  for (const StatusWord& row : kStatusWords) {
    if (word == row.word) return row.status;
  }
  return std::nullopt;
}

Feature* Model::FindFeature(int feature_id) {
  // Features are mostly numbered without a gap; the index would cost more than the call it serves.
  if (!features.empty() && feature_id >= features.front().id) {
    const auto place = static_cast<size_t>(feature_id) - static_cast<size_t>(features.front().id);
    if (place < features.size() && features[place].id == feature_id) return &features[place];
  }
  const auto found = feature_index_.find(feature_id);
  return found == feature_index_.end() ? nullptr : &features[found->second];
}

Parameter* Model::FindParameter(std::string_view name) {
  const auto found = parameter_index_.find(FoldCase(name));
  return found == parameter_index_.end() ? nullptr : &parameters[found->second];
}

void Model::SetParameter(const std::string& name, ParameterValue value) {
  modified = true;
  if (Parameter* existing = FindParameter(name)) {
    existing->value = std::move(value);
    return;
  }
  parameter_index_[FoldCase(name)] = parameters.size();
  parameters.push_back({name, std::move(value)});
}

bool Model::DeleteParameter(std::string_view name) {
  const auto found = parameter_index_.find(FoldCase(name));
  if (found == parameter_index_.end()) return false;
  parameters.erase(parameters.begin() + static_cast<std::ptrdiff_t>(found->second));
  modified = true;
  Reindex();
  return true;
}

int Model::NextFeatureId() const {
  int highest = 0;
  for (const Feature& feature : features) highest = std::max(highest, feature.id);
  return highest + 1;
}

void Model::Reindex() {
  feature_index_.clear();
  parameter_index_.clear();
  for (size_t i = 0; i < features.size(); ++i) feature_index_.emplace(features[i].id, i);
  for (size_t i = 0; i < parameters.size(); ++i) {
    parameter_index_.emplace(FoldCase(parameters[i].name), i);
  }
}

}  // namespace wb
