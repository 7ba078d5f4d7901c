/// The program run as a user does, by a line of the shell.
#pragma once

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace velkor::host {

struct ShellOutcome {
    int status = -1;
    std::string text;
};

/// Runs a line of the shell in which "velkor" is the program built, and gives what it writes to
/// standard output. It begins in the folder of the sources.
inline ShellOutcome shell(const std::string& line) {
    const std::string command = "velkor() { " VELKOR_BIN_DIR "/velkor \"$@\"; }; cd " VELKOR_SOURCE_DIR "; " + line;
    ShellOutcome outcome;
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) return outcome;
    std::array<char, 4096> buffer;
    for (std::size_t read; (read = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
        outcome.text.append(buffer.data(), read);
    }
    const int status = pclose(pipe);
    if (WIFEXITED(status)) outcome.status = WEXITSTATUS(status);
    return outcome;
}

} // namespace velkor::host
