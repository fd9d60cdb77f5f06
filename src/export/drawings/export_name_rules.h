// Names of exported files, made of the user's list of names: a drawing's own, its sheet's size and
// parameters of its model, with a separator between them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qm {

enum class NameToken { kSheetSize, kName, kParameter };

struct NamingRule {
  std::vector<NameToken> tokens;         // in their order
  std::vector<std::wstring> parameters;  // one for each token of that kind
  std::wstring separator;

  bool Uses(NameToken token) const;
};

// Of the two fields as typed. An empty separator means a space, "NULL" none at all.
NamingRule NamingRuleOf(std::wstring_view names, std::wstring_view separator);

// What the tokens stand for. Nothing adds neither text nor separator; an empty text adds the
// separator.
struct NameValues {
  std::optional<std::wstring> sheet_size;
  std::optional<std::wstring> name;
  std::vector<std::optional<std::wstring>> parameters;
};

// Without folder and extension; may be empty.
std::wstring FileName(const NamingRule& rule, const NameValues& values);

// The name of a sheet that has none of its own.
std::wstring NumberedName(const std::wstring& name, int sheet);

}  // namespace qm
