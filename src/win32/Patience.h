#pragma once

#include <functional>

namespace vantor::win32 {

/// Runs work that may never end, such as a question to a broken service, on a thread of its own, the only kind
/// of thread beside the user interface's. After 5 seconds it is left behind and this returns false; so the work
/// must own all that it touches. It may not throw. Windows are painted meanwhile; input waits.
[[nodiscard]] bool EndsInTime(std::function<void()> work);

}  // namespace vantor::win32
