// The element tree that tells the host to merge one part's geometry into another part.
#pragma once

#include <span>

#include "toolkit/numbers.h"

namespace qm {

enum class MergeValue {
  kNone,    // an element that only holds others
  kNumber,  // the row's
  kName,    // the feature's
  kSource,  // the selected part
};

struct MergeElement {
  int depth;  // the root has 0; an element hangs below the last one before it of a smaller depth
  int id;
  MergeValue value = MergeValue::kNone;
  int number = 0;
};

// Deliberately the selected part's element holds others as well. What the numbers beside elements
// without a name mean is the host's.
inline constexpr MergeElement kMergeTree[] = {
    {0, PRO_E_FEATURE_TREE},
    {1, PRO_E_FEATURE_TYPE, MergeValue::kNumber, PRO_FEAT_MERGE},
    {1, PRO_E_FEATURE_NAME, MergeValue::kName},
    {1, PRO_E_MERGE_3386, MergeValue::kNumber, 0},
    {1, PRO_E_MERGE_3388},
    {2, PRO_E_MERGE_3389, MergeValue::kNumber, 0},
    {2, PRO_E_MERGE_SOURCE, MergeValue::kSource},
    {3, PRO_E_MERGE_3391},
    {4, PRO_E_MERGE_605},
    {5, PRO_E_MERGE_606},
    {6, PRO_E_MERGE_607, MergeValue::kNumber, 13},
};
inline constexpr int kMergeTreeDepth = 6;

}  // namespace qm
