// Recognises the texts of a model's record.
#include "frame/text/model_record_rules.h"

#include "frame/text/directory_rules.h"
#include "frame/text/letter_case.h"
#include "toolkit/numbers.h"

namespace qm {
namespace {

std::wstring_view TextAt(std::wstring_view record, int place) {
  const std::wstring_view rest = record.substr(static_cast<std::size_t>(place));
  return rest.substr(0, rest.find(L'\0'));
}

bool HasSeparator(std::wstring_view text) {
  return text.find_first_of(L"\\/") != std::wstring_view::npos;
}

// "C" or "C:".
bool IsDrive(std::wstring_view text) {
  const bool is_letter = !text.empty() && ((text[0] | 0x20) >= L'a' && (text[0] | 0x20) <= L'z');
  return is_letter && (text.size() == 1 || (text.size() == 2 && text[1] == L':'));
}

const ProMdldataOrder* OrderWithNameAt(std::wstring_view record, std::wstring_view name) {
  for (const ProMdldataOrder* order : {&kModelDataNameLast, &kModelDataNameFirst}) {
    if (EqualIgnoringCase(TextAt(record, order->name), name)) return order;
  }
  return nullptr;
}

}  // namespace

std::optional<std::wstring> FolderInModelRecord(std::wstring_view record, std::wstring_view name) {
  const ProMdldataOrder* const order = name.empty() ? nullptr : OrderWithNameAt(record, name);
  if (order == nullptr) return std::nullopt;
  std::wstring_view path = TextAt(record, order->path);
  std::wstring_view device = TextAt(record, order->device);
  for (const int place : {order->host, order->device, order->path}) {
    const std::wstring_view text = TextAt(record, place);
    if (HasSeparator(text)) path = text;
    if (IsDrive(text)) device = text;
  }
  if (path == device) path = {};
  return ModelFolder(device, path);
}

std::optional<std::wstring> FileInModelRecord(std::wstring_view record, std::wstring_view name) {
  const ProMdldataOrder* const order = name.empty() ? nullptr : OrderWithNameAt(record, name);
  if (order == nullptr) return std::nullopt;
  const std::wstring type(TextAt(record, order->type));
  if (type.empty()) return std::nullopt;
  return std::wstring(TextAt(record, order->name)) + L"." + type;
}

}  // namespace qm
