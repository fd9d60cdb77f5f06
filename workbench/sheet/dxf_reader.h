// What a DXF file holds, as far as one asks of a drawing's file: its custom properties, its layers,
// and the texts and lines on them. Reads the pairs of the text form by themselves, whoever wrote
// them.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace wb {

struct DxfError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct DxfText {
  std::string layer;
  std::string text;
};

struct DxfFile {
  std::map<std::string, std::string> properties;
  std::vector<std::string> layers;
  std::vector<DxfText> texts;
  std::map<std::string, int> lines;  // how many polylines each layer has
};

// Throws DxfError for what is no DXF file, or ends too early.
DxfFile ReadDxf(std::string_view content);

}  // namespace wb
