// What a user can be asked, whoever asks it.
#pragma once

#include <string>

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

}  // namespace wb
