// Starts the companion, which connects back over the machine's own loop, and asks it.
// A question is a line with two lengths, the question and the attachment; an answer a line with
// "ok" or "no" and a length, and so many bytes.
#include "workbench/companion/companion.h"

#include <cstdio>
#include <cstdlib>

#include "workbench/base/text.h"
#include "workbench/base/windows_headers.h"

#include <winsock2.h>

namespace wb {
namespace {

// The companion's command line, its program first: tools/environment.sh says it.
constexpr const wchar_t* kCommandVariable = L"WORKBENCH_COMPANION";
// A busy machine may take this long to start a program.
constexpr long kStartSeconds = 60;
constexpr DWORD kAnswerMilliseconds = 120'000;
// Questions and answers kept are those of one run of a command over a folder, and then some.
constexpr std::size_t kMostBytesKept = std::size_t{128} << 20;
constexpr std::size_t kLongestLine = 64;

std::wstring CommandLine() {
  std::wstring line(static_cast<std::size_t>(MAX_PATH) * 4, L'\0');
  line.resize(
      ::GetEnvironmentVariableW(kCommandVariable, line.data(), static_cast<DWORD>(line.size())));
  return line;
}

bool StartProgram(std::wstring line, unsigned short port) {
  const std::wstring program = line.substr(0, line.find(L' '));
  line += L" " + std::to_wstring(port);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION process{};
  if (!::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                        nullptr, nullptr, &start, &process)) {
    return false;
  }
  // Its handles are not closed: for a native program Wine leaves there what lay on its stack, and
  // what is closed may be our own output.
  return true;
}

// A socket of this machine alone that somebody can connect to; its port, 0 for none.
unsigned short Listen(SOCKET listener) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
  int size = sizeof(address);
  auto* const place = reinterpret_cast<sockaddr*>(&address);
  if (::bind(listener, place, size) != 0 || ::listen(listener, 1) != 0) return 0;
  if (::getsockname(listener, place, &size) != 0) return 0;
  return ::ntohs(address.sin_port);
}

SOCKET Accept(SOCKET listener) {
  fd_set waiting;
  FD_ZERO(&waiting);
  FD_SET(listener, &waiting);
  timeval time{kStartSeconds, 0};
  if (::select(0, &waiting, nullptr, nullptr, &time) != 1) return INVALID_SOCKET;
  const SOCKET connection = ::accept(listener, nullptr, nullptr);
  if (connection == INVALID_SOCKET) return connection;
  const DWORD wait = kAnswerMilliseconds;
  ::setsockopt(connection, SOL_SOCKET, SO_RCVTIMEO, reinterpret_cast<const char*>(&wait),
               sizeof(wait));
  const int at_once = 1;
  ::setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&at_once),
               sizeof(at_once));
  return connection;
}

}  // namespace

Companion::~Companion() {
  HangUp();
}

std::string Companion::Connect() {
  const std::wstring line = CommandLine();
  if (line.empty()) return "no companion is named by WORKBENCH_COMPANION";
  WSADATA data{};
  if (::WSAStartup(MAKEWORD(2, 2), &data) != 0) return "there are no sockets";
  const SOCKET listener = ::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
  const unsigned short port = Listen(listener);
  std::string trouble;
  if (port == 0) {
    trouble = "nobody can connect to this process";
  } else if (!StartProgram(line, port)) {
    trouble = "the companion cannot be started";
  } else {
    connection_ = Accept(listener);
    if (connection_ == kNoConnection) trouble = "the companion does not answer";
  }
  ::closesocket(listener);
  return trouble;
}

std::string Companion::Start() {
  if (!tried_) trouble_ = Connect();
  tried_ = true;
  return trouble_;
}

void Companion::HangUp() {
  if (connection_ != kNoConnection) ::closesocket(connection_);
  connection_ = kNoConnection;
}

bool Companion::Send(const std::string& bytes) const {
  for (std::size_t sent = 0; sent < bytes.size();) {
    const int count =
        ::send(connection_, bytes.data() + sent, static_cast<int>(bytes.size() - sent), 0);
    if (count <= 0) return false;
    sent += static_cast<std::size_t>(count);
  }
  return true;
}

bool Companion::Receive(char* place, std::size_t count) const {
  for (std::size_t got = 0; got < count;) {
    const int more = ::recv(connection_, place + got, static_cast<int>(count - got), 0);
    if (more <= 0) return false;
    got += static_cast<std::size_t>(more);
  }
  return true;
}

std::string Companion::ReceiveLine() const {
  std::string line;
  for (char c = 0; line.size() < kLongestLine && Receive(&c, 1) && c != '\n';) line += c;
  return line;
}

Companion::Answer Companion::AskAnew(const std::string& question, const std::string& attachment) {
  const std::string lengths =
      std::to_string(question.size()) + " " + std::to_string(attachment.size()) + "\n";
  std::string line;
  if (Send(lengths + question + attachment)) line = ReceiveLine();
  char word[3] = {};
  unsigned long long size = 0;
  Answer answer;
  if (std::sscanf(line.c_str(), "%2s %llu", word, &size) == 2) {
    answer.bytes.resize(size);
    if (Receive(answer.bytes.data(), answer.bytes.size())) {
      if (std::string(word) != "ok") std::swap(answer.bytes, answer.trouble);
      return answer;
    }
  }
  HangUp();
  trouble_ = "the companion has ended";
  return {"", trouble_};
}

const Companion::Answer& Companion::Ask(const std::string& question,
                                        const std::string& attachment) {
  const std::string key = question + '\0' + attachment;
  const auto known = answers_.find(key);
  if (known != answers_.end()) return known->second;
  if (kept_bytes_ > kMostBytesKept) {
    answers_.clear();
    kept_bytes_ = 0;
  }
  const std::string trouble = Start();
  Answer answer = trouble.empty() ? AskAnew(question, attachment) : Answer{"", trouble};
  kept_bytes_ += key.size() + answer.bytes.size() + answer.trouble.size();
  return answers_[key] = std::move(answer);
}

Companion& TheCompanion() {
  static Companion companion;
  return companion;
}

}  // namespace wb
