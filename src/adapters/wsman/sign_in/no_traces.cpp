#include "adapters/wsman/sign_in/no_traces.h"

#include <dlfcn.h>
#include <malloc.h>
#include <string.h>  // explicit_bzero

#include <atomic>
#include <cstddef>

namespace tessarine {
namespace {

// More than a sign-in takes; the stack has megabytes.
constexpr std::size_t kDeepestStack = std::size_t{128} * 1024;

thread_local int keepers = 0;

[[gnu::noinline]] void wipe_unused_stack() {
    char left_behind[kDeepestStack];
    explicit_bzero(left_behind, sizeof left_behind);
}

}  // namespace

NoTraces::NoTraces() {
    ++keepers;
}

NoTraces::~NoTraces() {
    --keepers;
    wipe_unused_stack();
}

}  // namespace tessarine

// Stands before the C library's own, or another allocator's, for all libraries of the program. A
// sanitizer has one already.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
extern "C" void free(void* block) noexcept {
    using Free = void (*)(void*);
    static std::atomic<Free> next{nullptr};
    if (next == nullptr) {
        next = [](void*) {};  // dlsym may free the text of an older error, which is lost.
        next = reinterpret_cast<Free>(dlsym(RTLD_NEXT, "free"));
    }
    if (tessarine::keepers > 0 && block != nullptr)
        explicit_bzero(block, malloc_usable_size(block));
    next.load()(block);
}
#endif
