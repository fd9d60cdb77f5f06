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
    Model part;
    part.id = {"lid", ModelKind::kPart};
    part.parameters = {{"MASS", 1.5}, {"COUNT", 2}, {"NAME", std::string("盖")}, {"BOUGHT", true}};
    part.Reindex();
    lid_ = &host_.session.Add(std::move(part));
    Model assembly;
    assembly.id = {"box", ModelKind::kAssembly};
    for (const int id : {7, 8, 9}) assembly.features.emplace_back().id = id;
    assembly.features[0].component = lid_->id;
    assembly.features[1].component = {"gone", ModelKind::kPart};
    assembly.features[2].type = 923;
    assembly.Reindex();
    box_ = &host_.session.Add(std::move(assembly));
    Model drawing;
    drawing.id = {"sheet", ModelKind::kDrawing};
    drawing_ = &host_.session.Add(std::move(drawing));
    Model erased;
    erased.id = {"erased", ModelKind::kPart};
    Model& gone = host_.session.Add(std::move(erased));
    stale_ = gone.handle;
    host_.session.Erase(gone);
  }

  void Check(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      SCOPED_TRACE(row.what);
      EXPECT_EQ(row.call(), row.status);
      Lines breaches;
      for (const Breach& breach : std::exchange(host_.breaches, {})) {
        breaches.push_back(breach.Text());
      }
      EXPECT_EQ(breaches, row.breach.empty() ? Lines() : Lines{"plug-in misused " + row.breach});
      const Lines gaps = std::exchange(host_.not_modelled, {});
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
