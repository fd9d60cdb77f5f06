// What a user can be asked, whoever asks it.
#pragma once

#include <optional>
#include <string>

#include "workbench/session/model_link.h"

namespace wb {

struct MessageBox {
  std::string caption;
  std::string text;
  unsigned style = 0;
};

struct FileRequest {
  std::string asked_by;  // the host or Windows function
  std::string title;
  std::string filter;
  std::string start_folder;
  std::string default_extension;
  unsigned flags = 0;
  std::string offered_name{};
};

struct PickRequest {
  std::string filter;
  int max_count = 0;
};

// The host's dialog that places a component.
struct PlacementRequest {
  std::string assembly;   // "pump.asm"
  std::string component;  // "bolt.prt"
};
struct PlacementAnswer {
  std::optional<Point> at;  // the component's origin in the assembly; none: fixed where it is
};

}  // namespace wb
