// The folder and the file in a record of the host whose layout is not certain: read by where known
// texts stand.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace qm {

// The model's file without its version ("bolt.prt"), by the same rules. No value: the record has
// another order and says nothing.
std::optional<std::wstring> FileInModelRecord(std::wstring_view record, std::wstring_view name);

// `record` is the host's record of a model's data as characters, zeroed before the host filled it;
// `name` the model's name, which must stand at the place of one of the two orders that are known.
// Then the text with a separator is the path, and a drive letter, with or without its colon, the
// device. No value: the record has another order and says nothing.
std::optional<std::wstring> FolderInModelRecord(std::wstring_view record, std::wstring_view name);

// Makes `folder` the folder in such a record, in the form that the record has: with the drive apart
// from the path or in it, with or without a separator at the end. False, and the record is as it
// was, when its order is not known or the folder does not fit.
bool SetFolderInModelRecord(std::span<wchar_t> record, std::wstring_view name,
                            std::wstring_view folder);

}  // namespace qm
