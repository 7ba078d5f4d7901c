/// An operation of the library that a host cannot call by its header, for what only the process's end does or shows.
#pragma once

#include <dlfcn.h>
#include <stdexcept>

namespace velkor::test {

/// The operation with this mangled name. A member takes its object first.
template <typename Operation>
Operation& privateOperation(const char* name) {
    void* found = dlsym(RTLD_DEFAULT, name);
    if (found == nullptr) throw std::runtime_error(dlerror());
    return *reinterpret_cast<Operation*>(found);
}

} // namespace velkor::test
