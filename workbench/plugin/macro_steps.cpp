// Steps of macros, and the gallery of appearances as they go through it.
#include "workbench/plugin/macro_steps.h"

#include <algorithm>
#include <unordered_set>

#include "workbench/base/text.h"

namespace wb {
namespace {

// Up to the next semicolon outside of backquotes.
size_t EndOfStep(std::string_view macro) {
  bool quoted = false;
  for (size_t i = 0; i < macro.size(); ++i) {
    if (macro[i] == '`') quoted = !quoted;
    if (macro[i] == ';' && !quoted) return i;
  }
  return macro.size();
}

MacroStep ParseStep(const std::string& text) {
  MacroStep step{text, "", {}, ""};
  const size_t quote = std::min(text.find('`'), text.size());
  step.action = Trimmed(std::string_view(text).substr(0, quote));
  for (size_t at = quote; at < text.size();) {
    const size_t end = text.find('`', at + 1);
    if (end == text.npos) break;
    step.names.push_back(text.substr(at + 1, end - at - 1));
    at = std::min(text.find('`', end + 1), text.size());
    const bool is_third_next = step.names.size() == 2 && at < text.size();
    if (is_third_next) step.count = Trimmed(std::string_view(text).substr(end + 1, at - end - 1));
  }
  return step;
}

void ClearOne(SolidContent& solid) {
  solid.appearance.reset();
  for (Surface& surface : solid.surfaces) surface.appearance.reset();
}

void ClearAppearances(Model& top) {
  std::unordered_set<Model*> met = {&top};
  std::vector<Model*> pending = {&top};
  while (!pending.empty()) {
    Model& model = *pending.back();
    pending.pop_back();
    SolidContent* const solid = model.As<SolidContent>();
    if (solid == nullptr) continue;
    ClearOne(*solid);
    model.modified = true;
    for (Feature& feature : solid->features) {
      Model* const below = feature.ComponentModel();
      if (below != nullptr && met.insert(below).second) pending.push_back(below);
    }
  }
}

// What is open while a macro runs.
enum class Opened { kAsBefore, kNothing, kGallery, kClearMenu, kQuestion };

// Windows that steps name.
constexpr char kMain[] = "main_dlg_cur";
constexpr char kAsking[] = "UI Message Dialog";

struct StepRow {
  const char* action;
  const char* window;
  const char* name;  // the last one of the step
  Opened at_least;   // what must be open
  Opened then;       // what is open afterwards
  bool clears;
};
constexpr char kClearMenu[] = "ProCmdViewGallery_layoutph.palette_holder.clearAppearance";
constexpr char kGallery[] = "ProCmdViewGallery.view";
// Menus that are closed behind the question leave it open: what is open stays so.
// clang-format off
constexpr StepRow kSteps[] = {
    {"~ Select",   kMain,   kGallery,             Opened::kNothing,   Opened::kGallery,   false},
    {"~ Select",   kMain,   kClearMenu,           Opened::kGallery,   Opened::kClearMenu, false},
    {"~ Activate", kMain,   "clearAllAppearance", Opened::kClearMenu, Opened::kQuestion,  false},
    {"~ Close",    kMain,   kClearMenu,           Opened::kClearMenu, Opened::kAsBefore,  false},
    {"~ Close",    kMain,   kGallery,             Opened::kGallery,   Opened::kAsBefore,  false},
    {"~ FocusIn",  kAsking, "yes",                Opened::kQuestion,  Opened::kQuestion,  false},
    {"~ FocusIn",  kAsking, "no",                 Opened::kQuestion,  Opened::kQuestion,  false},
    {"~ Activate", kAsking, "yes",                Opened::kQuestion,  Opened::kNothing,   true},
    {"~ Activate", kAsking, "no",                 Opened::kQuestion,  Opened::kNothing,   false},
};
// clang-format on

const StepRow* FindStep(const MacroStep& step) {
  const auto* const row = std::ranges::find_if(kSteps, [&](const StepRow& known) {
    return step.action == known.action && step.names.front() == known.window &&
           step.names.back() == known.name;
  });
  return row == std::end(kSteps) ? nullptr : row;
}

}  // namespace

std::vector<MacroStep> ParseMacro(std::string_view macro) {
  std::vector<MacroStep> steps;
  while (!macro.empty()) {
    const size_t end = EndOfStep(macro);
    const std::string text = Trimmed(macro.substr(0, end));
    if (!text.empty()) steps.push_back(ParseStep(text));
    macro.remove_prefix(std::min(end + 1, macro.size()));
  }
  return steps;
}

std::string PlayMacro(std::string_view macro, Session& session) {
  Opened opened = Opened::kNothing;
  for (const MacroStep& step : ParseMacro(macro)) {
    if (step.names.empty()) return "macro step \"" + step.text + "\"";
    const StepRow* const row = FindStep(step);
    if (row == nullptr) return "macro step \"" + step.text + "\"";
    if (opened < row->at_least) return "macro step \"" + step.text + "\" with nothing open for it";
    if (row->then != Opened::kAsBefore) opened = row->then;
    if (row->clears && session.Current() != nullptr)
      ClearAppearances(ShownSolid(*session.Current()));
  }
  return opened == Opened::kQuestion ? "a question that a macro leaves open" : "";
}

}  // namespace wb
