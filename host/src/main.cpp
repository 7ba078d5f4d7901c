#include "commands/Program.h"
#include "terminal/LastWords.h"
#include "terminal/LineFitter.h"
#include "velkor/settings/QORDXEnvironmentVariable.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <new>
#include <poll.h>
#include <unistd.h>

namespace {

// A reader that has seen enough, such as "head", is no failure.
bool isReaderGone() {
    pollfd output{STDOUT_FILENO, POLLOUT, 0};
    return poll(&output, 1, 0) > 0 && (output.revents & POLLERR) != 0;
}

// The folder lies beside the program's, wherever the two are; without it there are none.
std::string shippedResources() {
    std::error_code none;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", none);
    const auto folder = (program.parent_path() / VELKOR_RESOURCES).lexically_normal();
    return !program.empty() && std::filesystem::is_directory(folder, none) ? folder.string() : std::string();
}

// Libraries allocate memory when they are loaded, before any constructor of the program could install this.
__attribute__((no_sanitize("address", "undefined", "thread"))) void installNewHandler() {
    std::set_new_handler(velkor::host::endOutOfMemory);
}
[[gnu::section(".preinit_array"), gnu::used]] void (*const beforeAll)() = installNewHandler;

} // namespace

int main(int argc, char** argv) {
    using namespace velkor;
    using namespace velkor::host;
    // Writing that fails is told by who writes.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    endWithUnreadableMappings();
    std::ios::sync_with_stdio(false);

    const bool capable = QORGetEnv(terminalVariable).utf8() != "dumb";
    const QORUnicodeString columns = QORGetEnv(columnsVariable);
    LineFitter outLines(std::cout, terminalWidth(STDOUT_FILENO, columns.utf8()));
    LineFitter errLines(std::cerr, terminalWidth(STDERR_FILENO, columns.utf8()));
    CommandContext context{isatty(STDOUT_FILENO) != 0 ? TextSink(std::cout, outLines) : TextSink(std::cout),
                           isatty(STDERR_FILENO) != 0 ? TextSink(std::cerr, errLines) : TextSink(std::cerr)};
    context.in = &std::cin;
    context.shippedResources = shippedResources();
    context.interactive = capable && isatty(STDERR_FILENO) != 0;
    context.color = capable && isatty(STDOUT_FILENO) != 0 && QORGetEnv(noColorVariable).IsEmpty();

    const int status = run({argv + std::min(argc, 1), argv + argc}, context);
    context.out.flush();
    context.err.flush();
    if (!std::cout && !isReaderGone()) {
        context.err << "velkor: the results could not be written to standard output\n";
        return Unreadable;
    }
    return status;
}
