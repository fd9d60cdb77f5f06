// The model that was shown when a dialog opened, which its end shows again.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "frame/models/current_assembly.h"

namespace qm {

// By name, since the user may erase it meanwhile, unless the host does not tell the name.
class ShownModel {
 public:
  explicit ShownModel(const std::optional<CurrentModel>& current);

  const std::optional<CurrentModel>& model() const { return current_; }
  // A model of this type has got another name.
  void Renamed(ProMdlType type, std::wstring_view before, std::wstring_view after);
  void ShowAgain() const;

 private:
  const std::optional<CurrentModel> current_;
  std::optional<std::wstring> name_;
};

}  // namespace qm
