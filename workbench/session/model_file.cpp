// Reads and writes model documents by the tables of facts.
#include "workbench/session/model_file.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <limits>
#include <nlohmann/json.hpp>
#include <sstream>

#include "workbench/base/text.h"
#include "workbench/session/model_facts.h"

namespace wb {
namespace {

using Json = nlohmann::ordered_json;

// Files of format 1 gave surfaces as two corners without an id. All formats up to ours are read.
constexpr int kFormat = 2;
constexpr int kFormatOfBareSurfaces = 1;

// Model files need six levels. Reading spends stack on each.
constexpr int kDeepestNesting = 32;

// Where in a document something stands: keys, and numbers of list items from 0.
using DocumentPath = std::vector<std::string>;

// What is wrong with the entry at `path`.
struct EntryError : std::runtime_error {
  EntryError(DocumentPath at, const std::string& why)
      : std::runtime_error(why), path(std::move(at)) {}
  DocumentPath path;
};

// Wraps every complaint about one file, so that it names the file and the way out.
[[noreturn]] void Fail(const std::filesystem::path& file, const std::string& why) {
  throw ModelFileError(PathToUtf8(file) + ": " + why +
                       "; mend the file, or delete it and import or save the model again");
}

Json ToJson(const FactValue& value) {
  return std::visit(
      [](const auto& held) -> Json {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(held)>, std::monostate>) {
          return nullptr;
        } else {
          return held;
        }
      },
      value);
}

std::optional<int> IntOf(const Json& json) {
  if (!json.is_number_integer()) return std::nullopt;
  const auto number = json.get<double>();  // whatever its size
  const bool fits =
      number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
  return fits ? std::optional(json.get<int>()) : std::nullopt;
}

// Numbers of lists inside lists one after another.
void CollectNumbers(const Json& json, std::vector<double>& numbers) {
  if (json.is_number()) {
    numbers.push_back(json.get<double>());
  } else if (json.is_array()) {
    for (const Json& item : json) CollectNumbers(item, numbers);
  } else {
    throw FactError("a list of numbers is wanted");
  }
}

FactValue FromJson(const Json& json) {
  if (json.is_boolean()) return json.get<bool>();
  if (json.is_number_integer()) {
    if (const auto number = IntOf(json)) return *number;
    return json.get<double>();
  }
  if (json.is_number()) return json.get<double>();
  if (json.is_string()) return json.get<std::string>();
  std::vector<double> numbers;
  CollectNumbers(json, numbers);
  return numbers;
}

Json RecordJson(const RecordType& type, void* record);

void AddFacts(const RecordType& type, void* record, Json& json) {
  for (const FactRow& row : type.facts) {
    const FactValue value = row.get(record);
    if (std::holds_alternative<std::monostate>(value)) continue;
    const bool always = row.in_file != InFile::kIfNotDefault;
    if (always || value != row.get(type.plain())) json[row.name] = ToJson(value);
  }
}

void AddLists(const RecordType& type, void* record, Json& json) {
  for (const ListRow& list : type.lists) {
    for (size_t i = 0; i < list.size(record); ++i) {
      json[list.name].push_back(RecordJson(list.type(), list.at(record, i)));
    }
  }
}

Json RecordJson(const RecordType& type, void* record) {
  Json json = Json::object();
  AddFacts(type, record, json);
  AddLists(type, record, json);
  return json;
}

void ReadFacts(const RecordRef& ref, const Json& json, DocumentPath& path) {
  for (const FactRow& row : ref.type->facts) {
    if (!json.contains(row.name)) {
      if (row.in_file != InFile::kRequired) continue;
      throw EntryError(path, "\"" + std::string(row.name) + "\" is missing");
    }
    path.push_back(row.name);
    try {
      row.set(ref.record, FromJson(json.at(row.name)));
    } catch (const FactError& error) {
      throw EntryError(path, "\"" + path.back() + "\": " + error.what());
    }
    path.pop_back();
  }
}

void ReadRecord(std::span<const RecordRef> refs, const Json& json, DocumentPath& path,
                std::span<const char* const> other_keys = {});

void ReadList(const RecordRef& ref, const ListRow& list, const Json& json, DocumentPath& path) {
  path.push_back(list.name);
  if (!json.is_array()) throw EntryError(path, "\"" + path.back() + "\" is no list");
  for (size_t i = 0; i < json.size(); ++i) {
    path.push_back(std::to_string(i));
    const std::shared_ptr<void> item = list.type().make();
    const RecordRef item_ref{item.get(), &list.type()};
    ReadRecord({&item_ref, 1}, json[i], path);
    try {
      list.add(ref.record, item.get());
    } catch (const FactError& error) {
      throw EntryError(path, std::string(list.name) + ": " + error.what());
    }
    path.pop_back();
  }
  path.pop_back();
}

bool IsKnown(std::span<const RecordRef> refs, const std::string& key) {
  const auto named = [&](const auto& row) { return key == row.name; };
  return std::ranges::any_of(refs, [&](const RecordRef& ref) {
    return std::ranges::any_of(ref.type->facts, named) ||
           std::ranges::any_of(ref.type->lists, named);
  });
}

// An entry that nobody reads would be lost with the next save.
void RefuseUnknownKeys(std::span<const RecordRef> refs, const Json& json, DocumentPath& path,
                       std::span<const char* const> other_keys) {
  for (const auto& [key, value] : json.items()) {
    if (IsKnown(refs, key) || std::ranges::find(other_keys, key) != other_keys.end()) continue;
    path.push_back(key);
    throw EntryError(path, "unknown entry \"" + key + "\"");
  }
}

void ReadRecord(std::span<const RecordRef> refs, const Json& json, DocumentPath& path,
                std::span<const char* const> other_keys) {
  if (!json.is_object()) throw EntryError(path, "an entry in braces is wanted");
  RefuseUnknownKeys(refs, json, path, other_keys);
  for (const RecordRef& ref : refs) {
    ReadFacts(ref, json, path);
    for (const ListRow& list : ref.type->lists) {
      if (json.contains(list.name)) ReadList(ref, list, json.at(list.name), path);
    }
  }
}

// The component part stands in a component and nowhere else.
void CheckFeatures(const Model& model) {
  size_t place = 0;
  for (const Feature& feature : FeaturesOf(model)) {
    const DocumentPath path = {"features", std::to_string(place++)};
    const bool wants_model = feature.type == kComponentFeatureType;
    if (wants_model && !feature.component) throw EntryError(path, "\"model\" is missing");
    if (!wants_model && feature.component) {
      throw EntryError(path, "a feature of type " + std::to_string(feature.type) +
                                 " has neither \"model\" nor \"placement\"");
    }
  }
}

// Surfaces of format 1, two corners each, as records numbered from 1.
void NumberBareSurfaces(Json& json) {
  if (!json.contains("surfaces") || !json["surfaces"].is_array()) return;
  int id = 0;
  for (Json& surface : json["surfaces"]) {
    ++id;
    if (!surface.is_array() || surface.size() != 2) continue;
    surface = Json{{"id", id}, {"min", surface[0]}, {"max", surface[1]}};
  }
}

int FormatOf(const Json& json) {
  const Json format = json.is_object() ? json.value("format", Json()) : Json();
  const int number = IntOf(format).value_or(0);
  if (number >= 1 && number <= kFormat) return number;
  throw EntryError({"format"}, "unknown format number " + format.dump() + " (1 to " +
                                   std::to_string(kFormat) + " are known)");
}

Model ModelFromJson(Json json) {
  if (FormatOf(json) == kFormatOfBareSurfaces) NumberBareSurfaces(json);
  const Json entry = json.value("model", Json(""));
  const std::string text = entry.is_string() ? entry.get<std::string>() : entry.dump();
  const auto name = ParseModelName(text);
  if (!name) {
    throw EntryError({"model"}, "\"" + text + "\" is no model name such as \"bolt.prt\"");
  }
  Model model(*name);
  DocumentPath path;
  static constexpr const char* kHead[] = {"format", "model"};
  ReadRecord(RecordsOf(model), json, path, kHead);
  CheckFeatures(model);
  return model;
}

std::string ReadText(const std::filesystem::path& file) {
  if (std::filesystem::is_directory(file)) Fail(file, "is a folder");
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

// The place of the first bracket that opens beyond the deepest level; none: the text's size.
size_t TooDeep(const std::string& text) {
  int depth = 0;
  bool quoted = false;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '"') quoted = !quoted;
    if (quoted && c == '\\') ++i;
    if (quoted) continue;
    if (c == ']' || c == '}') --depth;
    if ((c == '[' || c == '{') && ++depth > kDeepestNesting) return i;
  }
  return text.size();
}

