// QmBox: walks the shown occurrences of the preselected components, measures their parts as they
// are turned, tells the box and leaves its sizes on the clipboard.
#include "assembly/components/box.h"

#include <algorithm>
#include <string>
#include <unordered_set>
#include <vector>

#include "assembly/components/box_rules.h"
#include "assembly/components/part_reach.h"
#include "assembly/components/placed_components.h"
#include "frame/messages/clipboard.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/opening.h"
#include "frame/settings/config.h"
#include "frame/structure/preselected_components.h"
#include "frame/text/fixed_text.h"
#include "frame/text/list_rules.h"
#include "toolkit/properties.h"

namespace qm {
namespace {

constexpr wchar_t kNoGeometry[] = L"\t所选元件没有几何体\t";
// The file of the parameter dialog, where the user sets how outlines are written.
constexpr wchar_t kOutlineFile[] = L"QmParams.ini";

// Empty, after a line in the log, when the file cannot be read.
std::wstring OutlineSetting(const wchar_t* section, const std::wstring& path) {
  const auto setting = TryReadSetting(section, kContentKey, path);
  if (!setting) LogFailure("a setting of outlines cannot be read");
  return setting.value_or(std::wstring());
}

BoxFormat AskFormat() {
  const std::wstring path = TextFolderConfigPath(kOutlineFile);
  return {OutlineDecimals(OutlineSetting(L"QmOutlineNum", path)),
          WithoutBlanks(OutlineSetting(L"QmOutlineOrder", path)) == L"1"};
}

struct MeasuredBox {
  OutlineBox box;
  long long left_out = 0;
};

class BoxWalk {
 public:
  BoxWalk(const AssemblyLevels& levels, MeasuredBox* measured)
      : levels_(levels), placed_(levels), measured_(*measured) {}

  // All shown parts under `kept`.
  void Walk(ProMdl root, const ComponentTree& kept) {
    Enter(root, {0, Identity(), kept.is_whole ? nullptr : &kept, 0});
    while (!pending_.empty()) {
      const Occurrence at = pending_.back();
      pending_.pop_back();
      for (size_t i = 0; i < levels_.at(at.level).size(); ++i) Visit(at, i);
    }
  }

  // Whether all of an assembly was to be measured somewhere.
  bool HasEntered(ProMdl assembly) const { return entered_.contains(assembly); }

 private:
  // An assembly somewhere in the structure.
  struct Occurrence {
    int level;
    Matrix placement;           // in the current assembly
    const ComponentTree* kept;  // null: all that is in it
    size_t depth;
  };

  void Enter(ProMdl assembly, const Occurrence& occurrence) {
    pending_.push_back(occurrence);
    if (occurrence.kept == nullptr) entered_.insert(assembly);
  }

  void Visit(const Occurrence& at, size_t number) {
    const LevelComponent ids = levels_.ids()[static_cast<size_t>(at.level)][number];
    const ComponentTree* kept = nullptr;
    if (at.kept != nullptr) {
      const auto branch = at.kept->below.find(ids.id);
      if (branch == at.kept->below.end()) return;
      kept = branch->second.is_whole ? nullptr : &branch->second;
    }
    const auto* const place = placed_.At(at.level, number);
    if (place == nullptr) ++measured_.left_out;
    if (place == nullptr || !place->is_shown) return;
    const Matrix placement = PlacedWithin(place->matrix, at.placement);
    if (ids.level != kNoLevel) {
      // No assembly holds itself; were it told so, the walk would never end.
      if (at.depth < levels_.ids().size()) {
        Enter(levels_.at(at.level)[number].model, {ids.level, placement, kept, at.depth + 1});
      }
    } else if (levels_.at(at.level)[number].type == PRO_MDL_PART) {
      AddPart(levels_.at(at.level)[number].model, placement);
    }
  }

  void AddPart(ProMdl part, const Matrix& placement) {
    const PartReach* const part_reach = reaches_.Of(part, placement);
    bool is_in_box = part_reach != nullptr && part_reach->is_whole;
    if (part_reach != nullptr && part_reach->reach.is_complete()) {
      is_in_box &= part_reach->reach.AddTo(placement, &measured_.box);
    }
    if (!is_in_box) ++measured_.left_out;
  }

  const AssemblyLevels& levels_;
  PlacedComponents placed_;
  PartReaches reaches_;
  MeasuredBox& measured_;
  std::vector<Occurrence> pending_;
  std::unordered_set<ProMdl> entered_;
};

// Empty, after a line in the log, when the host does not tell.
std::wstring LengthUnitOf(ProMdl model) {
  ProUnitsystem system = {};
  ProError status = ProMdlPrincipalunitsystemGet(model, &system);
  if (Ok(status) && system.owner != model) status = PRO_TK_GENERAL_ERROR;
  if (!Ok(status)) {
    LogFailure(model, "ProMdlPrincipalunitsystemGet", status);
    return {};
  }
  ProUnititem unit = {};
  status = ProUnitsystemUnitGet(&system, PRO_UNITTYPE_LENGTH, &unit);
  if (Ok(status) && unit.owner == model) return std::wstring(FixedText(unit.name));
  LogFailure(model, "ProUnitsystemUnitGet", status);
  return {};
}

void TellNothing(long long left_out) {
  ShowMessage(kNoGeometry);
  NoteLeftOut(left_out);
}

void Tell(ProMdl root, const MeasuredBox& measured) {
  const BoxFormat format = AskFormat();
  const auto sizes = BoxSizes(measured.box, format);
  if (!sizes) return TellNothing(measured.left_out + 1);
  const bool is_copied = CopyToClipboard(*sizes);
  if (!is_copied) LogFailure("the clipboard has not taken the sizes");
  ShowMessage(
      BoxMessage(measured.box, format, *sizes, LengthUnitOf(root), measured.left_out, is_copied));
  NoteLeftOut(measured.left_out);
}

// What is preselected; without anything the whole assembly. Nothing when the preselection cannot be
// read: the box of something else would be taken for its own.
std::optional<ComponentTree> AskComponents(ProMdl root, long long* left_out) {
  const ComponentSelection selection = PreselectedComponents(root);
  *left_out = selection.left_out;
  ComponentTree kept = TreeOf(selection.components);
  if (!selection.components.empty()) return kept;
  kept.is_whole = true;
  const bool is_known = selection.is_read && selection.left_out == 0;
  return is_known ? std::optional(kept) : std::nullopt;
}

}  // namespace

ProError QmBox() {
  const auto root = CurrentAssembly();
  if (!root) {
    LogOutcome("nothing done, no current assembly");
    return PRO_TK_NO_ERROR;
  }
  MeasuredBox measured;
  const auto kept = AskComponents(*root, &measured.left_out);
  if (!kept) {
    LogOutcome("nothing measured, the preselection cannot be read");
    NoteLeftOut(measured.left_out);
    return PRO_TK_GENERAL_ERROR;
  }
  ComponentList components;
  const ProError status = CollectComponents(*root, ComponentKind::kAll, &components);
  if (!Ok(status)) {
    ShowNotCollected();
    return status;
  }
  const AssemblyLevels levels(*root, components);
  BoxWalk walk(levels, &measured);
  walk.Walk(*root, *kept);
  measured.left_out += std::ranges::count_if(
      components.left_out(), [&](const ProFeature& left) { return walk.HasEntered(left.owner); });
  if (measured.box.empty()) {
    TellNothing(measured.left_out);
  } else {
    Tell(*root, measured);
  }
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
