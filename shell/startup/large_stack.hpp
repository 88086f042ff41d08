// The session runs on a thread with a large stack, so that recursive scripts
// can go deep before the stack guard stops them.
#pragma once

#include <cstddef>
#include <functional>

namespace orrery::shell::startup {

/// The stack of the thread runOnLargeStack starts: reserved address space,
/// committed only as deep calls touch it. AddressSanitizer stops cleaning up
/// after exceptions on stacks above 64 MiB, so its builds take less.
#ifdef ORRERY_ADDRESS_SANITIZER
inline constexpr std::size_t kSessionStackSize = std::size_t{60} << 20;
#else
inline constexpr std::size_t kSessionStackSize = std::size_t{512} << 20;
#endif

/// Runs `work` on a new thread with a kSessionStackSize stack and returns its
/// result; an exception it throws is thrown again here. Signals are delivered
/// to that thread (the calling thread blocks them while it waits), so that
/// Ctrl-C interrupts the prompt's reads. Runs `work` on the calling thread
/// when no thread can be started.
int runOnLargeStack(const std::function<int()>& work);

}  // namespace orrery::shell::startup
