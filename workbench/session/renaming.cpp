// Names in files and in users of a renamed model.
#include "workbench/session/renaming.h"

#include <vector>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/session/model_file.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

bool IsNameCharacter(char c) {
  const bool is_letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
  return is_letter || (c >= '0' && c <= '9') || c == '_' || c == '-' ||
         static_cast<unsigned char>(c) >= 0x80;
}

struct NamedFile {
  fs::path path;
  std::string rest;  // of its name, behind the model's: ".3", or nothing
};

std::vector<NamedFile> FilesOf(const fs::path& folder, const ModelName& model) {
  std::vector<NamedFile> files;
  std::error_code error;
  for (const auto& item : fs::directory_iterator(folder, error)) {
    const std::string name = PathToUtf8(item.path().filename());
    const auto versioned = ParseFileName(name);
    const auto plain = versioned ? std::optional(versioned->model) : ParseModelName(name);
    if (!plain || !EqualFolded(plain->Text(), model.Text())) continue;
    files.push_back({item.path(), name.substr(model.Text().size())});
  }
  return files;
}

void RenameFile(const fs::path& from, const fs::path& to, const ModelName& after) {
  try {
    Model held = ReadModelFile(from);
    held.id = after;
    WriteModelFile(held, to);
    fs::remove(from);
  } catch (const ModelFileError&) {
    fs::rename(from, to);
  }
}

// Scales of sheets are kept by the name of their model.
void RenameScales(DrawingContent& drawing, const ModelName& before, const ModelName& after) {
  for (Sheet& sheet : drawing.sheets) {
    const ItemList<ModelScale> held = sheet.scales;
    sheet.scales.Clear();
    for (ModelScale scale : held) {
      if (EqualFolded(scale.name, before.Text())) scale.name = after.Text();
      sheet.scales.Add(scale);
    }
  }
}

}  // namespace

bool IsLegalModelName(std::string_view name) {
  if (name.empty() || name.front() == '-' || WideLength(name) > kMaxNameLength) return false;
  for (const char c : name) {
    if (!IsNameCharacter(c)) return false;
  }
  return true;
}

bool HasModelFile(const fs::path& folder, const ModelName& name) {
  return !FilesOf(folder, name).empty();
}

void RenameModelFiles(const fs::path& folder, const ModelName& before, const ModelName& after) {
  for (const NamedFile& file : FilesOf(folder, before)) {
    RenameFile(file.path, folder / PathFromUtf8(after.Text() + file.rest), after);
  }
}

bool TakeNewName(Model& user, const ModelName& before, Model& renamed) {
  bool uses_it = false;
  ForEachLink(user, [&](ModelLink& link) {
    if (link.model != &renamed) return;
    link.name = renamed.id;
    uses_it = true;
  });
  DrawingContent* const drawing = user.As<DrawingContent>();
  if (drawing != nullptr && uses_it) RenameScales(*drawing, before, renamed.id);
  return uses_it;
}

}  // namespace wb
