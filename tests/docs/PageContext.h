/// What the samples of the pages take as given.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

inline int fail(const std::string& reason) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    return 1;
}
inline void use(const void*) {}
inline void importFeatures() {}
inline const bool isCancelled = false;
inline void show(std::string_view, std::uint64_t, std::uint64_t) {}
inline void report(std::uint64_t, const std::string&) {}
inline void log(const std::string&) {}
inline void tag(const void*, const std::string&, const std::string&) {}
