// What happened, in order: everything that the plug-in showed, asked of Windows, did wrong or met
// that is not modelled. A new kind of event is a record here and a name in the list of kinds.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "workbench/session/user_requests.h"

namespace wb {

// A note of the message area.
struct Note {
  std::string text;
};

// A message file or key that was asked for and is not there.
struct MissingText {
  std::string text;
};

struct Repaint {
  int window = 0;
};

struct TreeRefresh {
  std::string model;
};

// What an interactive selection was asked to allow: number and value of each option.
struct PickOptions {
  std::vector<std::pair<int, int>> options;
};

// A program that the plug-in started.
struct ShellCall {
  std::string function;  // "ShellExecuteW", "WinExec"
  std::string verb;
  std::string program;  // for WinExec the whole command line
  std::string parameters;
  int show = 0;
};

// A file of another program that a writer of the host's has made.
struct ExportedFile {
  std::string path;
  std::string format;     // "PDF"
  std::string model;      // "plate.drw"
  bool is_real = false;   // otherwise it is a text that stands for the host's file
  std::string trouble{};  // why it is none, where it could be; empty: there is nothing to tell
};

// A macro that the host is to run once the command has ended. None is carried out.
struct QueuedMacro {
  std::string text;
};

struct MouseEvent {
  unsigned flags = 0;
  unsigned dx = 0;
  unsigned dy = 0;
  unsigned data = 0;
};

// The class id of an object asked for, "{...}".
struct ClassRequest {
  std::string id;
};

// One breach of the interface's contract: "plug-in misused FUNCTION: why".
struct Breach {
  std::string function;
  std::string why;
  std::string Text() const { return "plug-in misused " + function + ": " + why; }
};

// What the workbench does not know how to do: "workbench: not modelled: FUNCTION".
struct Gap {
  std::string text;
};

// A file of models, dialogs or messages that could not be read.
struct FileProblem {
  std::string text;
};

using Event = std::variant<Note, MissingText, Repaint, TreeRefresh, PickOptions, MessageBox,
                           FileRequest, ShellCall, ExportedFile, QueuedMacro, MouseEvent,
                           ClassRequest, Breach, Gap, FileProblem>;

class Events {
 public:
  void Add(Event event) { all_.push_back(std::move(event)); }
  // How many there have been: where the next ones begin.
  size_t Mark() const { return all_.size(); }
  // Those of one kind since a mark, in order.
  template <typename Kind>
  std::vector<Kind> Since(size_t mark) const {
    std::vector<Kind> found;
    for (size_t i = mark; i < all_.size(); ++i) {
      if (const Kind* const event = std::get_if<Kind>(&all_[i])) found.push_back(*event);
    }
    return found;
  }
  template <typename Kind>
  std::vector<Kind> All() const {
    return Since<Kind>(0);
  }
  // What those of one kind say, for kinds that are a text or can be told in one.
  template <typename Kind>
  std::vector<std::string> TextsSince(size_t mark) const {
    std::vector<std::string> texts;
    for (const Kind& event : Since<Kind>(mark)) texts.push_back(TextOf(event));
    return texts;
  }
  template <typename Kind>
  std::vector<std::string> AllTexts() const {
    return TextsSince<Kind>(0);
  }
  // Forgets those of one kind; marks set before no longer hold.
  template <typename Kind>
  void Forget() {
    std::erase_if(all_, [](const Event& event) { return std::holds_alternative<Kind>(event); });
  }

 private:
  template <typename Kind>
  static std::string TextOf(const Kind& event) {
    if constexpr (requires { event.Text(); }) {
      return event.Text();
    } else {
      return event.text;
    }
  }

  std::vector<Event> all_;
};

}  // namespace wb
