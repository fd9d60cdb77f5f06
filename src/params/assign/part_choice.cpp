// Chooses parts.
#include "params/assign/part_choice.h"

#include <algorithm>
#include <unordered_set>

#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/preselection.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr wchar_t kNotAllocated[] = L"ProArray Alloc error";
constexpr ProFeattype kNoFeatureType = -1;

// What is said of one assembly.
struct AssemblyTexts {
  const wchar_t* none;
  const wchar_t* unreadable;
};

class PartChooser {
 public:
  explicit PartChooser(const PartKind& kind) : kind_(kind) {}

  PartChoice OfPart(ProMdl part) {
    AddPart(part);
    return std::move(choice_);
  }

  PartChoice OfAssembly(ProMdl assembly) {
    choice_.in_assembly = true;
    const PreselectionAnswer selected = AskPreselection();
    if (selected.items) {
      AddSelected(*selected.items);
    } else if (selected.is_unreadable || selected.has_failed) {
      ++choice_.left_out;  // who has perhaps selected something does not mean everything
    } else {
      const wchar_t* const none =
          kind_.none_at_all != nullptr ? kind_.none_at_all : kind_.none_below;
      AddBelow(assembly,
               {none, kind_.unreadable_at_all != nullptr ? kind_.unreadable_at_all : none});
    }
    return std::move(choice_);
  }

 private:
  // Ends at the first one that cannot be used: the parts before it are worked on all the same.
  void AddSelected(const Preselected& selected) {
    for (int i = 0; i < selected.size() && choice_.refusal == nullptr; ++i) AddItem(selected[i]);
  }

  void AddItem(ProSelection selection) {
    auto item = ItemOf(selection);
    const ProMdl model = item ? ModelOf(*item) : nullptr;
    ProMdlType type = PRO_MDL_UNUSED;
    if (model == nullptr || !Ok(ProMdlTypeGet(model, &type)) || type == PRO_MDL_UNUSED) {
      ++choice_.left_out;
      LogFailure("a preselected item left out: it cannot be read");
    } else if (type == PRO_MDL_PART) {
      AddPart(model);
    } else if (type == PRO_MDL_ASSEMBLY) {
      AddBelow(model, {kind_.none_below, kind_.unreadable_below});
    }
  }

  // A component that is selected as a feature counts by its model, not by the assembly it lies in:
  // of a feature whose type is not told nobody knows which of the two is meant.
  static ProMdl ModelOf(ProModelitem& item) {
    ProMdl model = nullptr;
    ProFeattype type = kNoFeatureType;
    if (item.type == PRO_FEATURE) {
      if (!Ok(ProFeatureTypeGet(&item, &type)) || type == kNoFeatureType) return nullptr;
      if (type == PRO_FEAT_COMPONENT) {
        return Ok(ProAsmcompMdlGet(&item, &model)) ? model : nullptr;
      }
    }
    return Ok(ProModelitemMdlGet(&item, &model)) ? model : nullptr;
  }

  void AddPart(ProMdl part) {
    if (kind_.components != ComponentKind::kSheetMetal) return Add(part);
    ProMdlsubtype subtype = PROMDLSTYPE_UNUSED;
    const ProError status = ProMdlSubtypeGet(part, &subtype);
    if (!Ok(status) || subtype == PROMDLSTYPE_UNUSED) {
      LogFailure(part, "ProMdlSubtypeGet", status);
      ++choice_.left_out;
    } else if (subtype == PROMDLSTYPE_PART_SHEETMETAL) {
      Add(part);
    }
  }

  void AddBelow(ProMdl assembly, const AssemblyTexts& texts) {
    ComponentList components;
    if (!Ok(CollectComponents(assembly, kind_.components, &components))) {
      choice_.refusal = kNotAllocated;
      return;
    }
    choice_.left_out += static_cast<long long>(components.left_out().size());
    if (components.empty()) {
      choice_.refusal = IsVisited(assembly, components) ? texts.none : texts.unreadable;
    }
    for (int i = 0; i < components.size(); ++i) {
      if (components.model(i) != nullptr) Add(components.model(i));
    }
  }

  // Whether the assembly's own level could be read.
  static bool IsVisited(ProMdl assembly, const ComponentList& components) {
    return std::ranges::none_of(components.left_out(), [&](const ProFeature& left_out) {
      return left_out.owner == assembly && left_out.id < 0;
    });
  }

  void Add(ProMdl part) {
    if (known_.insert(part).second) choice_.parts.push_back(part);
  }

  PartKind kind_;
  PartChoice choice_;
  std::unordered_set<ProMdl> known_;
};

}  // namespace

std::optional<PartChoice> ChooseParts(const PartKind& kind) {
  const auto current = CurrentModelItself();
  if (current && current->type == PRO_MDL_PART) return PartChooser(kind).OfPart(current->model);
  if (current && current->type == PRO_MDL_ASSEMBLY) {
    return PartChooser(kind).OfAssembly(current->model);
  }
  LogOutcome("nothing done, no current part or assembly");
  return std::nullopt;
}

}  // namespace qm
