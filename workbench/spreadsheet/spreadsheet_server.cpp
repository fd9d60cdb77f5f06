// Orders, and the account of programs and objects.
#include "workbench/spreadsheet/spreadsheet_server.h"

#include <algorithm>
#include <iterator>

#include "workbench/host/call.h"
#include "workbench/spreadsheet/spreadsheet_objects.h"

#include <objbase.h>

namespace wb {
namespace {

// The program's name in the registry of classes, and its published class.
constexpr const char* kSpreadsheetProgram = "Excel.Application";
constexpr CLSID kSpreadsheetClass = {
    0x00024500, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

// The ways in which a busy program turns a call away, by turns.
constexpr SpreadsheetServer::Refusal kBusyRefusals[] = {SpreadsheetServer::Refusal::kRejected,
                                                        SpreadsheetServer::Refusal::kRetryLater,
                                                        SpreadsheetServer::Refusal::kInterrupted};

bool ComIsReady() {
  APTTYPE type;
  APTTYPEQUALIFIER qualifier;
  return ::CoGetApartmentType(&type, &qualifier) == S_OK;
}

}  // namespace

SpreadsheetServer::SpreadsheetServer(Host& host) : host_(host) {
  host_.automation = this;
}

SpreadsheetServer::~SpreadsheetServer() {
  host_.automation = nullptr;
  for (AutomationObject* const object : objects_) object->Disconnect();
}

void SpreadsheetServer::Order(SpreadsheetOrders orders) {
  orders_ = std::move(orders);
  calls_ = 0;
  member_calls_ = 0;
}

SpreadsheetServer::Refusal SpreadsheetServer::Meet(const char* member,
                                                   SpreadsheetProgram& program) {
  ++calls_;
  if (orders_.slow_ms > 0) ::Sleep(static_cast<DWORD>(orders_.slow_ms));
  if (calls_ == orders_.die_at) {
    program.died = true;
    program.running = false;
  }
  if (program.died) return Refusal::kDead;
  if (orders_.busy > 0 && calls_ > orders_.busy_after) {
    return kBusyRefusals[--orders_.busy % std::size(kBusyRefusals)];
  }
  const std::string_view plain = std::string_view(member).substr(kSpreadsheetPrefix.size());
  if (!orders_.fail_member.empty() && orders_.fail_member != plain) return Refusal::kNone;
  if (++member_calls_ != orders_.fail_at) return Refusal::kNone;
  return orders_.fail_silently ? Refusal::kSilent : Refusal::kException;
}

std::shared_ptr<SpreadsheetProgram> SpreadsheetServer::StartProgram(long call) {
  auto program = std::make_shared<SpreadsheetProgram>();
  program->started_by = call;
  programs_.push_back(program);
  return program;
}

std::vector<std::string> SpreadsheetServer::Settle(long after) {
  std::vector<std::string> left;
  for (const auto& program : programs_) {
    // A program that would not end although it was told to is not held against the plug-in.
    const bool excused = program->quit_failed || (program->quit_rejected && orders_.busy > 0);
    if (!program->running || program->told || program->started_by <= after) continue;
    program->told = true;
    if (!excused)
      left.push_back("left running (started by call " + std::to_string(program->started_by) + ")");
  }
  std::vector<AutomationObject*> held;
  for (AutomationObject* const object : objects_) {
    if (!object->told && object->given_by > after) held.push_back(object);
  }
  std::sort(held.begin(), held.end(), [](const AutomationObject* a, const AutomationObject* b) {
    return a->given_by < b->given_by;
  });
  for (AutomationObject* const object : held) {
    object->told = true;
    left.push_back("not released: " + object->Describe());
  }
  return left;
}

void SpreadsheetServer::EndAll() {
  for (const auto& program : programs_) program->running = false;
}

bool SpreadsheetServer::Gone() const {
  return objects_.empty() && std::none_of(programs_.begin(), programs_.end(),
                                          [](const auto& program) { return program->running; });
}

long SpreadsheetServer::ClassOf(const std::string& program, void* class_id) {
  if (!EqualFolded(program, kSpreadsheetProgram) || orders_.missing) return CO_E_CLASSSTRING;
  *static_cast<CLSID*>(class_id) = kSpreadsheetClass;
  return S_OK;
}

long SpreadsheetServer::Start(const void* class_id, const void* interface_id, void** object) {
  const bool ours = ::IsEqualCLSID(*static_cast<const CLSID*>(class_id), kSpreadsheetClass);
  if (!ours || orders_.missing) return REGDB_E_CLASSNOTREG;
  if (!ComIsReady()) return CO_E_NOTINITIALIZED;
  const long call = host_.trace.calls();
  const auto program = StartProgram(call);
  ObjectPlace place;
  place.program = program;
  auto* const application =
      new AutomationObject(*this, ObjectKind::kApplication, std::move(place), call);
  const HRESULT result =
      application->QueryInterface(*static_cast<const IID*>(interface_id), object);
  application->Release();
  program->running = SUCCEEDED(result);
  return result;
}

}  // namespace wb