// Reads a document entry by entry and finds the line of the first one that `matches` accepts by its
// path and value; 0: none.
class LineSearch {
 public:
  using Matches = std::function<bool(const DocumentPath& path, const Json& value)>;

  LineSearch(const std::string& text, Matches matches)
      : text_(text), in_(text), matches_(std::move(matches)) {}

  int Line() {
    const Json read = Json::parse(in_, [this](int, Json::parse_event_t event, Json& value) {
      Look(event, value);
      return true;
    });
    return line_;
  }

 private:
  using Event = Json::parse_event_t;

  void Look(Event event, const Json& value) {
    if (event == Event::key) {
      path_.back() = value.get<std::string>();
      return;
    }
    if (event == Event::object_end || event == Event::array_end) {
      path_.pop_back();
      counts_.pop_back();
      return;
    }
    CountInList();
    if (line_ == 0 && matches_(path_, value)) {
      line_ = LineOfByte(text_, static_cast<size_t>(in_.tellg()));
    }
    if (event == Event::value) return;
    path_.emplace_back();
    counts_.push_back(event == Event::array_start ? 0 : -1);
  }
  void CountInList() {
    if (!counts_.empty() && counts_.back() >= 0) path_.back() = std::to_string(counts_.back()++);
  }

  const std::string& text_;
  std::istringstream in_;
  Matches matches_;
  DocumentPath path_;
  std::vector<int> counts_;  // of items of the lists we are in; -1 for an object
  int line_ = 0;
};

