/// How the library's process-wide objects are released when it is unloaded.
#pragma once

#include "velkor/objectmodeler/ExitCallback.h"

namespace velkor::library {

/// Has `callback` run once when the library's static objects are destroyed, before those that stand
/// already. Callbacks of a lower order run first.
void callAtUnload(vrn::internal::v1::exit_callback::callback callback, int order);

} // namespace velkor::library
