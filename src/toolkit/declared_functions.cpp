// All functions of the host that are declared, by name: every family's header is read here by a
// macro that lists them.
#if !defined(QM_VENDOR_SDK)

#include <utility>

// Its first use stands before all declarations, so that they are numbered from 0.
static constexpr int kBeforeFirst = __COUNTER__ + 1;
template <int>
inline constexpr const char* kDeclaredName = nullptr;

#define QM_LIST_FUNCTIONS
#include "toolkit/array.h"
#include "toolkit/assembly.h"
#include "toolkit/command.h"
#include "toolkit/component.h"
#include "toolkit/dimension.h"
#include "toolkit/drawing.h"
#include "toolkit/drawing_table.h"
#include "toolkit/drawing_view.h"
#include "toolkit/export.h"
#include "toolkit/export_3d.h"
#include "toolkit/feature.h"
#include "toolkit/geometry.h"
#include "toolkit/message.h"
#include "toolkit/model.h"
#include "toolkit/parameter.h"
#include "toolkit/properties.h"
#include "toolkit/selection.h"
#include "toolkit/ui.h"
#include "toolkit/ui_table.h"
#include "toolkit/view.h"
#include "toolkit/window.h"

static constexpr int kDeclared = __COUNTER__ - kBeforeFirst;

namespace qm {

void* FindHostFunction(const char* versioned_name);

int DeclaredFunctions() {
  return kDeclared;
}

bool IsAnyFunctionOffered() {
  return []<int... Nth>(std::integer_sequence<int, Nth...>) {
    return ((FindHostFunction(kDeclaredName<Nth>) != nullptr) || ...);
  }
  (std::make_integer_sequence<int, kDeclared>());
}

}  // namespace qm

#endif
