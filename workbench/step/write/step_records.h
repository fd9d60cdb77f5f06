// The text of a STEP exchange file (ISO 10303-21), put together record by record.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wb {

// Values as they stand in a record.
std::string StepRef(int record);                        // #12
std::string StepRefs(const std::vector<int>& records);  // (#12,#13)
std::string StepReal(double value);  // 2.5E-3, with the point that readers ask for
std::string StepReals(double x, double y, double z);
// In quotes, from UTF-8; what is not ASCII by its code, so that every reader has it.
std::string StepQuoted(std::string_view utf8);
inline constexpr std::string_view kStepNoText = "''";

class StepRecords {
 public:
  // Each adds a record and returns its number.
  int Add(std::string_view entity, std::initializer_list<std::string_view> values);
  int AddComplex(std::string_view text);
  // The same number for the same values.
  int AddOnce(std::string_view entity, std::initializer_list<std::string_view> values);

  // The whole file; nothing may be added after it. `name` is that of the file, in UTF-8.
  std::string TakeFile(std::string_view name);

 private:
  int Append(std::string_view text);

  std::string text_;
  int last_ = 0;
  std::unordered_map<std::string, int> once_;
};

}  // namespace wb
