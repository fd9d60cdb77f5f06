// Facts that are names of models, links to them, or rows of numbers, for the tables of facts.
#pragma once

#include <cmath>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "workbench/session/facts.h"
#include "workbench/session/model_link.h"

namespace wb {

template <>
struct FactTraits<ModelName> {
  static FactValue Get(const ModelName& held) { return held.Text(); }
  static ModelName From(const FactValue& value) {
    const auto* const text = std::get_if<std::string>(&value);
    const auto name = text == nullptr ? std::nullopt : ParseModelName(*text);
    if (!name) RefuseFact(value, "a model name such as \"bolt.prt\"");
    return *name;
  }
};

// A link that may be missing; the model itself is found when the file is in session.
template <>
struct FactTraits<std::optional<ModelLink>> {
  static FactValue Get(const std::optional<ModelLink>& held) {
    return held ? FactValue(held->name.Text()) : FactValue();
  }
  static std::optional<ModelLink> From(const FactValue& value) {
    return ModelLink{FactTraits<ModelName>::From(value), nullptr};
  }
};

template <>
struct FactTraits<ModelLink> {
  static FactValue Get(const ModelLink& held) { return held.name.Text(); }
  static ModelLink From(const FactValue& value) {
    return {FactTraits<ModelName>::From(value), nullptr};
  }
};

template <>
struct FactTraits<std::vector<double>> {
  static FactValue Get(const std::vector<double>& held) { return held; }
  static std::vector<double> From(const FactValue& value) {
    const auto* const numbers = std::get_if<std::vector<double>>(&value);
    if (numbers == nullptr) RefuseFact(value, "a row of numbers");
    return *numbers;
  }
};

template <>
struct FactTraits<std::vector<int>> {
  static FactValue Get(const std::vector<int>& held) {
    return std::vector<double>(held.begin(), held.end());
  }
  static std::vector<int> From(const FactValue& value) {
    std::vector<int> held;
    for (const double number : FactTraits<std::vector<double>>::From(value)) {
      if (number != std::floor(number)) RefuseFact(value, "a row of whole numbers");
      held.push_back(static_cast<int>(number));
    }
    return held;
  }
};

template <typename Record>
RecordType TypeWith(std::span<const FactRow> facts, std::span<const ListRow> lists = {}) {
  return {facts, lists, &MakeRecord<Record>, &PlainRecord<Record>};
}

}  // namespace wb
