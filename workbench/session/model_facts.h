// The facts of models: which there are, found by path, and compared.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/session/facts.h"
#include "workbench/session/model.h"

namespace wb {

// In drawing_facts.cpp.
template <>
const RecordType& RecordTypeOf<DrawingContent>();
template <>
const RecordType& RecordTypeOf<FormatContent>();

// A model as records: what all models have, and the content of its kind.
std::array<RecordRef, 2> RecordsOf(Model& model);

// The fact with a path such as "note" or "features/12/hidden". Throws FactError.
FactPlace FindFact(Model& model, std::string_view path);

// Adds an item to one of its lists. Throws FactError.
void AddItem(Model& model, std::string_view path, NamedFacts facts);

// How many items one of its lists has. Throws FactError.
size_t CountItems(Model& model, std::string_view path);

// What differs between two states of one model.
std::vector<FactChange> ChangesBetween(const Model& before, const Model& after);

// All facts of a model by their paths; of a list the keys of its items, in order.
std::map<std::string, std::string> FactsOf(const Model& model);

}  // namespace wb
