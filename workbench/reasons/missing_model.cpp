// Lists models in session and in folders.
#include "workbench/reasons/missing_model.h"

#include <algorithm>
#include <vector>

#include "workbench/base/text.h"
#include "workbench/language/script_words.h"

namespace wb {
namespace {

constexpr size_t kMostNamed = 20;

std::string Listed(std::vector<std::string> names) {
  std::sort(names.begin(), names.end());
  const size_t count = names.size();
  names.resize(std::min(count, kMostNamed));
  return Join(", ", names) +
         (count > kMostNamed ? " and " + std::to_string(count - kMostNamed) + " more" : "");
}

std::string Meant(const std::string& name, const std::vector<ModelName>& models) {
  std::vector<std::string> words;
  for (const ModelName& model : models) {
    words.push_back(name.find('.') == std::string::npos ? model.name : model.Text());
  }
  const std::string meant = NearestWord(name, words);
  return meant.empty() || meant == name ? "" : "; did you mean \"" + meant + "\"?";
}

std::vector<std::string> TextsOf(const std::vector<ModelName>& models) {
  std::vector<std::string> texts;
  for (const ModelName& model : models) texts.push_back(model.Text());
  return texts;
}

std::vector<std::string> FilesIn(const std::filesystem::path& folder) {
  std::vector<std::string> files;
  std::error_code error;
  for (const auto& item : std::filesystem::directory_iterator(folder, error)) {
    files.push_back(PathToUtf8(item.path().filename()) + (item.is_directory() ? "/" : ""));
  }
  return files;
}

bool IsCalled(const ModelName& model, const std::string& name) {
  return EqualFolded(model.name, name) || EqualFolded(model.Text(), name);
}

}  // namespace

std::string WhatIsInSession(const Session& session, const std::string& name) {
  std::vector<ModelName> models;
  for (const auto& model : session.models()) models.push_back(model->id);
  std::string text = Meant(name, models);
  text += models.empty() ? "; nothing is in session" : "; in session: " + Listed(TextsOf(models));
  const std::vector<ModelName> files = FolderIndex(session.working_directory()).Models();
  const auto file =
      std::ranges::find_if(files, [&](const ModelName& model) { return IsCalled(model, name); });
  if (file != files.end()) {
    return text + "; its file lies in the working directory, \"retrieve " + file->Text() +
           "\" brings it into session";
  }
  const std::vector<std::string> present = TextsOf(models);
  std::vector<std::string> others = TextsOf(files);
  std::erase_if(others, [&](const std::string& other) {
    return std::ranges::find(present, other) != present.end();
  });
  return others.empty() ? text : text + "; the working directory holds " + Listed(others);
}

std::string WhatLiesIn(const std::filesystem::path& folder, const std::string& name) {
  const std::vector<ModelName> models = FolderIndex(folder).Models();
  if (!models.empty()) {
    return Meant(name, models) + "; the folder holds the models " + Listed(TextsOf(models));
  }
  const std::vector<std::string> files = FilesIn(folder);
  if (files.empty()) return "; the folder is empty";
  return "; the folder holds no models, but " + Listed(files);
}

}  // namespace wb
