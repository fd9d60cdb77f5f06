// Names of the statuses, as they stand in the run log.
#include "toolkit/status.h"

namespace qm {
namespace {

struct StatusRow {
  ProError status;
  const char* name;
};

// clang-format off
constexpr StatusRow kStatusRows[] = {
    {PRO_TK_NO_ERROR,        "PRO_TK_NO_ERROR"},
    {PRO_TK_GENERAL_ERROR,   "PRO_TK_GENERAL_ERROR"},
    {PRO_TK_BAD_INPUTS,      "PRO_TK_BAD_INPUTS"},
    {PRO_TK_USER_ABORT,      "PRO_TK_USER_ABORT"},
    {PRO_TK_E_NOT_FOUND,     "PRO_TK_E_NOT_FOUND"},
    {PRO_TK_E_FOUND,         "PRO_TK_E_FOUND"},
    {PRO_TK_LINE_TOO_LONG,   "PRO_TK_LINE_TOO_LONG"},
    {PRO_TK_CONTINUE,        "PRO_TK_CONTINUE"},
    {PRO_TK_BAD_CONTEXT,     "PRO_TK_BAD_CONTEXT"},
    {PRO_TK_NOT_IMPLEMENTED, "PRO_TK_NOT_IMPLEMENTED"},
    {PRO_TK_OUT_OF_MEMORY,   "PRO_TK_OUT_OF_MEMORY"},
    {PRO_TK_COMM_ERROR,      "PRO_TK_COMM_ERROR"},
    {PRO_TK_NO_CHANGE,       "PRO_TK_NO_CHANGE"},
    {PRO_TK_INVALID_DIR,     "PRO_TK_INVALID_DIR"},
    {PRO_TK_INVALID_FILE,    "PRO_TK_INVALID_FILE"},
    {PRO_TK_CANT_WRITE,      "PRO_TK_CANT_WRITE"},
    {PRO_TK_INVALID_TYPE,    "PRO_TK_INVALID_TYPE"},
    {PRO_TK_INVALID_PTR,     "PRO_TK_INVALID_PTR"},
    {PRO_TK_INVALID_NAME,    "PRO_TK_INVALID_NAME"},
    {PRO_TK_CANT_OPEN,       "PRO_TK_CANT_OPEN"},
    {PRO_TK_NOT_VALID,       "PRO_TK_NOT_VALID"},
    {PRO_TK_INVALID_ITEM,    "PRO_TK_INVALID_ITEM"},
    {PRO_TK_MSG_NOT_FOUND,   "PRO_TK_MSG_NOT_FOUND"},
    {PRO_TK_MSG_NO_TRANS,    "PRO_TK_MSG_NO_TRANS"},
    {PRO_TK_MSG_FMT_ERROR,   "PRO_TK_MSG_FMT_ERROR"},
    {PRO_TK_MSG_USER_QUIT,   "PRO_TK_MSG_USER_QUIT"},
    {PRO_TK_MSG_TOO_LONG,    "PRO_TK_MSG_TOO_LONG"},
    {PRO_TK_CANT_ACCESS,     "PRO_TK_CANT_ACCESS"},
    {PRO_TK_E_IN_USE,        "PRO_TK_E_IN_USE"},
};
// clang-format on

}  // namespace

const char* StatusName(ProError status) {
  for (const StatusRow& row : kStatusRows) {
    if (row.status == status) return row.name;
  }
  return "unknown status";
}

}  // namespace qm
