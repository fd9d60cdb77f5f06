// Facts of records. Each type of record has one table that names its facts and its lists of further
// records; files, snapshots, pictures, differences and the statements `fact` and `expect fact` are
// all made from it.
#pragma once

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "workbench/session/item_list.h"

namespace wb {

// A fact apart from its record. No value: the record has none now, such as the model of a feature
// that is no component.
using FactValue = std::variant<std::monostate, bool, int, double, std::string, std::vector<double>>;

// As scripts and reports write it: "yes", "3", "0.5", text as it is, "1 2 3"; "none" for no value.
std::string FactText(const FactValue& value);
// Reads such a text as a value of the type that `like` has; texts where `like` has no value. Throws
// FactError.
FactValue ParseFact(std::string_view text, const FactValue& like);

// A value that the fact cannot have; the text says which it could have.
struct FactError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Whether a file says a fact.
enum class InFile { kIfNotDefault, kAlways, kRequired };

struct FactRow {
  const char* name;  // in files, scripts and reports
  FactValue (*get)(const void* record);
  void (*set)(void* record, const FactValue& value);  // throws FactError
  InFile in_file = InFile::kIfNotDefault;
};

struct RecordType;

// A list of records inside a record. Items are told apart by their key: id, name, or, for records
// that have neither, their number from 1.
struct ListRow {
  const char* name;
  const RecordType& (*type)();
  size_t (*size)(const void* record);
  void* (*at)(void* record, size_t place);
  std::string (*key)(const void* record, size_t place);
  // The place of the item with a key; as many as there are items when there is none.
  size_t (*find)(const void* record, const std::string& key);
  // Adds a copy of `item` at the end; throws FactError when its key is there already.
  void (*add)(void* record, const void* item);
};

struct RecordType {
  std::span<const FactRow> facts;
  std::span<const ListRow> lists;
  std::shared_ptr<void> (*make)();  // a record whose facts are as they are by default
  const void* (*plain)();           // such a one that nobody changes
};
// One specialisation for each type of record.
template <typename Record>
const RecordType& RecordTypeOf();

template <typename Record>
std::shared_ptr<void> MakeRecord() {
  return std::make_shared<Record>();
}
template <typename Record>
const void* PlainRecord() {
  static const Record kPlain{};
  return &kPlain;
}

// A record of whichever type.
struct RecordRef {
  void* record;
  const RecordType* type;
};

// The words of an enumeration, beside their values. Found by the enumeration's type.
template <typename Enumeration>
struct EnumerationWord {
  Enumeration value;
  const char* word;
};
template <typename Enumeration>
std::span<const EnumerationWord<Enumeration>> WordsOf();

template <typename Enumeration>
const char* WordFor(Enumeration value) {
  for (const auto& row : WordsOf<Enumeration>()) {
    if (row.value == value) return row.word;
  }
  return "unknown";
}
template <typename Enumeration>
std::optional<Enumeration> FromWord(std::string_view word) {
  for (const auto& row : WordsOf<Enumeration>()) {
    if (word == row.word) return row.value;
  }
  return std::nullopt;
}

// How a member of type T becomes a value and back. Types of the session add their own.
template <typename T>
struct FactTraits;

// Throws what is wrong with `value` where `wanted` is wanted.
[[noreturn]] void RefuseFact(const FactValue& value, const std::string& wanted);

template <>
struct FactTraits<bool> {
  static FactValue Get(bool held) { return held; }
  static bool From(const FactValue& value);
};
template <>
struct FactTraits<int> {
  static FactValue Get(int held) { return held; }
  static int From(const FactValue& value);
};
template <>
struct FactTraits<double> {
  static FactValue Get(double held) { return held; }
  static double From(const FactValue& value);
};
template <>
struct FactTraits<std::string> {
  static FactValue Get(const std::string& held) { return held; }
  static std::string From(const FactValue& value);
};
// Points: their numbers one after another.
template <size_t Size>
struct FactTraits<std::array<double, Size>> {
  static FactValue Get(const std::array<double, Size>& held) {
    return std::vector<double>(held.begin(), held.end());
  }
  static std::array<double, Size> From(const FactValue& value) {
    const auto* const numbers = std::get_if<std::vector<double>>(&value);
    if (numbers == nullptr || numbers->size() != Size) {
      RefuseFact(value, std::to_string(Size) + " numbers");
    }
    std::array<double, Size> held{};
    std::copy(numbers->begin(), numbers->end(), held.begin());
    return held;
  }
};
// Matrices: row by row.
template <size_t Rows, size_t Columns>
struct FactTraits<std::array<std::array<double, Columns>, Rows>> {
  using Matrix = std::array<std::array<double, Columns>, Rows>;
  static FactValue Get(const Matrix& held) {
    std::vector<double> numbers;
    for (const auto& row : held) numbers.insert(numbers.end(), row.begin(), row.end());
    return numbers;
  }
  static Matrix From(const FactValue& value) {
    const auto numbers = FactTraits<std::array<double, Rows * Columns>>::From(value);
    Matrix held;
    for (size_t i = 0; i < numbers.size(); ++i) held[i / Columns][i % Columns] = numbers[i];
    return held;
  }
};
// One of the enumeration's words.
template <typename T>
requires std::is_enum_v<T>
struct FactTraits<T> {
  static FactValue Get(T held) { return std::string(WordFor(held)); }
  static T From(const FactValue& value) {
    const auto* const word = std::get_if<std::string>(&value);
    if (word != nullptr) {
      if (const auto known = FromWord<T>(*word)) return *known;
    }
    std::string words;
    for (const auto& row : WordsOf<T>())
      words += (words.empty() ? "" : ", ") + std::string(row.word);
    RefuseFact(value, "one of " + words);
  }
};

[[noreturn]] void RefuseRepeated(const std::string& key);

// Keys of items as texts, and back; a text that is no such key gives one that no item has.
std::string KeyText(int id);
inline std::string KeyText(const std::string& name) {
  return name;
}
template <typename Key>
Key KeyFrom(const std::string& text);
// "1" is the first; as many as there are for a text that is no such number.
size_t PlaceFromNumber(const std::string& text, size_t size);

template <typename T>
struct MemberOf;
template <typename Record, typename Type>
struct MemberOf<Type Record::*> {
  using Owner = Record;
  using Held = Type;
};

// A member of a record, or the member `Inner` of that member.
template <auto Member, auto Inner>
auto& MemberIn(auto& record) {
  if constexpr (std::is_null_pointer_v<decltype(Inner)>) {
    return record.*Member;
  } else {
    return record.*Member.*Inner;
  }
}

template <auto Member, auto Inner>
FactValue GetMember(const void* record) {
  using Record = typename MemberOf<decltype(Member)>::Owner;
  const auto& held = MemberIn<Member, Inner>(*static_cast<const Record*>(record));
  return FactTraits<std::remove_cvref_t<decltype(held)>>::Get(held);
}

template <auto Member, auto Inner>
void SetMember(void* record, const FactValue& value) {
  using Record = typename MemberOf<decltype(Member)>::Owner;
  auto& held = MemberIn<Member, Inner>(*static_cast<Record*>(record));
  held = FactTraits<std::remove_cvref_t<decltype(held)>>::From(value);
}

// The row of a member, or of a member's own member.
template <auto Member, auto Inner = nullptr>
constexpr FactRow Fact(const char* name, InFile in_file = InFile::kIfNotDefault) {
  return {name, &GetMember<Member, Inner>, &SetMember<Member, Inner>, in_file};
}

// What a list row does with the member `Member`: an ItemList, or a vector of records without id and
// name.
template <auto Member>
struct ListAccess {
  using Record = typename MemberOf<decltype(Member)>::Owner;
  using Items = typename MemberOf<decltype(Member)>::Held;
  using Item = std::remove_cvref_t<decltype(std::declval<Items&>()[0])>;
  static constexpr bool kHasKeys = requires(const Items& items) { items.FirstRepeated(); };

