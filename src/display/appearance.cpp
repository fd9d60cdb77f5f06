// Reads and writes the host's record.
#include "display/appearance.h"

#include <algorithm>
#include <iterator>

#include "frame/messages/run_log.h"
#include "toolkit/model.h"
#include "toolkit/status.h"

namespace qm {
namespace {

AppearanceNumbers NumbersOf(const ProSurfaceAppearanceProps& record) {
  AppearanceNumbers numbers = {};
  std::copy(std::begin(record.color_rgb), std::end(record.color_rgb), numbers.colour.begin());
  numbers.ambient = record.ambient;
  numbers.diffuse = record.diffuse;
  numbers.highlight = record.highlite;
  numbers.shininess = record.shininess;
  numbers.transparency = record.transparency;
  std::copy(std::begin(record.highlight_color), std::end(record.highlight_color),
            numbers.highlight_colour.begin());
  numbers.reflection = record.reflection;
  return numbers;
}

void SetNumbers(const AppearanceNumbers& numbers, ProSurfaceAppearanceProps* record) {
  std::copy(numbers.colour.begin(), numbers.colour.end(), record->color_rgb);
  record->ambient = numbers.ambient;
  record->diffuse = numbers.diffuse;
  record->highlite = numbers.highlight;
  record->shininess = numbers.shininess;
  record->transparency = numbers.transparency;
  std::copy(numbers.highlight_colour.begin(), numbers.highlight_colour.end(),
            record->highlight_color);
  record->reflection = numbers.reflection;
}

bool Write(ProModelitem item, ProSurfaceAppearanceProps* record) {
  const ProError status = ProSurfaceAppearancepropsSet(&item, record);
  if (!Ok(status)) LogFailure(item.owner, "ProSurfaceAppearancepropsSet", status);
  return Ok(status);
}

}  // namespace

ProSurfaceAppearanceProps AppearanceWith(const AppearanceNumbers& numbers) {
  ProSurfaceAppearanceProps record = {};
  SetNumbers(numbers, &record);
  return record;
}

std::optional<ProSurfaceAppearanceProps> ReadAppearance(ProModelitem item) {
  ProSurfaceAppearanceProps record = {};
  const ProError status = ProSurfaceAppearancepropsGet(&item, &record);
  const bool has_none = status == PRO_TK_E_NOT_FOUND || status == PRO_TK_NOT_EXIST;
  if (!Ok(status) && !has_none) {
    LogFailure(item.owner, "ProSurfaceAppearancepropsGet", status);
    return std::nullopt;
  }
  // Nor may what a failing call has left in the record's texts be written.
  if (has_none) record = {};
  if (has_none || IsUntouched(NumbersOf(record))) SetNumbers(kDefaultAppearance, &record);
  if (AreAppearance(NumbersOf(record))) return record;
  LogFailure(item.owner, "appearance record", PRO_TK_INVALID_ITEM);
  return std::nullopt;
}

bool WriteAppearance(ProModelitem item, ProSurfaceAppearanceProps appearance) {
  return Write(item, &appearance);
}

bool ClearAppearance(ProModelitem item) {
  return Write(item, nullptr);
}

std::optional<ProModelitem> ItemOfModel(ProMdl model) {
  ProModelitem item = {PRO_TYPE_INVALID, -1, nullptr};
  const ProError status = ProMdlToModelitem(model, &item);
  if (Ok(status) && item.owner != nullptr) return item;
  LogFailure(model, "ProMdlToModelitem", status);
  return std::nullopt;
}

}  // namespace qm