// The line of an entry, or of the one around it where the document has another form there.
int LineOf(const std::string& text, DocumentPath wanted) {
  for (; !wanted.empty(); wanted.pop_back()) {
    const auto is_wanted = [&](const DocumentPath& path, const Json&) { return path == wanted; };
    if (const int line = LineSearch(text, is_wanted).Line()) return line;
  }
  return 1;
}

// The line of the component `under`, or of such an assembly; the first line when none names it.
int LineNaming(const std::string& text, const ModelName& under) {
  const auto names = [&](const DocumentPath& path, const Json& value) {
    if (path.empty() || !value.is_string()) return false;
    const bool is_link = path.back() == "assembly" || (path.back() == "model" && path.size() > 1);
    return is_link && EqualFolded(value.get<std::string>(), under.Text());
  };
  return std::max(LineSearch(text, names).Line(), 1);
}

void RefuseDeepNesting(const std::filesystem::path& file, const std::string& text) {
  const size_t place = TooDeep(text);
  if (place == text.size()) return;
  Fail(file, "line " + std::to_string(LineOfByte(text, place)) + ": entries are nested more than " +
                 std::to_string(kDeepestNesting) + " deep");
}

// A file that holds another model would be read again at each look for its own.
void CheckName(const Model& model, const VersionedName& file) {
  if (EqualFolded(model.id.Text(), file.model.Text())) return;
  throw EntryError({"model"}, "the file holds the model " + model.id.Text() + ", not " +
                                  file.model.Text() + " as its name says");
}

Json ModelJson(const Model& model) {
  Json json;
  json["format"] = kFormat;
  json["model"] = model.id.Text();
  const auto records = RecordsOf(const_cast<Model&>(model));
  for (const RecordRef& ref : records) AddFacts(*ref.type, ref.record, json);
  for (const RecordRef& ref : records) AddLists(*ref.type, ref.record, json);
  return json;
}

}  // namespace

Model ReadModelFile(const std::filesystem::path& file) {
  const std::string text = ReadText(file);
  RefuseDeepNesting(file, text);
  try {
    Model model = ModelFromJson(Json::parse(text));
    model.folder = file.parent_path();
    const std::string own_name = PathToUtf8(file.filename());
    if (const auto name = ParseFileName(own_name)) {
      CheckName(model, *name);
      model.version = name->version;
    } else if (const auto plain = ParseModelName(own_name)) {
      CheckName(model, {*plain, 0});
    }
    return model;
  } catch (const nlohmann::json::parse_error& error) {
    Fail(file, "line " + std::to_string(LineOfByte(text, error.byte)) + ": not valid JSON");
  } catch (const nlohmann::json::out_of_range&) {
    Fail(file, "it holds a number that is too large");
  } catch (const EntryError& error) {
    Fail(file, "line " + std::to_string(LineOf(text, error.path)) + ": " + error.what());
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

void WriteNewModelFile(const Model& model, const std::filesystem::path& file) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out << ModelDocument(model);
  out.flush();
  if (!out) Fail(file, "cannot be written");
}

void WriteModelFile(const Model& model, const std::filesystem::path& file) {
  std::filesystem::path neighbour = file;
  neighbour += ".new";
  WriteNewModelFile(model, neighbour);
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
