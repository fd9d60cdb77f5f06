// When the popup's entries are offered, by what is preselected.
#pragma once

#include "toolkit/command.h"

namespace qm {

uiCmdAccessState DisplayEntryAccess(uiCmdCmdId command, ProAppData data,
                                    ProSelection* selections) noexcept;
uiCmdAccessState NameEntryAccess(uiCmdCmdId command, ProAppData data,
                                 ProSelection* selections) noexcept;
uiCmdAccessState OpenDrawingEntryAccess(uiCmdCmdId command, ProAppData data,
                                        ProSelection* selections) noexcept;

}  // namespace qm
