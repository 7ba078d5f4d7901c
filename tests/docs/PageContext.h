/// What the samples of the pages take as given.
#pragma once

#include <cstdio>
#include <string>

inline int fail(const std::string& reason) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    return 1;
}
inline void use(const void*) {}
inline void importFeatures() {}
