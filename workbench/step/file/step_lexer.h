// Reads the words of a STEP exchange file (ISO 10303-21) one by one, and names file and line
// when something cannot be read, so that a user sees where an import stopped.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace wb {

// Why a STEP file cannot be imported. `line` is 1-based; 0 means the file as a whole.
// what() reads "bolt.stp:123: reason; remedy".
struct StepError : std::runtime_error {
  static constexpr std::string_view kExportAgain = "export the file again from the CAD system";

  StepError(std::string in_file, std::size_t at_line, std::string why,
            std::string_view remedy = kExportAgain);

  std::string file;
  std::size_t line;
  std::string reason;
};

// The whole text of a file. Offsets into it stand for positions; lines are counted only when
// somebody asks, which is when an error is told.
struct StepSource {
  std::string file;
  std::string text;

  std::size_t LineOf(std::size_t offset) const;
  [[noreturn]] void Fail(std::size_t offset, std::string reason,
                         std::string_view remedy = StepError::kExportAgain) const;
};

enum class StepToken : std::uint8_t {
  kEnd,
  kKeyword,
  kReference,  // #12
  kNumber,
  kString,  // text without the quotes, still encoded
  kEnumeration,
  kBinary,
  kOmitted,  // $
  kDerived,  // *
  kUri,      // <other.stp#12>, an anchor in another file
  kOpen,
  kClose,
  kComma,
  kSemicolon,
  kEquals,
};

struct StepWord {
  StepToken token = StepToken::kEnd;
  std::string_view text;
  std::size_t offset = 0;
};

class StepLexer {
 public:
  // `source` must outlive the lexer and the words it gives out.
  explicit StepLexer(const StepSource& source, std::size_t offset = 0)
      : source_(&source), at_(offset) {}

  // The next word; kEnd once the text is used up. Throws StepError on a stray character and on
  // a string or comment that is never closed.
  StepWord Next();
  // Reads on behind `text`, which need not be made of words; false when it never comes.
  bool SkipBehind(std::string_view text);
  [[noreturn]] void Fail(const StepWord& word, std::string reason) const {
    source_->Fail(word.offset, std::move(reason));
  }

 private:
  void SkipBlanks();
  StepWord Take(StepToken token, std::size_t begin, std::size_t end, std::size_t next);
  StepWord TakeQuoted(StepToken token, char quote);
  StepWord TakeUntil(StepToken token, char closing);

  const StepSource* source_;
  std::size_t at_;
};

// The word as an error message shows it: short, on one line.
std::string ShowStepWord(const StepWord& word);

}  // namespace wb
