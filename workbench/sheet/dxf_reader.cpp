// Reads DXF files pair by pair: a line with a code, a line with its value.
#include "workbench/sheet/dxf_reader.h"

#include <charconv>

#include "workbench/base/text.h"

namespace wb {
namespace {

// Codes of the text form.
constexpr int kStart = 0;
constexpr int kText = 1;
constexpr int kName = 2;
constexpr int kLayer = 8;
constexpr int kVariable = 9;

struct Pair {
  int code = 0;
  std::string value;
};

class DxfReader {
 public:
  explicit DxfReader(std::string_view content) : rest_(content) {}

  DxfFile Read() {
    while (!ended_) {
      const Pair pair = Next();
      if (pair.code == kStart) {
        Begin(pair.value);
      } else if (pair.code == kVariable) {
        variable_ = pair.value;
      } else {
        Take(pair);
      }
    }
    return std::move(file_);
  }

 private:
  std::string_view Line() {
    if (rest_.empty()) throw DxfError("it ends without EOF");
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
  }

  Pair Next() {
    const std::string code = Trimmed(Line());
    Pair pair;
    const auto read = std::from_chars(code.data(), code.data() + code.size(), pair.code);
    if (read.ec != std::errc() || read.ptr != code.data() + code.size()) {
      throw DxfError("\"" + code.substr(0, 40) + "\" is no code");
    }
    pair.value = Line();
    return pair;
  }

  // A section, a table, or a thing in one of them.
  void Begin(const std::string& what) {
    thing_ = what;
    layer_.clear();
    ended_ = what == "EOF";
  }

  void Take(const Pair& pair) {
    if (thing_ == "SECTION" && pair.code == kName && section_ != pair.value) section_ = pair.value;
    if (pair.code == kLayer) TakeLayer(pair.value);
    if (section_ == "HEADER" && pair.code == kText) TakeProperty(pair.value);
    if (section_ == "TABLES" && thing_ == "LAYER" && pair.code == kName) {
      file_.layers.push_back(pair.value);
    }
    if (section_ == "ENTITIES" && thing_ == "TEXT" && pair.code == kText) {
      file_.texts.push_back({layer_, pair.value});
    }
  }

  void TakeLayer(const std::string& layer) {
    layer_ = layer;
    if (section_ == "ENTITIES" && thing_ == "LWPOLYLINE") ++file_.lines[layer];
  }

  void TakeProperty(const std::string& value) {
    if (variable_ == "$CUSTOMPROPERTYTAG") property_ = value;
    if (variable_ == "$CUSTOMPROPERTY") file_.properties[property_] = value;
  }

  std::string_view rest_;
  bool ended_ = false;
  std::string section_;
  std::string thing_;
  std::string layer_;
  std::string variable_;
  std::string property_;
  DxfFile file_;
};

}  // namespace

DxfFile ReadDxf(std::string_view content) {
  return DxfReader(content).Read();
}

}  // namespace wb
