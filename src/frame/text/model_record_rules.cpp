// Recognises the texts of a model's record.
#include "frame/text/model_record_rules.h"

#include <algorithm>

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

bool IsSeparator(wchar_t c) {
  return c == L'\\' || c == L'/';
}

bool EndsWithSeparator(std::wstring_view text) {
  return !text.empty() && IsSeparator(text.back());
}

// `path` with or without a separator at its end, as `like` has it; an empty one says nothing.
std::wstring EndingLike(std::wstring_view like, std::wstring_view path) {
  std::wstring ended(path);
  if (like.empty()) return ended;
  const bool is_more_than_root = ended.size() > 1;
  if (EndsWithSeparator(like) && !EndsWithSeparator(ended)) ended += like.back();
  if (!EndsWithSeparator(like) && EndsWithSeparator(ended) && is_more_than_root) ended.pop_back();
  return ended;
}

// Places of the folder's texts in a record; no drive: it stands in the path.
struct FolderPlaces {
  int path;
  int path_size;
  std::optional<int> drive;
};

FolderPlaces PlacesIn(std::wstring_view record, const ProMdldataOrder& order) {
  FolderPlaces places{order.path, PRO_PATH_SIZE, std::nullopt};
  for (const int place : {order.host, order.device, order.path}) {
    const std::wstring_view text = TextAt(record, place);
    if (HasSeparator(text)) {
      places.path = place;
      places.path_size = place == order.path ? PRO_PATH_SIZE : PRO_NAME_SIZE;
    }
    if (IsDrive(text)) places.drive = place;
  }
  return places;
}

void Put(std::span<wchar_t> record, int place, std::wstring_view text) {
  auto* const at = record.data() + place;
  *std::copy(text.begin(), text.end(), at) = L'\0';
}

}  // namespace

bool SetFolderInModelRecord(std::span<wchar_t> record, std::wstring_view name,
                            std::wstring_view folder) {
  const std::wstring_view texts(record.data(), record.size());
  const ProMdldataOrder* const order = name.empty() ? nullptr : OrderWithNameAt(texts, name);
  if (order == nullptr) return false;
  const FolderPlaces places = PlacesIn(texts, *order);
  const bool has_drive = folder.size() > 1 && IsDrive(folder.substr(0, 2)) && folder[1] == L':';
  const bool is_parted = places.drive && has_drive;
  const std::wstring path =
      EndingLike(TextAt(texts, places.path), is_parted ? folder.substr(2) : folder);
  if (path.size() >= static_cast<std::size_t>(places.path_size)) return false;
  if (places.drive) {
    // With its colon or without.
    const std::size_t length = TextAt(texts, *places.drive).size();
    Put(record, *places.drive, is_parted ? folder.substr(0, length) : std::wstring_view());
  }
  Put(record, places.path, path);
  return true;
}

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
