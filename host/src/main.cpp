#include "CommandContext.h"
#include "configuration/ConfigurationTable.h"
#include "settings/QORDXEnvironmentVariable.h"

#include <algorithm>
#include <csignal>
#include <iostream>
#include <poll.h>
#include <unistd.h>

namespace {

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

    const bool capable = QORGetEnv(terminalVariable).utf8() != "dumb";
    CommandContext context{std::cout, std::cerr};
    context.interactive = capable && isatty(STDERR_FILENO) != 0;
    context.color = capable && isatty(STDOUT_FILENO) != 0 && QORGetEnv(noColorVariable).IsEmpty();

    const int status = run({argv + std::min(argc, 1), argv + argc}, context);
    std::cout.flush();
    if (!std::cout && !isReaderGone()) {
        std::cerr << "velkor: the results could not be written to standard output\n";
        return Unreadable;
    }
    return status;
}
