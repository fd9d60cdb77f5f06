// A native program beside the workbench that makes files of other programs and reads them with
// programs of its own. There is one for the whole process, started when it is first asked; it ends
// with its connection.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace wb {

class Companion {
 public:
  Companion() = default;
  ~Companion();
  Companion(const Companion&) = delete;
  Companion& operator=(const Companion&) = delete;

  struct Answer {
    std::string bytes;
    std::string trouble;  // why there are none; empty: there are
  };
  // `question` is a JSON text, `attachment` the file that it is about. The same question is asked
  // once.
  const Answer& Ask(const std::string& question, const std::string& attachment = "");

 private:
  // Why there is no companion; empty: there is one.
  std::string Start();
  std::string Connect();
  Answer AskAnew(const std::string& question, const std::string& attachment);
  bool Send(const std::string& bytes) const;
  bool Receive(char* place, std::size_t count) const;
  std::string ReceiveLine() const;
  void HangUp();

  static constexpr std::uintptr_t kNoConnection = ~std::uintptr_t{0};
  std::uintptr_t connection_ = kNoConnection;
  bool tried_ = false;
  std::string trouble_;
  std::map<std::string, Answer> answers_;
  std::size_t kept_bytes_ = 0;
};

Companion& TheCompanion();

}  // namespace wb
