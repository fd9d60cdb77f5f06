// The models that a batch of the parameter and relation dialogs works on: found by class, told by
// name, and those with an exclusion keyword left out.
#pragma once

#include <optional>
#include <string>

#include "frame/models/target_list.h"
#include "frame/text/keyword_filter.h"
#include "toolkit/types.h"

namespace qm {

// One model to work on.
struct ModelTarget {
  ProMdl model;
  std::wstring name;   // as the host gives it
  ProModelitem owner;  // the model as owner of parameters and relations
};

// The models of the class under `top`. Nothing, after the message, when there is nothing to work
// on: a top model alone is not enough.
std::optional<TargetList> FindTargets(const std::optional<CurrentModel>& top,
                                      const std::string& class_name);

// Nothing for a model that is excluded, and, after a line in the log and counted in `left_out`, for
// one that cannot be read: a model whose name is not known might be an excluded one.
std::optional<ModelTarget> ReadTarget(ProMdl model, const KeywordFilter& keywords,
                                      long long* left_out);

// Of the current model, once at the end of a batch.
void RefreshModelTree();

}  // namespace qm
