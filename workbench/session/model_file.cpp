// Reads and writes model documents.
#include "workbench/session/model_file.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "workbench/base/text.h"

namespace wb {
namespace {

using Json = nlohmann::ordered_json;
constexpr int kFormat = 1;

// Wraps every complaint about one file, so that it names the file and the way out.
[[noreturn]] void Fail(const std::filesystem::path& file, const std::string& why) {
  throw ModelFileError(PathToUtf8(file) + ": " + why +
                       "; mend the file, or delete it and import or save the model again");
}

Json BoxJson(const Box& box) {
  return {{box.min[0], box.min[1], box.min[2]}, {box.max[0], box.max[1], box.max[2]}};
}

Json FeatureJson(const Feature& feature) {
  Json json;
  json["id"] = feature.id;
  json["type"] = feature.type;
  if (feature.IsComponent()) json["model"] = feature.component.Text();
  if (feature.status != FeatureStatus::kActive) json["status"] = FeatureStatusWord(feature.status);
  if (!feature.visible) json["visible"] = false;
  if (feature.status_flags != 0) json["flags"] = feature.status_flags;
  if (feature.hidden) json["hidden"] = true;
  if (feature.placement != kIdentityPlacement) json["placement"] = feature.placement;
  return json;
}

Json ParameterJson(const Parameter& parameter) {
  Json json;
  json["name"] = parameter.name;
  json["type"] = ParameterTypeWord(parameter.value);
  std::visit([&](const auto& value) { json["value"] = value; }, parameter.value);
  return json;
}

ParameterValue ParameterFromJson(const Json& json) {
  const std::string type = json.at("type");
  const Json& value = json.at("value");
  if (type == "real") return value.get<double>();
  if (type == "string") return value.get<std::string>();
  if (type == "integer") return value.get<int>();
  if (type == "yes_no") return value.get<bool>();
  throw std::runtime_error("unknown parameter type \"" + type +
                           "\" (real, string, integer and yes_no are known)");
}

ModelName NameFromJson(const Json& json) {
  const std::string text = json;
  const auto name = ParseModelName(text);
  if (!name) throw std::runtime_error("\"" + text + "\" is no model name such as \"bolt.prt\"");
  return *name;
}

Feature FeatureFromJson(const Json& json) {
  Feature feature;
  feature.id = json.at("id");
  feature.type = json.value("type", kComponentFeatureType);
  if (feature.IsComponent()) feature.component = NameFromJson(json.at("model"));
  const std::string status = json.value("status", "active");
  const auto known = FeatureStatusFromWord(status);
  if (!known) throw std::runtime_error("unknown feature status \"" + status + "\"");
  feature.status = *known;
  feature.visible = json.value("visible", true);
  feature.status_flags = json.value("flags", 0);
  feature.hidden = json.value("hidden", false);
  if (json.contains("placement")) feature.placement = json.at("placement").get<Placement>();
  return feature;
}

Box BoxFromJson(const Json& json) {
  return {json.at(0).get<Point>(), json.at(1).get<Point>()};
}

// Two features with one id would make every selection of it ambiguous.
void CheckUniqueIds(const Model& model) {
  std::unordered_map<int, int> seen;
  for (const Feature& feature : model.features) {
    if (++seen[feature.id] > 1) {
      throw std::runtime_error("feature id " + std::to_string(feature.id) + " occurs twice");
    }
  }
}

Model ModelFromJson(const Json& json) {
  if (json.at("format").get<int>() != kFormat) {
    throw std::runtime_error("unknown format number " + json.at("format").dump());
  }
  Model model;
  model.id = NameFromJson(json.at("model"));
  model.sheet_metal = json.value("sheet_metal", false);
  model.skeleton = json.value("skeleton", false);
  model.note = json.value("note", "");
  for (const Json& item : json.value("features", Json::array())) {
    model.features.push_back(FeatureFromJson(item));
  }
  for (const Json& item : json.value("parameters", Json::array())) {
    model.parameters.push_back({item.at("name"), ParameterFromJson(item)});
  }
  for (const Json& item : json.value("surfaces", Json::array())) {
    model.surfaces.push_back(BoxFromJson(item));
  }
  for (const Json& item : json.value("sheets", Json::array())) {
    model.sheets.push_back({item.at("size"), item.value("scale", 1.0)});
  }
  if (json.contains("drawing_of")) model.drawing_of = NameFromJson(json.at("drawing_of"));
  if (json.contains("assembly")) model.mfg_assembly = NameFromJson(json.at("assembly"));
  CheckUniqueIds(model);
  model.Reindex();
  return model;
}

std::string ReadText(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) Fail(file, "cannot be opened");
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

// The JSON library counts bytes; a person looks for a line.
int LineOfByte(const std::string& text, size_t byte) {
  const size_t end = std::min(byte, text.size());
  return 1 +
         static_cast<int>(std::count(text.begin(), text.begin() + static_cast<long>(end), '\n'));
}

// The line of the component `under`, or of such an assembly; the first line when none names it.
int LineNaming(const std::string& text, const ModelName& under) {
  constexpr int kTopLevel = 1;
  std::istringstream in(text);
  std::string key;
  int line = 0;
  const auto look = [&](int depth, Json::parse_event_t event, const Json& value) {
    if (event == Json::parse_event_t::key) key = value;
    const bool names = key == "assembly" || (key == "model" && depth > kTopLevel);
    const bool is_text = event == Json::parse_event_t::value && value.is_string();
    if (line != 0 || !names || !is_text) return true;
    if (EqualFolded(value.get<std::string>(), under.Text())) {
      line = LineOfByte(text, static_cast<size_t>(in.tellg()));
    }
    return true;
  };
  const Json read = Json::parse(in, look);
  return std::max(line, 1);
}

Json ModelJson(const Model& model) {
  Json json;
  json["format"] = kFormat;
  json["model"] = model.id.Text();
  if (model.sheet_metal) json["sheet_metal"] = true;
  if (model.skeleton) json["skeleton"] = true;
  if (!model.note.empty()) json["note"] = model.note;
  if (model.mfg_assembly) json["assembly"] = model.mfg_assembly->Text();
  if (model.drawing_of) json["drawing_of"] = model.drawing_of->Text();
  for (const Sheet& sheet : model.sheets) {
    json["sheets"].push_back({{"size", sheet.size}, {"scale", sheet.scale}});
  }
  for (const Parameter& parameter : model.parameters) {
    json["parameters"].push_back(ParameterJson(parameter));
  }
  for (const Feature& feature : model.features) json["features"].push_back(FeatureJson(feature));
  for (const Box& box : model.surfaces) json["surfaces"].push_back(BoxJson(box));
  return json;
}

}  // namespace

Model ReadModelFile(const std::filesystem::path& file) {
  const std::string text = ReadText(file);
  try {
    Model model = ModelFromJson(Json::parse(text));
    model.folder = file.parent_path();
    if (const auto name = ParseFileName(PathToUtf8(file.filename()))) model.version = name->version;
    return model;
  } catch (const nlohmann::json::parse_error& error) {
    Fail(file, "line " + std::to_string(LineOfByte(text, error.byte)) + ": not valid JSON");
  } catch (const std::exception& error) {
    Fail(file, error.what());
  }
}

void RefuseModelUnder(const std::filesystem::path& file, const ModelName& under,
                      const std::string& why) {
  Fail(file, "line " + std::to_string(LineNaming(ReadText(file), under)) + ": " + why);
}

std::string ModelDocument(const Model& model) {
  // One line an entry of a list: readable, and small to compare.
  std::string out = "{\n";
  const Json json = ModelJson(model);
  for (auto item = json.begin(); item != json.end(); ++item) {
    if (item != json.begin()) out += ",\n";
    out += "  " + Json(item.key()).dump() + ": ";
    if (!item->is_array()) {
      out += item->dump();
      continue;
    }
    out += "[";
    for (size_t i = 0; i < item->size(); ++i) {
      out += (i == 0 ? "\n    " : ",\n    ") + (*item)[i].dump();
    }
    out += "\n  ]";
  }
  return out + "\n}\n";
}

void WriteModelFile(const Model& model, const std::filesystem::path& file) {
  std::filesystem::path neighbour = file;
  neighbour += ".new";
  {
    std::ofstream out(neighbour, std::ios::binary | std::ios::trunc);
    out << ModelDocument(model);
    out.flush();
    if (!out) Fail(neighbour, "cannot be written");
  }
  std::error_code error;
  std::filesystem::rename(neighbour, file, error);
  if (error) Fail(file, "cannot be written (" + error.message() + ")");
}

std::optional<VersionedName> ParseFileName(const std::string& file_name) {
  const size_t dot = file_name.rfind('.');
  if (dot == std::string::npos || dot + 1 == file_name.size()) return std::nullopt;
  int version = 0;
  for (size_t i = dot + 1; i < file_name.size(); ++i) {
    if (file_name[i] < '0' || file_name[i] > '9' || version > 99999) return std::nullopt;
    version = version * 10 + (file_name[i] - '0');
  }
  const auto model = ParseModelName(std::string_view(file_name).substr(0, dot));
  if (!model) return std::nullopt;
  return VersionedName{*model, version};
}

}  // namespace wb
