// The one way into the plug-in: every call of one of its function pointers goes through here, so
// that an escaping exception, a crash and a resource left out are each caught and named.
#pragma once

#include <functional>
#include <string>

namespace wb {

// Runs `call` under the name `what` ("QmParams", "access rule of QmParams", "timer"). An exception
// that comes out of it is a breach of `what`.
void EnterPlugin(const std::string& what, const std::function<void()>& call);

// The same for an entry after which nothing may be left out: each resource still out that was
// handed out meanwhile is a breach of `what`.
void EnterPluginAndSettle(const std::string& what, const std::function<void()>& call);

// Each program that the plug-in started after call number `before` and that still runs, and each
// object of such a program that it still holds, is a breach.
void ReportLeftPrograms(long before);

// From now on a crash or abort of the process prints where it happened and ends with code 3:
// "plug-in crashed in COMMAND at quillmax5.1C3.dll+0x1234, last host call NAME". Windows shows no
// box.
void ReportCrashes();
inline constexpr int kCrashExitCode = 3;
// `tell` prints what else is known by then, without memory of its own: the heap may be broken.
void AfterLastWords(void (*tell)());

}  // namespace wb
