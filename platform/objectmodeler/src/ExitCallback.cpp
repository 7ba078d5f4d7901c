#include "velkor/objectmodeler/ExitCallback.h"

#include "velkor/objectmodeler/CallRecorder.h"

#include <algorithm>
#include <string>
#include <utility>

namespace vrn::internal::v1::exit_callback {

void do_register(callback function, int order, registrar registerCall, list& callbacks) {
    velkor::objectmodeler::recordCall("exit callback registered, order " + std::to_string(order));
    callbacks.entries.push_back({function, order});
    if (!callbacks.registered && registerCall != nullptr) {
        callbacks.registered = true;
        registerCall();
    }
}

void call(list& callbacks) {
    callbacks.registered = false;
    // A callback may register another while the list runs.
    while (!callbacks.entries.empty()) {
        auto entries = std::exchange(callbacks.entries, {});
        std::ranges::stable_sort(entries, {}, &list::entry::order);
        for (const auto& entry : entries) {
            velkor::objectmodeler::recordCall("exit callback runs, order " + std::to_string(entry.order));
            entry.function(entry.order);
        }
    }
}

} // namespace vrn::internal::v1::exit_callback
