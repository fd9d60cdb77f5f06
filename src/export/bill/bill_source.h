// What a bill of materials is made of: the components of the current assembly and, for each model,
// the texts that its row shows. Each fact is asked of the host once, however often a model occurs.
#pragma once

#include <string>
#include <vector>

#include "export/bill/bill_rules.h"
#include "toolkit/model.h"

namespace qm {

// Reads the active, visible components of all levels under `assembly`. Fails only when they cannot
// be collected.
ProError ReadBillStructure(ProMdl assembly, BillStructure* structure);

// The texts of one model's parameters, read at their first use.
class BillModelTexts {
 public:
  // `parameters`: the names of the parameters that the columns show.
  BillModelTexts(const BillStructure& structure, std::vector<std::wstring> parameters)
      : structure_(structure),
        parameters_(std::move(parameters)),
        models_(structure.models.size()) {}

  // False for skeleton models, and for models that cannot be retrieved or have no name.
  bool IsListed(uint32_t model) { return At(model).listed; }
  // One text for each parameter; empty where the model has none or one of another type.
  const std::vector<std::wstring>& Texts(uint32_t model) { return At(model).texts; }

 private:
  struct Model {
    bool read = false;
    bool listed = false;
    std::vector<std::wstring> texts;
  };

  Model& At(uint32_t model);
  void Read(const BillModel& source, Model* model) const;

  const BillStructure& structure_;
  const std::vector<std::wstring> parameters_;
  std::vector<Model> models_;
};

}  // namespace qm
