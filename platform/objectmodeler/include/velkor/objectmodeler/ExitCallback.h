/// Callbacks that release a library's process-wide objects when it is unloaded.
#pragma once

#include "velkor/PlatformExport.h"

#include <vector>

namespace vrn::internal::v1::exit_callback {

using callback = int (*)(int); ///< What is called at the end.

/// A library's one list of callbacks; a static object of the library.
struct list {
    /// A callback and its place in the order.
    struct entry {
        callback function;
        int order;
    };
    std::vector<entry> entries;
    bool registered = false;
};

/// Registers with the runtime's exit processing a function that calls call() on the list.
using registrar = void (*)();

/// Adds a callback. The first one of a list runs the registrar.
VELKOR_PLATFORM_API void do_register(callback function, int order, registrar registerCall, list& callbacks);

/// Runs each callback of the list once, those of the lowest order first, in the order of their
/// registration, and empties the list. Each gets its order number.
VELKOR_PLATFORM_API void call(list& callbacks);

} // namespace vrn::internal::v1::exit_callback
