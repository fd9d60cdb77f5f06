// Whether the host takes a name for a model: files that have it, and a trial with a scratch part,
// of which nothing stays.
#pragma once

#include <set>
#include <string>

namespace qm {

// Names that the host has taken in this dialog, in lower case. They are not tried again: where
// erasing acts late, the scratch part of the first trial would still have the name.
using LegalNames = std::set<std::wstring>;

class NameTrial {
 public:
  explicit NameTrial(LegalNames& legal);

  // Whether a file of a model of this name and type lies in the working directory. One that cannot
  // be loaded has the name as well: the host would refuse the renaming half way.
  bool HasFiles(const std::wstring& name, const std::wstring& type) const;

  // Never at the price of a file: a name under which any part lies in the working directory is not
  // tried, and none is where nobody may write. What cannot be tried counts as legal.
  bool IsLegal(const std::wstring& name);

 private:
  LegalNames& legal_;
  std::wstring directory_;  // without separator; empty: it is not told
  bool may_try_;
};

}  // namespace qm
