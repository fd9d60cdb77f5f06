// Rules of the renaming commands: which models are listed, what a new name must be, what the user
// reads when it is refused, and what a workbook's rows say.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "toolkit/numbers.h"

namespace qm {

// The exclusion prefixes as they are worked by: full-width commas are commas, and the list ends at
// its first blank. The cut is deliberate: lists have always been read so.
std::wstring NormalisedFilter(std::wstring_view list);

// Names that begin with one of the prefixes stay out of the list. Capitals and small letters of
// ASCII are one, and no others: deliberately unlike the keywords of other commands.
class PrefixFilter {
 public:
  // An empty piece would exclude everything; it is none.
  explicit PrefixFilter(std::wstring_view normalised);
  bool Excludes(std::wstring_view model_name) const;

 private:
  std::vector<std::wstring> prefixes_;  // upper case
};

// "asm", "prt", or nothing.
const wchar_t* TypeWord(ProMdlType type);
// PRO_MDL_UNUSED for any other word.
ProMdlType TypeOf(std::wstring_view word);

// A row of the list.
struct RenameRow {
  std::wstring number;  // the row's name
  std::wstring old_name;
  std::wstring type;
  std::wstring new_name;
};

// Without the blanks around it.
std::wstring Trimmed(std::wstring_view name);

enum class NewName {
  kUnchanged,  // as the old one, or empty
  kTooLong,
  kIllegal,  // for a reason that shows without the host
  kToBeTried,
};

// What a row's new name is, as far as the row alone tells. The given length test lets 32 characters
// pass, which no buffer of the host holds: they are illegal, never cut. So is the name of a row of
// neither type, and one that would be read as a path, a pattern or an instance.
NewName Judge(const RenameRow& row);

inline constexpr size_t kLongestTypedName = 32;
bool IsTooLong(std::wstring_view new_name);

// Whether the host can be asked about the name at all: it fits, and means a name only.
bool CanBeName(std::wstring_view name);

// New names of the rows so far, by type: no two models may ask for one.
class AskedNames {
 public:
  // False when a row of this type has asked for it, whatever its case.
  bool Add(const RenameRow& row);

 private:
  std::set<std::pair<std::wstring, std::wstring>> names_;
};

// Names that models of a batch have had or have got, by type. A row whose old name is one of them
// means a model that is not there any more, or another one than it meant when it was written.
class MovedNames {
 public:
  void Add(const RenameRow& renamed);
  bool HoldOldNameOf(const RenameRow& row) const;

 private:
  std::set<std::pair<std::wstring, std::wstring>> names_;
};

// The refusals of a new name before anything is renamed, ...
std::wstring TooLongRefusal(std::wstring_view name);
std::wstring TakenRefusal(std::wstring_view name);
std::wstring IllegalRefusal(std::wstring_view name);
// ... of one that is too long when the renaming begins, and of one in a workbook.
std::wstring TooLongAtRename(std::wstring_view name);
std::wstring TooLongInWorkbook(std::wstring_view name);

// Why rows that are read again when the renaming begins cannot be renamed, as far as they tell it
// themselves: what the first wrong one of them gives.
std::optional<std::wstring> RefusalAtRename(const std::vector<RenameRow>& rows);

// The rows of a workbook with number, old name, type and new name: those below title and labels.
std::vector<RenameRow> RowsOfWorkbook(const std::vector<std::vector<std::wstring>>& sheet);
inline constexpr size_t kWorkbookColumns = 4;

}  // namespace qm
