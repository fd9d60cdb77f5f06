// The one host of a process.
#include "workbench/host/host.h"

#include <algorithm>
#include <stdexcept>

#include "workbench/base/text.h"
#include "workbench/base/windows_headers.h"
#include "workbench/host/host_types.h"

namespace wb {
namespace {

Host* current_host = nullptr;

}  // namespace

Host::Host() : ui_thread(::GetCurrentThreadId()) {
  if (current_host != nullptr) throw std::logic_error("a process has one host at a time");
  current_host = this;
  session.on_enter = [this](Model& model) {
    model.handle = handles.Give(HandleKind::kModel, &model);
  };
  session.on_leave = [this](Model& model) { Forget(model); };
}

Host::~Host() {
  current_host = nullptr;
}

std::filesystem::path Host::ResourceFile(const std::filesystem::path& name) const {
  const auto folder = habits.resources_lie_beside_text ? install_folder : install_folder / "text";
  return folder / "resource" / name;
}

void Host::Forget(Model& model) {
  handles.End(model.handle);
  handles.EndAllInside(&model);
  for (PickedItem* item : picked) {
    if (item->owner == &model) item->owner = nullptr;
    if (item->root == &model) item->root = nullptr;
  }
}

bool Host::IsTaken(const ModelName& name) {
  const auto is_it = [&](const ModelName& other) { return EqualFolded(other.Text(), name.Text()); };
  return session.Find(name) != nullptr || std::ranges::any_of(leaving, is_it);
}

void Host::ReportBreach(const std::string& function, const std::string& why) {
  events.Add(Breach{function, why});
}

bool Host::OnUiThread() const {
  return ::GetCurrentThreadId() == ui_thread;
}

void Host::TakeInput() {
  for (const MouseEvent& event : windows.input.Take()) {
    events.Add(event);
    if (event.IsMiddleClick()) ++windows.middle_clicks;
  }
}

bool Host::TakeMiddleClick() {
  TakeInput();
  if (windows.middle_clicks == 0) return false;
  --windows.middle_clicks;
  return true;
}

void Host::ControlIsBack() {
  leaving.clear();
  for (const PluginThread& thread : std::exchange(windows.threads, {})) {
    if (!thread.waited_for) ReportBreach("CreateThread", "nobody has waited for the thread's end");
    if (!thread.is_closed) ReportBreach("CreateThread", "the thread's handle was not closed");
  }
  TakeInput();
  if (std::exchange(windows.middle_clicks, 0) > 0) {
    ReportBreach("mouse_event", "a middle click that no dialog has taken");
  }
}

bool Host::LetUserIn(const char* function) {
  return user != nullptr && user->CallBegins(function);
}

std::string Host::DescribeHandle(const void* handle) const {
  if (handle == nullptr) return "null";
  void* object = nullptr;
  const HandleKind kind = handles.KindOf(handle, &object);
  if (kind == HandleKind::kModel) {
    const auto& model = *static_cast<const Model*>(object);
    return std::string(KindWord(model.id.kind)) + " " + model.id.name;
  }
  return kind == HandleKind::kNone ? "pointer" : HandleKindWord(kind);
}

Host& TheHost() {
  if (current_host == nullptr) throw std::logic_error("no host");
  return *current_host;
}

bool HasHost() {
  return current_host != nullptr;
}

}  // namespace wb
