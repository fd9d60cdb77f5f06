// Decoding of STEP strings: control directives to Unicode, Unicode to UTF-8.
#include "workbench/step/file/step_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"

namespace wb {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct CodePage {
  char letter;                  // as in the directive \PB\ for ISO 8859-2
  std::u16string_view symbols;  // 0xA0 to 0xFF
};
// Latin-1 needs no table; the two right-to-left pages never occur in the trade.
// clang-format off
constexpr std::array kCodePages = {
    CodePage{'B', u"\u00a0Ą˘Ł¤ĽŚ§¨ŠŞŤŹ\u00adŽŻ°ą˛ł´ľśˇ¸šşťź˝žżŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢßŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙"},
    CodePage{'C', u"\u00a0Ħ˘£¤\ufffdĤ§¨İŞĞĴ\u00ad\ufffdŻ°ħ²³´µĥ·¸ışğĵ½\ufffdżÀÁÂ\ufffdÄĊĈÇÈÉÊËÌÍÎÏ\ufffdÑÒÓÔĠÖ×ĜÙÚÛÜŬŜßàáâ\ufffdäċĉçèéêëìíîï\ufffdñòóôġö÷ĝùúûüŭŝ˙"},
    CodePage{'D', u"\u00a0ĄĸŖ¤ĨĻ§¨ŠĒĢŦ\u00adŽ¯°ą˛ŗ´ĩļˇ¸šēģŧŊžŋĀÁÂÃÄÅÆĮČÉĘËĖÍÎĪĐŅŌĶÔÕÖ×ØŲÚÛÜŨŪßāáâãäåæįčéęëėíîīđņōķôõö÷øųúûüũū˙"},
    CodePage{'E', u"\u00a0ЁЂЃЄЅІЇЈЉЊЋЌ\u00adЎЏАБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯабвгдежзийклмнопрстуфхцчшщъыьэюя\u2116ёђѓєѕіїјљњћќ§ўџ"},
    CodePage{'G', u"\u00a0\u2018\u2019£\u20ac\u20af¦§¨©ͺ«¬\u00ad\ufffd\u2015°±²³΄΅Ά·ΈΉΊ»Ό½ΎΏΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡ\ufffdΣΤΥΦΧΨΩΪΫάέήίΰαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώ\ufffd"},
    CodePage{'I', u"\u00a0¡¢£¤¥¦§¨©ª«¬\u00ad®¯°±²³´µ¶·¸¹º»¼½¾¿ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏĞÑÒÓÔÕÖ×ØÙÚÛÜİŞßàáâãäåæçèéêëìíîïğñòóôõö÷øùúûüışÿ"},
};
// clang-format on

// Length of the valid UTF-8 sequence at the start of `text`, or 0.
std::size_t CharacterLength(std::string_view text) {
  for (std::size_t length = 1; length <= std::min<std::size_t>(4, text.size()); ++length) {
    if (IsUtf8(text.substr(0, length))) return length;
  }
  return 0;
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

class Decoder {
 public:
  explicit Decoder(std::string_view text) : text_(text) {}

  std::string Run() {
    while (at_ < text_.size()) {
      if (text_[at_] == '\\' && Directive()) continue;
      Plain();
    }
    return std::move(out_);
  }

 private:
  char At(std::size_t i) const { return at_ + i < text_.size() ? text_[at_ + i] : '\0'; }

  void Append(char32_t code) {
    if (code == 0 || code > 0x10FFFF) code = kReplacement;
    if (code < 0x10000) {
      out_ += FromUtf16(std::u16string(1, static_cast<char16_t>(code)));
    } else {
      out_ += FromUtf16(std::u16string{static_cast<char16_t>(0xD7C0 + (code >> 10)),
                                       static_cast<char16_t>(0xDC00 + (code & 0x3FF))});
    }
  }

  void Plain() {
    if (text_[at_] == '\'' && At(1) == '\'') ++at_;
    const std::size_t length = CharacterLength(text_.substr(at_, 4));
    if (length == 0) {
      Append(kReplacement);
    } else {
      out_.append(text_.substr(at_, length));
    }
    at_ += length == 0 ? 1 : length;
  }

  // False leaves the backslash as it is: some writers do not double it.
  bool Directive() {
    const char kind = At(1);
    if (kind == '\\') {
      out_ += '\\';
      at_ += 2;
    } else if (kind == 'S' && At(2) == '\\' && At(3) != '\0') {
      Append(Upper(static_cast<unsigned char>(At(3)) | 0x80u));
      at_ += 4;
    } else if (kind == 'P' && At(2) >= 'A' && At(2) <= 'I' && At(3) == '\\') {
      page_ = At(2);
      at_ += 4;
    } else if ((kind == 'N' || kind == 'F') && At(2) == '\\') {
      at_ += 3;
    } else {
      return kind == 'X' && Hexadecimal();
    }
    return true;
  }

  bool Hexadecimal() {
    if (At(2) == '\\') {
      const std::int64_t code = Hex(3, 2);
      if (code < 0) return false;
      Append(static_cast<char32_t>(code));
      at_ += 5;
      return true;
    }
    if ((At(2) != '2' && At(2) != '4') || At(3) != '\\') return false;
    const std::size_t width = At(2) == '2' ? 4 : 8;
    at_ += 4;
    std::u16string units;  // four-digit codes beyond the first plane come as two halves
    for (std::int64_t code; (code = Hex(0, width)) >= 0; at_ += width) {
      if (width == 8) {
        Append(static_cast<char32_t>(code));
      } else {
        units += code == 0 ? static_cast<char16_t>(kReplacement) : static_cast<char16_t>(code);
      }
    }
    out_ += FromUtf16(units);
    if (text_.substr(at_).starts_with("\\X0\\")) at_ += 4;
    return true;
  }

  std::int64_t Hex(std::size_t from, std::size_t digits) const {
    std::int64_t value = 0;
    for (std::size_t i = 0; i < digits; ++i) {
      const int digit = HexDigit(At(from + i));
      if (digit < 0) return -1;
      value = value * 16 + digit;
    }
    return value;
  }

  char32_t Upper(unsigned byte) const {
    if (page_ == 'A' || byte < 0xA0) return byte;
    for (const CodePage& page : kCodePages) {
      if (page.letter == page_) return page.symbols[byte - 0xA0];
    }
    return kReplacement;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  char page_ = 'A';
  std::string out_;
};

}  // namespace

std::string DecodeStepText(std::string_view raw) {
  if (raw.find_first_of("\r\n") == std::string_view::npos) return Decoder(raw).Run();
  std::string joined;
  for (const char c : raw) {
    if (c != '\r' && c != '\n') joined += c;
  }
  return Decoder(joined).Run();
}

}  // namespace wb
