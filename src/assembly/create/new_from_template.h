// What NewPart, NewAsm and NewSmt have in common: a new model from a template, put into the active
// assembly.
#pragma once

#include "assembly/new_model/new_component.h"
#include "assembly/new_model/start_template.h"
#include "toolkit/types.h"

namespace qm {

struct NewKind {
  StartTemplate start;
  bool loads_first;        // before it is known whether there is an assembly
  const wchar_t* section;  // of the setting that asks for a constraint
  const wchar_t* no_csys;  // in the template
};
inline constexpr NewKind kNewAsm = {
    {L"template_designasm", PRO_MDL_ASSEMBLY,
     L"\t组件模板加载失败，请确认template_designasm选项是否配置正确\t"},
    true,
    L"AsmAssembly",
    L"\t组件模板无坐标系,无法缺省装配新零件\t"};
inline constexpr NewKind kNewPart = {kPartTemplate, false, L"PrtAssembly", kNoCsysInPartTemplate};
inline constexpr NewKind kNewSmt = {
    {L"template_sheetmetalpart", PRO_MDL_PART,
     L"\t钣金件模板加载失败，请确认template_sheetmetalpart选项是否配置正确\t"},
    false,
    L"SmtAssembly",
    L"\t钣金件模板无坐标系,无法缺省装配新零件\t"};

ProError MakeNew(const NewKind& kind);

}  // namespace qm
