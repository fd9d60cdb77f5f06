// The answer of commands that are not built yet.
#include "entry/not_in_build.h"

#include "frame/messages/message_box.h"

namespace qm {

ProError NotInBuild() {
  ShowMessage(L"\t此命令不在当前版本中。\t");
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
