// Fills and reads the record of a model's data in the order that the host has by habit.
#include "workbench/api/model_record.h"

namespace wb {
namespace {

// An order that nobody knows: everything a little further on.
constexpr ProMdldataOrder kUnknownOrder = {12, 44, 48, 80, 112, 372};

const ProMdldataOrder& OrderOf(const Habits& habits) {
  if (habits.model_data_has_unknown_order) return kUnknownOrder;
  return habits.model_data_has_name_first ? kModelDataNameFirst : kModelDataNameLast;
}

}  // namespace

// Splits "C:\parts" as the host's record does: the drive apart from the path.
void FillRecord(const Call& call, const Model& model, ProMdldata& record) {
  const ProMdldataOrder& order = OrderOf(call.host.habits);
  const std::string folder = PathToUtf8(model.folder);
  const bool has_drive = folder.size() > 1 && folder[1] == ':';
  const auto text = [&](int place, size_t limit, const std::string& value) {
    call.CopyText(record.texts + place, limit, value);
  };
  text(order.device, PRO_NAME_SIZE, has_drive ? folder.substr(0, 2) : "");
  text(order.path, PRO_PATH_SIZE, has_drive ? folder.substr(2) : folder);
  text(order.name, PRO_NAME_SIZE, model.id.name);
  text(order.type, PRO_TYPE_SIZE, KindExtension(model.id.kind));
  std::memcpy(record.texts + order.version, &model.version, sizeof(model.version));
}

ModelRecordText ReadRecord(const Call& call, const ProMdldata& record) {
  const ProMdldataOrder& order = OrderOf(call.host.habits);
  const auto text = [&](int place, size_t limit, const char* what) {
    return call.Text(record.texts + place, limit, what);
  };
  return {text(order.name, PRO_NAME_SIZE, "model name in the record"),
          text(order.type, PRO_TYPE_SIZE, "model type in the record"),
          text(order.device, PRO_NAME_SIZE, "drive in the record") +
              text(order.path, PRO_PATH_SIZE, "path in the record")};
}

}  // namespace wb
