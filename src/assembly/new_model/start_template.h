// The templates that the host's users start new models from.
#pragma once

#include <optional>
#include <string>

#include "toolkit/model.h"

namespace qm {

// The option's first value, and what a model of this template is.
struct StartTemplate {
  const wchar_t* option;
  ProMdlType type;
  const wchar_t* not_loaded;  // what the user reads then
};
inline constexpr StartTemplate kPartTemplate = {
    L"template_solidpart", PRO_MDL_PART,
    L"\t零件模板加载失败，请确认template_solidpart选项是否配置正确\t"};

// The template's file. Nothing, after a message, where the option has no value.
std::optional<std::wstring> TemplateFile(const StartTemplate& start);

// Null, after a message, where the file cannot be loaded.
ProMdl LoadTemplate(const StartTemplate& start, const std::wstring& file);

}  // namespace qm
