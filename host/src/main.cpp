#include "CommandContext.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <poll.h>
#include <string_view>
#include <unistd.h>

namespace {

std::string_view environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string_view() : std::string_view(value);
}

// A reader that has seen enough, such as "head", is no failure.
bool isReaderGone() {
    pollfd output{STDOUT_FILENO, POLLOUT, 0};
    return poll(&output, 1, 0) > 0 && (output.revents & POLLERR) != 0;
}

} // namespace

int main(int argc, char** argv) {
    using namespace velkor::host;
    std::signal(SIGPIPE, SIG_IGN);
    std::ios::sync_with_stdio(false);

    const bool capable = environment("TERM") != "dumb";
    CommandContext context{std::cout, std::cerr};
    context.interactive = capable && isatty(STDERR_FILENO) != 0;
    context.color = capable && isatty(STDOUT_FILENO) != 0 && environment("NO_COLOR").empty();

    const int status = run({argv + std::min(argc, 1), argv + argc}, context);
    std::cout.flush();
    if (!std::cout && !isReaderGone()) {
        std::cerr << "velkor: the results could not be written to standard output\n";
        return Unreadable;
    }
    return status;
}
