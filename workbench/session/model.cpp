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

ModelContent ContentOf(ModelKind kind) {
  switch (kind) {
    case ModelKind::kDrawing:
      return DrawingContent();
    case ModelKind::kManufacturing:
      return ManufacturingContent();
    case ModelKind::kFormat:
      return FormatContent();
    default:
      return SolidContent();
  }
}

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

Feature NewComponent(int id, ModelName model, const Placement& placement) {
  Feature feature;
  feature.id = id;
  feature.component = ComponentPart{{std::move(model), nullptr}, placement};
  return feature;
}

Model::Model(ModelName name) : id(std::move(name)), content(ContentOf(id.kind)) {}

Feature* Model::FindFeature(int feature_id) {
  SolidContent* const solid_content = As<SolidContent>();
  return solid_content == nullptr ? nullptr : solid_content->features.Find(feature_id);
}

const Feature* Model::FindFeature(int feature_id) const {
  return const_cast<Model*>(this)->FindFeature(feature_id);
}

Parameter* Model::FindParameter(std::string_view name) {
  return parameters.Find(FoldCase(name));
}

void Model::SetParameter(const std::string& name, ParameterValue value) {
  modified = true;
  if (Parameter* const existing = FindParameter(name)) {
    existing->value = std::move(value);
  } else {
    parameters.Add({name, std::move(value)});
  }
}

bool Model::DeleteParameter(std::string_view name) {
  if (!parameters.Remove(FoldCase(name))) return false;
  modified = true;
  return true;
}

const ItemList<Feature>& FeaturesOf(const Model& model) {
  static const ItemList<Feature> kNone;
  const SolidContent* const solid_content = model.As<SolidContent>();
  return solid_content == nullptr ? kNone : solid_content->features;
}

const Model& ShownSolid(const Model& model) {
  const ManufacturingContent* const manufacturing = model.As<ManufacturingContent>();
  const bool has_one = manufacturing != nullptr && manufacturing->assembly &&
                       manufacturing->assembly->model != nullptr;
  return has_one ? *manufacturing->assembly->model : model;
}

void ForEachLink(Model& model, const std::function<void(ModelLink&)>& use) {
  if (SolidContent* const solid_content = model.As<SolidContent>()) {
    for (Feature& feature : solid_content->features) {
      if (feature.component) use(feature.component->link);
    }
    if (solid_content->generic) use(*solid_content->generic);
  } else if (DrawingContent* const drawing = model.As<DrawingContent>()) {
    if (drawing->shows) use(*drawing->shows);
    for (DrawnModel& drawn : drawing->models) use(drawn.link);
    for (DrawingView& view : drawing->views) {
      if (view.shows) use(*view.shows);
    }
  } else if (ManufacturingContent* const manufacturing = model.As<ManufacturingContent>()) {
    if (manufacturing->assembly) use(*manufacturing->assembly);
  }
}

}  // namespace wb
