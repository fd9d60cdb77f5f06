// The host interface as the workbench implements it: exported functions under versioned names.
#pragma once

#define QM_HOST_SIDE 1

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
#include "toolkit/types.h"
#include "toolkit/ui.h"
#include "toolkit/ui_table.h"
#include "toolkit/view.h"
#include "toolkit/window.h"
