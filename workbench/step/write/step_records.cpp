// Records with their numbers, between the sections of an exchange file.
#include "workbench/step/write/step_records.h"

#include <cmath>
#include <cstdio>

#include "workbench/base/text.h"

namespace wb {
namespace {

std::string RecordText(std::string_view entity, std::initializer_list<std::string_view> values) {
  return std::string(entity) + "(" + Join(",", values) + ")";
}

void AppendHex(std::string& text, const char* format, unsigned code) {
  char hex[8];
  std::snprintf(hex, sizeof hex, format, code);
  text += hex;
}

bool StandsAsItIs(char16_t c) {
  return c >= 0x20 && c < 0x7F;
}

}  // namespace

std::string StepRef(int record) {
  return "#" + std::to_string(record);
}

std::string StepRefs(const std::vector<int>& records) {
  std::string list = "(";
  for (const int record : records) list += (list.size() > 1 ? ",#" : "#") + std::to_string(record);
  return list + ")";
}

std::string StepReal(double value) {
  std::string text = NumberText(value);
  const size_t exponent = text.find_first_of("eE");
  const bool has_point = text.find('.') != std::string::npos;
  if (exponent == std::string::npos) return has_point ? text : text + ".";
  text[exponent] = 'E';
  return has_point ? text : text.insert(exponent, ".");
}

std::string StepReals(double x, double y, double z) {
  return "(" + StepReal(x) + "," + StepReal(y) + "," + StepReal(z) + ")";
}

std::string StepQuoted(std::string_view utf8) {
  std::string text = "'";
  bool coded = false;
  for (const char16_t c : ToUtf16(utf8)) {
    if (coded && StandsAsItIs(c)) text += "\\X0\\";
    if (!coded && !StandsAsItIs(c)) text += "\\X2\\";
    coded = !StandsAsItIs(c);
    if (coded) {
      AppendHex(text, "%04X", c);
    } else {
      text.append(c == u'\'' || c == u'\\' ? 2 : 1, static_cast<char>(c));
    }
  }
  return text + (coded ? "\\X0\\'" : "'");
}

int StepRecords::Append(std::string_view text) {
  text_.append("#").append(std::to_string(++last_)).append("=").append(text).append(";\n");
  return last_;
}

int StepRecords::Add(std::string_view entity, std::initializer_list<std::string_view> values) {
  return Append(RecordText(entity, values));
}

int StepRecords::AddComplex(std::string_view text) {
  return Append("(" + std::string(text) + ")");
}

int StepRecords::AddOnce(std::string_view entity, std::initializer_list<std::string_view> values) {
  std::string text = RecordText(entity, values);
  const auto known = once_.find(text);
  if (known != once_.end()) return known->second;
  const int record = Append(text);
  once_.emplace(std::move(text), record);
  return record;
}

// No time stands in it: the same model gives the same file.
std::string StepRecords::TakeFile(std::string_view name) {
  std::string head = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME(" +
                     StepQuoted(name) + ",'',(''),(''),'Quillmax workbench','','');\n" +
                     "FILE_SCHEMA(('AUTOMOTIVE_DESIGN { 1 0 10303 214 1 1 1 1 }'));\nENDSEC;\n"
                     "DATA;\n";
  return text_.insert(0, head).append("ENDSEC;\nEND-ISO-10303-21;\n"), std::move(text_);
}

}  // namespace wb
