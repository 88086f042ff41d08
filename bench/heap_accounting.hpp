// Heap accounting for a benchmark program: replaces malloc and its kin so that
// every allocation of the process, the libraries' included, is counted. It
// defines those functions, so only a program's one source file includes it.
#pragma once

#include <malloc.h>

#include <atomic>
#include <cerrno>
#include <cstddef>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* pointer, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* pointer);
}

namespace orrery::bench::heap {

inline std::atomic<long long> liveBytes{0};
inline std::atomic<long long> peakBytes{0};

inline void* counted(void* pointer) {
    if (pointer != nullptr) {
        const long long live = liveBytes += static_cast<long long>(malloc_usable_size(pointer));
        long long peak = peakBytes.load();
        while (live > peak && !peakBytes.compare_exchange_weak(peak, live)) {
        }
    }
    return pointer;
}

inline void uncount(void* pointer) {
    if (pointer != nullptr) liveBytes -= static_cast<long long>(malloc_usable_size(pointer));
}

}  // namespace orrery::bench::heap

extern "C" {
void* malloc(std::size_t size) { return orrery::bench::heap::counted(__libc_malloc(size)); }
void* calloc(std::size_t count, std::size_t size) { return orrery::bench::heap::counted(__libc_calloc(count, size)); }
void free(void* pointer) {
    orrery::bench::heap::uncount(pointer);
    __libc_free(pointer);
}
void* realloc(void* pointer, std::size_t size) {
    const long long before = pointer != nullptr ? static_cast<long long>(malloc_usable_size(pointer)) : 0;
    void* moved = __libc_realloc(pointer, size);
    if (moved == nullptr) return nullptr;
    orrery::bench::heap::liveBytes -= before;
    return orrery::bench::heap::counted(moved);
}
void* memalign(std::size_t alignment, std::size_t size) {
    return orrery::bench::heap::counted(__libc_memalign(alignment, size));
}
void* aligned_alloc(std::size_t alignment, std::size_t size) {
    return orrery::bench::heap::counted(__libc_memalign(alignment, size));
}
int posix_memalign(void** out, std::size_t alignment, std::size_t size) {
    *out = orrery::bench::heap::counted(__libc_memalign(alignment, size));
    return *out != nullptr ? 0 : ENOMEM;
}
}

namespace orrery::bench {

/// The heap's peak above its level at construction, while the object lives
/// (one measurement at a time).
class HeapPeak {
public:
    HeapPeak() : baseline_(heap::liveBytes.load()) { heap::peakBytes = baseline_; }
    /// Bytes of the highest level reached so far above the starting one.
    long long bytes() const { return heap::peakBytes.load() - baseline_; }

private:
    long long baseline_;
};

}  // namespace orrery::bench
