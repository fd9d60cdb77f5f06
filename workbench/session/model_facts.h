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

// A model as records: what all models have, and the content of its kind.
std::array<RecordRef, 2> RecordsOf(Model& model);

// The fact with a path such as "note" or "features/12/hidden". Throws FactError.
FactPlace FindFact(Model& model, std::string_view path);

// What differs between two states of one model.
std::vector<FactChange> ChangesBetween(const Model& before, const Model& after);

// All facts of a model by their paths.
std::map<std::string, std::string> FactsOf(const Model& model);

}  // namespace wb
