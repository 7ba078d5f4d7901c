/// The frame of a generator's program: its status and how it tells of a failure.
#pragma once

#include <exception>
#include <iostream>
#include <string>
#include <string_view>

namespace velkor::express {

inline constexpr int badUsage = 2;
/// Input could not be read, or output not be written.
inline constexpr int unreadable = 3;

/// Tells of a failure on standard error and gives the status of what is unreadable.
inline int fail(std::string_view program, const std::string& message) {
    std::cerr << program << ": " << message << '\n';
    return unreadable;
}

/// The status of what a program does; an exception is a failure like others.
template <class Run>
int guarded(std::string_view program, Run run) {
    try {
        return run();
    } catch (const std::exception& error) {
        return fail(program, error.what());
    }
}

} // namespace velkor::express
