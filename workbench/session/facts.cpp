// Facts as texts, and the walks over records that files, reports and statements share.
#include "workbench/session/facts.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "workbench/base/text.h"

namespace wb {
namespace {

template <typename Number>
std::optional<Number> Whole(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

std::string NumbersText(const std::vector<double>& numbers) {
  std::vector<std::string> texts;
  for (const double number : numbers) texts.push_back(NumberText(number));
  return Join(" ", texts);
}

std::optional<std::vector<double>> Numbers(std::string_view text) {
  std::vector<double> numbers;
  while (!text.empty()) {
    const size_t blank = std::min(text.find(' '), text.size());
    const auto number = Whole<double>(text.substr(0, blank));
    if (!number) return std::nullopt;
    numbers.push_back(*number);
    text.remove_prefix(std::min(blank + 1, text.size()));
  }
  return numbers;
}

// The facts of an item that say more than its defaults, for one that came or went.
std::string Summary(const RecordType& type, const void* record) {
  std::vector<std::string> texts;
  for (const FactRow& row : type.facts) {
    const FactValue value = row.get(record);
    if (row.in_file == InFile::kIfNotDefault && value == row.get(type.plain())) continue;
    texts.push_back(std::string(row.name) + " " + FactText(value));
  }
  return Join(", ", texts);
}

void CollectListChanges(const ListRow& list, void* before, void* after, const std::string& path,
                        std::vector<FactChange>& changes) {
  const RecordType& type = list.type();
  for (size_t i = 0; i < list.size(before); ++i) {
    const std::string key = list.key(before, i);
    const std::string item = path + "/" + key;
    const size_t now = list.find(after, key);
    if (now == list.size(after)) {
      changes.push_back({item, Summary(type, list.at(before, i)), std::nullopt});
    } else {
      CollectChanges(type, list.at(before, i), list.at(after, now), item + "/", changes);
    }
  }
  for (size_t i = 0; i < list.size(after); ++i) {
    const std::string key = list.key(after, i);
    if (list.find(before, key) != list.size(before)) continue;
    changes.push_back({path + "/" + key, std::nullopt, Summary(type, list.at(after, i))});
  }
}

std::string NamesIn(std::span<const RecordRef> records) {
  std::vector<std::string> names;
  for (const RecordRef& ref : records) {
    for (const FactRow& row : ref.type->facts) names.push_back(row.name);
    for (const ListRow& list : ref.type->lists) names.push_back(std::string(list.name) + "/...");
  }
  return Join(", ", names);
}

// The first step of a path and what is behind it.
struct PathSteps {
  explicit PathSteps(std::string_view path) {
    // Not by its own search, of whose inlined copies GCC 12 complains falsely.
    const auto slash = static_cast<size_t>(std::ranges::find(path, '/') - path.begin());
    first = path.substr(0, slash);
    rest = path.substr(std::min(slash + 1, path.size()));
  }
  std::string_view first;
  std::string_view rest;
};

RecordRef ItemIn(void* record, const ListRow& list, std::string_view key) {
  const size_t place = list.find(record, std::string(key));
  if (place == list.size(record)) {
    throw FactError("there is no " + std::string(list.name) + "/" + std::string(key));
  }
  return {list.at(record, place), &list.type()};
}

FactPlace FindInList(void* record, const ListRow& list, std::string_view path) {
  const PathSteps steps(path);
  const RecordRef item = ItemIn(record, list, steps.first);
  return FindFact({&item, 1}, steps.rest);
}

// A list, and the key that a path gives an item of it.
struct ListPlace {
  void* record;
  const ListRow* list;
  std::string key;
};

ListPlace FindList(std::span<const RecordRef> records, std::string_view path) {
  const PathSteps name(path);
  const PathSteps key(name.rest);
  for (const RecordRef& ref : records) {
    for (const ListRow& list : ref.type->lists) {
      if (name.first != list.name) continue;
      if (key.rest.empty()) return {ref.record, &list, std::string(key.first)};
      const RecordRef item = ItemIn(ref.record, list, key.first);
      return FindList({&item, 1}, key.rest);
    }
  }
  throw FactError("there is no list \"" + std::string(path) + "\"; there are: " + NamesIn(records));
}

void SetFact(const RecordRef& item, const std::string& name, const std::string& text) {
  const FactPlace place = FindFact({&item, 1}, name);
  place.row->set(place.record, ParseFact(text, place.row->get(place.record)));
}

// The fact that an item is found by; empty: it has none.
std::string KeyFactOf(const RecordType& type) {
  for (const FactRow& row : type.facts) {
    if (row.name == std::string_view("id") || row.name == std::string_view("name")) return row.name;
  }
  return {};
}

// Two numbers differ by rounding alone up to this part of them, or of 1.
constexpr double kRounding = 1e-9;

bool AreSame(double a, double b) {
  return a == b || std::abs(a - b) <= kRounding * std::max(1.0, std::abs(b));
}

}  // namespace

std::string FactText(const FactValue& value) {
  switch (value.index()) {
    case 0:
      return "none";
    case 1:
      return std::get<bool>(value) ? "yes" : "no";
    case 2:
      return std::to_string(std::get<int>(value));
    case 3:
      return NumberText(std::get<double>(value));
    case 4:
      return std::get<std::string>(value);
    default:
      return NumbersText(std::get<std::vector<double>>(value));
  }
}

FactValue ParseFact(std::string_view text, const FactValue& like) {
  if (std::holds_alternative<bool>(like)) {
    if (text == "yes" || text == "no") return text == "yes";
    throw FactError("\"" + std::string(text) + "\" is neither yes nor no");
  }
  if (std::holds_alternative<int>(like)) {
    if (const auto number = Whole<int>(text)) return *number;
    throw FactError("\"" + std::string(text) + "\" is no whole number");
  }
  if (std::holds_alternative<double>(like)) {
    if (const auto number = Whole<double>(text)) return *number;
    throw FactError("\"" + std::string(text) + "\" is no number");
  }
  if (std::holds_alternative<std::vector<double>>(like)) {
    if (const auto numbers = Numbers(text)) return *numbers;
    throw FactError("\"" + std::string(text) + "\" is no row of numbers");
  }
  return std::string(text);
}

void RefuseFact(const FactValue& value, const std::string& wanted) {
  throw FactError("\"" + FactText(value) + "\" instead of " + wanted);
}

void RefuseRepeated(const std::string& key) {
  throw FactError(key + " occurs twice");
}

bool FactTraits<bool>::From(const FactValue& value) {
  if (const auto* const flag = std::get_if<bool>(&value)) return *flag;
  RefuseFact(value, "yes or no");
}

int FactTraits<int>::From(const FactValue& value) {
  if (const auto* const number = std::get_if<int>(&value)) return *number;
  RefuseFact(value, "a whole number");
}

double FactTraits<double>::From(const FactValue& value) {
  if (const auto* const number = std::get_if<double>(&value)) return *number;
  if (const auto* const whole = std::get_if<int>(&value)) return *whole;
  RefuseFact(value, "a number");
}

std::string FactTraits<std::string>::From(const FactValue& value) {
  if (const auto* const text = std::get_if<std::string>(&value)) return *text;
  RefuseFact(value, "a text");
}

std::string KeyText(int id) {
  return std::to_string(id);
}

template <>
int KeyFrom<int>(const std::string& text) {
  return Whole<int>(text).value_or(std::numeric_limits<int>::min());
}

template <>
std::string KeyFrom<std::string>(const std::string& text) {
  return FoldCase(text);
}

size_t PlaceFromNumber(const std::string& text, size_t size) {
  const auto number = Whole<size_t>(text);
  return number && *number >= 1 && *number <= size ? *number - 1 : size;
}

void CollectChanges(const RecordType& type, void* before, void* after, const std::string& path,
                    std::vector<FactChange>& changes) {
  for (const FactRow& row : type.facts) {
    const FactValue was = row.get(before);
    const FactValue is = row.get(after);
    if (was != is) changes.push_back({path + row.name, FactText(was), FactText(is)});
  }
  for (const ListRow& list : type.lists) {
    CollectListChanges(list, before, after, path + list.name, changes);
  }
}

FactPlace FindFact(std::span<const RecordRef> records, std::string_view path) {
  const size_t slash = std::min(path.find('/'), path.size());
  const std::string_view name = path.substr(0, slash);
  for (const RecordRef& ref : records) {
    for (const FactRow& row : ref.type->facts) {
      if (name == row.name && slash == path.size()) return {ref.record, &row};
    }
    for (const ListRow& list : ref.type->lists) {
      if (name != list.name || slash == path.size()) continue;
      return FindInList(ref.record, list, path.substr(slash + 1));
    }
  }
  throw FactError("there is no fact \"" + std::string(path) + "\"; there are: " + NamesIn(records));
}

bool IsFact(const FactValue& value, std::string_view text) {
  if (FactText(value) == text) return true;
  if (const double* const number = std::get_if<double>(&value)) {
    const auto wanted = Whole<double>(text);
    return wanted && AreSame(*number, *wanted);
  }
  const auto* const numbers = std::get_if<std::vector<double>>(&value);
  if (numbers == nullptr) return false;
  const auto wanted = Numbers(text);
  return wanted && std::ranges::equal(*numbers, *wanted, &AreSame);
}

size_t CountItems(std::span<const RecordRef> records, std::string_view path) {
  const ListPlace place = FindList(records, path);
  if (!place.key.empty()) throw FactError("\"" + std::string(path) + "\" is no list");
  return place.list->size(place.record);
}

void AddItem(std::span<const RecordRef> records, std::string_view path, NamedFacts facts) {
  const ListPlace place = FindList(records, path);
  const std::shared_ptr<void> made = place.list->type().make();
  const RecordRef item{made.get(), &place.list->type()};
  const std::string key = KeyFactOf(*item.type);
  if (key.empty() != place.key.empty()) {
    throw FactError("items of " + std::string(place.list->name) +
                    (key.empty() ? " have no key" : " are told by their " + key));
  }
  if (!key.empty()) SetFact(item, key, place.key);
  for (const auto& [name, text] : facts) SetFact(item, name, text);
  place.list->add(place.record, item.record);
}

}  // namespace wb