  static const Items& Of(const void* record) { return static_cast<const Record*>(record)->*Member; }
  static size_t Size(const void* record) { return Of(record).size(); }
  static void* At(void* record, size_t place) {
    return &(static_cast<Record*>(record)->*Member)[place];
  }
  static std::string KeyAt(const void* record, size_t place) {
    if constexpr (kHasKeys) {
      return KeyText(ItemKey(Of(record)[place]));
    } else {
      return std::to_string(place + 1);
    }
  }
  static size_t Find(const void* record, const std::string& key) {
    if constexpr (kHasKeys) {
      return Of(record).PlaceOf(KeyFrom<typename Items::Key>(key));
    } else {
      return PlaceFromNumber(key, Size(record));
    }
  }
  static void Add(void* record, const void* item) {
    Items& items = static_cast<Record*>(record)->*Member;
    const Item& added = *static_cast<const Item*>(item);
    if constexpr (kHasKeys) {
      if (items.Find(ItemKey(added)) != nullptr) RefuseRepeated(KeyText(ItemKey(added)));
      items.Add(added);
    } else {
      items.push_back(added);
    }
  }
};

template <auto Member>
constexpr ListRow List(const char* name) {
  using Access = ListAccess<Member>;
  return {name,           &RecordTypeOf<typename Access::Item>,
          &Access::Size,  &Access::At,
          &Access::KeyAt, &Access::Find,
          &Access::Add};
}

// A fact that differs between two states of a record: its path, such as "features/12/hidden". An
// item that came or went stands under its own path, with its facts as the text.
struct FactChange {
  std::string path;
  std::optional<std::string> before;  // no value: not there
  std::optional<std::string> after;
};
void CollectChanges(const RecordType& type, void* before, void* after, const std::string& path,
                    std::vector<FactChange>& changes);

// The fact with this name or path, from one of `records` on. Throws FactError, which says what
// there is instead.
struct FactPlace {
  void* record;
  const FactRow* row;
};
FactPlace FindFact(std::span<const RecordRef> records, std::string_view path);

// Whether a fact's value is what a text says; numbers agree that differ by rounding alone.
bool IsFact(const FactValue& value, std::string_view text);

// How many items the list with this path has. Throws FactError.
size_t CountItems(std::span<const RecordRef> records, std::string_view path);

// Adds an item to the list with this path: "views/3" is the item with that key, "sheets" one of a
// list without keys. Throws FactError.
using NamedFacts = std::span<const std::pair<std::string, std::string>>;
void AddItem(std::span<const RecordRef> records, std::string_view path, NamedFacts facts);

}  // namespace wb
