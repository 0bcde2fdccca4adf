#pragma once
// Runs the rest of the program in a detached process of its own while the
// starting process waits only until that process reports how it went.
//
// The agent waits for the notifier on its main thread, so the notifier must
// return as soon as its notifications are shown; but the service delivers
// the button's action to the connection that showed the notification, so
// that connection must outlive the program the agent waits for.

#include <functional>

namespace notifier {

// Given to the detached process: report(code) once, when the outcome is
// known; the waiting process then exits with `code`. After report() the
// detached process's standard streams lead to /dev/null.
using Report = std::function<void(int code)>;

// Forks; the child starts a new session and runs `body(report)`, whose
// return value is its exit code (reported for it if it never called report).
// The parent returns the reported code, or kExitFailure (with a line on
// standard error) if the child ended or fell silent for `wait_ms` without
// reporting. Call before any thread exists (before the Qt application).
int run_detached(const std::function<int(const Report&)>& body, int wait_ms);

}  // namespace notifier
