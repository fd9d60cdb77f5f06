// A program that the plug-in may drive by automation: what the intercepted Windows calls and the
// accounts at a command's end ask of it, whichever program it stands for.
#pragma once

#include <string>
#include <vector>

namespace wb {

class AutomationProgram {
 public:
  virtual ~AutomationProgram() = default;
  // The class of a program by its name: an HRESULT; `class_id` is a CLSID.
  virtual long ClassOf(const std::string& program, void* class_id) = 0;
  // Makes an object of a class: HRESULT, CLSID, IID.
  virtual long Start(const void* class_id, const void* interface_id, void** object) = 0;
  // What the plug-in left behind of all it took after call number `after`. Each is told once.
  virtual std::vector<std::string> Settle(long after) = 0;
};

}  // namespace wb
