#include "foundation/ExitCallbacks.h"

#include <cxxabi.h>

// The ABI's name for the library that a unit is linked into.
extern "C" [[gnu::visibility("hidden")]] void* __dso_handle;

namespace {

vrn::internal::v1::exit_callback::list exitCallbacks;

} // namespace

void velkor::library::callAtUnload(vrn::internal::v1::exit_callback::callback callback, int order) {
    namespace exit_callback = vrn::internal::v1::exit_callback;
    // As for a static object of this library, so that unloading runs it: std::atexit leaves to the C library, or to
    // what stands in for it, whose call it is.
    const auto registrar = [] {
        abi::__cxa_atexit([](void*) { exit_callback::call(exitCallbacks); }, nullptr, &__dso_handle);
    };
    exit_callback::do_register(callback, order, registrar, exitCallbacks);
}
