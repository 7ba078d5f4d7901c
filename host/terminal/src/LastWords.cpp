#include "terminal/LastWords.h"

#include "terminal/ExitStatus.h"
#include "terminal/TextSink.h"

#include <charconv>
#include <csignal>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace velkor::host {

namespace {

struct Place {
    std::string file;
    std::uint64_t offset;
};

// The system lists mappings as "begin-end permissions offset device inode     file", numbers in hexadecimal.
std::optional<Place> mappedFile(std::uint64_t address) {
    std::ifstream mappings("/proc/self/maps");
    for (std::string line; std::getline(mappings, line);) {
        std::uint64_t begin = 0, end = 0, offset = 0;
        const char* last = line.data() + line.size();
        const char* behindBegin = std::from_chars(line.data(), last, begin, 16).ptr;
        std::from_chars(behindBegin + 1, last, end, 16);
        if (address < begin || address >= end) continue;
        const std::size_t permissions = line.find(' ') + 1;
        std::from_chars(line.data() + line.find(' ', permissions) + 1, last, offset, 16);
        const std::size_t file = line.find('/');
        if (file == std::string::npos) return std::nullopt;
        return Place{line.substr(file), offset + (address - begin)};
    }
    return std::nullopt;
}

// The signal comes from reading the mapping, never from the midst of an allocation or of output, so that both
// may be used here.
void onBusError(int, siginfo_t* info, void*) {
    const auto address = reinterpret_cast<std::uintptr_t>(info->si_addr);
    const std::optional<Place> place = info->si_code == BUS_ADRERR ? mappedFile(address) : std::nullopt;
    if (!place) {
        // Not ours: the signal takes its usual course.
        std::signal(SIGBUS, SIG_DFL);
        std::raise(SIGBUS);
        return;
    }
    struct stat status {};
    const bool isThere = stat(place->file.c_str(), &status) == 0;
    const bool isShorter = isThere && static_cast<std::uint64_t>(status.st_size) <= place->offset;
    const TextSink err(std::cerr);
    err << "velkor: " << place->file
        << (isShorter ? ": was truncated while it was read" : ": cannot be read: Input/output error") << '\n';
    err.flush();
    _exit(Unreadable);
}

} // namespace

void endOutOfMemory() {
    static constexpr char line[] = "velkor: out of memory\n";
    const ssize_t written = write(STDERR_FILENO, line, sizeof line - 1);
    static_cast<void>(written);
    _exit(Unreadable);
}

void endWithUnreadableMappings() {
    struct sigaction action {};
    action.sa_sigaction = onBusError;
    action.sa_flags = SA_SIGINFO;
    sigaction(SIGBUS, &action, nullptr);
}

} // namespace velkor::host
