// The contract of the host functions, what each answers and what it holds against a caller, as
// rows: each is a call as a careless plug-in might make it.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/workbench/host/host_fixture.h"
#include "workbench/host/call.h"
#include "workbench/host/host_types.h"

namespace wb {

// An assembly "box" of the part "lid" (component 7), a part that is missing (8) and a datum (9).
class HostContract : public HostFixture {
 protected:
  struct Row {
    const char* what;
    std::function<ProError()> call;
    ProError status;
    std::string breach = "";        // without "plug-in misused "; empty: none
    std::string not_modelled = "";  // empty: nothing
  };

  HostContract() {
    Model part({"lid", ModelKind::kPart});
    part.SetParameter("MASS", 1.5);
    part.SetParameter("COUNT", 2);
    part.SetParameter("NAME", std::string("盖"));
    part.SetParameter("BOUGHT", true);
    lid_ = &host_.session.Add(std::move(part));
    Model assembly({"box", ModelKind::kAssembly});
    ItemList<Feature>& features = assembly.solid().features;
    features.Add(NewComponent(7, lid_->id));
    features.Add(NewComponent(8, {"gone", ModelKind::kPart}));
    features.Add({.id = 9, .type = 923});
    box_ = &host_.session.Add(std::move(assembly));
    drawing_ = &host_.session.Add(Model({"sheet", ModelKind::kDrawing}));
    Model& gone = host_.session.Add(Model({"erased", ModelKind::kPart}));
    stale_ = gone.handle;
    host_.session.Erase(gone);
  }

  void Check(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      SCOPED_TRACE(row.what);
      EXPECT_EQ(row.call(), row.status);
      const Lines breaches = Breaches();
      host_.events.Forget<Breach>();
      EXPECT_EQ(breaches, row.breach.empty() ? Lines() : Lines{"plug-in misused " + row.breach});
      const Lines gaps = host_.events.AllTexts<Gap>();
      host_.events.Forget<Gap>();
      EXPECT_EQ(gaps, row.not_modelled.empty()
                          ? Lines()
                          : Lines{"workbench: not modelled: " + row.not_modelled});
    }
  }

  ProModelitem Item(ProType type, int id, void* owner) const { return {type, id, owner}; }
  ProModelitem LidItem() const { return {PRO_PART, 0, lid_->handle}; }
  ProParameter LidParameter(const wchar_t* name) {
    ProParameter parameter{};
    ProModelitem item = LidItem();
    ProName text{};
    std::wstring(name).copy(text, PRO_NAME_SIZE - 1);
    EXPECT_EQ(ProParameterInit(&item, text, &parameter), PRO_TK_NO_ERROR);
    return parameter;
  }
  static ProParamvalue Value(ProParamvalueType type, int number = 0) {
    ProParamvalue value{};
    value.type = type;
    if (type == PRO_PARAM_INTEGER) value.value.i_val = number;
    if (type == PRO_PARAM_BOOLEAN) value.value.l_val = static_cast<short>(number);
    return value;
  }

  Model* lid_ = nullptr;
  Model* box_ = nullptr;
  Model* drawing_ = nullptr;
  void* stale_ = nullptr;
};

}  // namespace wb
