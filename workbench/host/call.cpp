// What every crossing does before and after its own work, and the checks functions share.
#include "workbench/host/call.h"

#include <mutex>
#include <string_view>

#include "workbench/host/family_clock.h"

namespace wb {
namespace {

// Text of at most this many characters is shown in a trace line.
constexpr size_t kShownText = 60;

std::string Quoted(std::string text) {
  if (text.size() > kShownText) text.replace(kShownText, std::string::npos, "...");
  return "\"" + text + "\"";
}

// Calls from foreign threads may come at any time; only their record needs care.
std::mutex foreign_thread_mutex;

}  // namespace

std::string DescribeArgument(const char* text) {
  return text == nullptr ? "null" : Quoted(FromAnsi(text));
}

std::string DescribeArgument(const wchar_t* text) {
  if (text == nullptr) return "null";
  return Quoted(FromWide(std::wstring_view(text, wcsnlen(text, PRO_PATH_SIZE))));
}

std::string DescribeArgument(int number) {
  return std::to_string(number);
}

std::string DescribeArgument(double number) {
  return NumberText(number);
}

std::string DescribeArgument(const void* pointer) {
  return TheHost().DescribeHandle(pointer);
}

std::string DescribeArgument(const ProModelitem* item) {
  if (item == nullptr) return "null";
  return "item type " + std::to_string(static_cast<int>(item->type)) + " id " +
         std::to_string(item->id) + " of " + TheHost().DescribeHandle(item->owner);
}

FamilyClock& TheFamilyClock() {
  static FamilyClock clock;
  return clock;
}

CrossingBase::CrossingBase(const char* function) : host_(TheHost()), function_(function) {
  const char* const family = TheFamilyClock().family;
  is_clocked_ = family != nullptr && std::string_view(function).starts_with(family);
  if (is_clocked_) since_ = std::chrono::steady_clock::now();
}

CrossingBase::~CrossingBase() {
  if (is_clocked_) TheFamilyClock().spent += std::chrono::steady_clock::now() - since_;
}

bool CrossingBase::Begin() {
  if (!host_.OnUiThread()) {
    const std::lock_guard lock(foreign_thread_mutex);
    host_.ReportBreach(function_, "called from a thread that is not the user-interface thread");
    host_.trace.Enter(function_);
    return false;
  }
  call_ = host_.trace.Enter(function_);
  fault_ = host_.faults.Strike(function_);
  user_acted_ = host_.LetUserIn(function_);
  return fault_ == nullptr;
}

ProError CrossingBase::Caught() const {
  return CaughtInCrossing(host_, function_, user_acted_);
}

ProError CaughtInCrossing(Host& host, const char* function, bool user_acted) {
  try {
    throw;
  } catch (const Misuse& misuse) {
    // Only what the user has just taken away is no fault of the plug-in's.
    if (!user_acted || !misuse.stale) host.ReportBreach(function, misuse.why);
    return PRO_TK_BAD_INPUTS;
  } catch (const RefusedByHabit& refused) {
    return refused.status;
  } catch (const NotModelled& gap) {
    host.events.Add(Gap{"workbench: not modelled: " + std::string(function) + ": " + gap.what});
    return PRO_TK_NOT_IMPLEMENTED;
  } catch (const std::exception& error) {
    host.ReportBreach(function, std::string("exception across the boundary: ") + error.what());
    return PRO_TK_GENERAL_ERROR;
  } catch (...) {
    host.ReportBreach(function, "exception across the boundary");
    return PRO_TK_GENERAL_ERROR;
  }
}

void Call::FailUnlessMisled(const std::string& why) const {
  if (host.faults.claims_success() && host.faults.struck() > 0) {
    throw RefusedByHabit{PRO_TK_GENERAL_ERROR};
  }
  Fail(why);
}

HandleTable::Found Call::Look(const void* handle, HandleKind kind) const {
  HandleTable::Found found = host.handles.Look(handle, kind);
  if (found.object == nullptr) Fail(found);
  return found;
}

Model& Call::ModelAt(const void* handle) const {
  void* const model = host.handles.ObjectAt(handle, HandleKind::kModel);
  if (model == nullptr) Fail(host.handles.Look(handle, HandleKind::kModel));
  return *static_cast<Model*>(model);
}

Model& Call::SolidAt(const void* handle) const {
  Model& model = ModelAt(handle);
  if (model.id.kind != ModelKind::kPart && model.id.kind != ModelKind::kAssembly) {
    Fail("a " + std::string(KindWord(model.id.kind)) + " given where a solid is needed");
  }
  return model;
}

void Call::CheckStillThere(const void* handle) const {
  if (host.handles.ObjectAt(handle, HandleKind::kModel) != nullptr) return;
  throw NotModelled{"a model that is erased while it is visited"};
}

PickedItem& Call::SelectionAt(const void* handle) const {
  return *static_cast<PickedItem*>(Look(handle, HandleKind::kSelection).object);
}

Feature& Call::FeatureAt(const ProModelitem* item, Model** owner) const {
  if (item == nullptr) Fail("null feature");
  Model& model = SolidAt(item->owner);
  if (item->type != PRO_FEATURE) {
    Fail("item of type " + std::to_string(static_cast<int>(item->type)) + " given as a feature");
  }
  Feature* const feature = model.FindFeature(item->id);
  if (feature == nullptr) {
    Fail("\"" + model.id.Text() + "\" has no feature " + std::to_string(item->id));
  }
  if (owner != nullptr) *owner = &model;
  return *feature;
}

std::string Call::Text(const wchar_t* text, size_t limit, const char* what) const {
  if (text == nullptr) Fail(std::string("null ") + what);
  const size_t length = wcsnlen(text, limit);
  if (length >= limit) {
    Fail(std::string(what) + " longer than " + std::to_string(limit - 1) + " characters");
  }
  return FromWide(std::wstring_view(text, length));
}

std::string Call::Narrow(const char* text, size_t limit, const char* what) const {
  if (text == nullptr) Fail(std::string("null ") + what);
  const size_t length = strnlen(text, limit);
  if (length >= limit) {
    Fail(std::string(what) + " longer than " + std::to_string(limit - 1) + " characters");
  }
  return FromAnsi(std::string_view(text, length));
}

std::string Call::ModelNameText(const wchar_t* text) const {
  return Text(text, PRO_NAME_SIZE, "model name");
}

void Call::CopyText(wchar_t* place, size_t limit, const std::string& text) const {
  if (place == nullptr) Fail("null text buffer");
  const std::wstring wide = ToWide(text).substr(0, limit - 1);
  std::memcpy(place, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
}

void Call::TakeBack(const void* what, Resource resource) const {
  const std::string wrong = host.accounts.Check(what, resource);
  if (!wrong.empty()) Fail(wrong);
  host.accounts.Take(what);
}

}  // namespace wb
