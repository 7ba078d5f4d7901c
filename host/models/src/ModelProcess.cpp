#include "ModelProcess.h"

#include "terminal/ExitStatus.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace velkor::host {

namespace {

// Stands behind the facts when the work is done.
constexpr char endMark = '\n';

} // namespace

tl::expected<MemoryFile, int> MemoryFile::create() {
    const int descriptor = memfd_create("velkor", MFD_CLOEXEC);
    if (descriptor < 0) return tl::unexpected(errno);
    return MemoryFile(descriptor);
}

MemoryFile::MemoryFile(MemoryFile&& other) noexcept : _descriptor(std::exchange(other._descriptor, -1)) {}

MemoryFile::~MemoryFile() {
    if (_descriptor >= 0) close(_descriptor);
}

std::uint64_t MemoryFile::size() const {
    struct stat status {};
    return fstat(_descriptor, &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

std::string MemoryFile::read(std::uint64_t offset, std::size_t size) const {
    std::string bytes(size, '\0');
    const ssize_t count = pread(_descriptor, bytes.data(), size, static_cast<off_t>(offset));
    bytes.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return bytes;
}

ModelProcess::ModelProcess(MemoryFile out, MemoryFile err, MemoryFile facts) noexcept
    : _out(std::move(out)), _err(std::move(err)), _facts(std::move(facts)) {}

ModelProcess::ModelProcess(ModelProcess&& other) noexcept
    : _id(std::exchange(other._id, -1)), _ending(other._ending), _out(std::move(other._out)),
      _err(std::move(other._err)), _facts(std::move(other._facts)) {}

ModelProcess::~ModelProcess() {
    if (_id < 0 || hasEnded()) return;
    kill(_id, SIGTERM);
    while (waitpid(_id, nullptr, 0) < 0 && errno == EINTR) {
    }
}

tl::expected<ModelProcess, int> ModelProcess::start(const std::function<int(std::string&)>& work) {
    auto out = MemoryFile::create();
    auto err = MemoryFile::create();
    auto facts = MemoryFile::create();
    for (const auto* file : {&out, &err, &facts})
        if (!*file) return tl::unexpected(file->error());
    ModelProcess process(std::move(*out), std::move(*err), std::move(*facts));
    // What waits in the buffers of the library would be written twice.
    std::fflush(nullptr);
    const pid_t parent = getpid();
    process._id = fork();
    if (process._id < 0) return tl::unexpected(errno);
    if (process._id == 0) process.work(work, parent);
    return process;
}

void ModelProcess::work(const std::function<int(std::string&)>& work, pid_t parent) {
    // Nobody is to work on for a program that is not there any more.
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) _exit(Unreadable);
    if (dup2(_out.descriptor(), STDOUT_FILENO) < 0 || dup2(_err.descriptor(), STDERR_FILENO) < 0) _exit(Unreadable);
    // The work may need as many files as the system allows.
    { const MemoryFile out = std::move(_out), err = std::move(_err); }
    std::string facts;
    const int status = work(facts);
    facts += endMark;
    for (std::string_view rest = facts; !rest.empty();) {
        const ssize_t written = write(_facts.descriptor(), rest.data(), rest.size());
        if (written <= 0) break;
        rest.remove_prefix(static_cast<std::size_t>(written));
    }
    _exit(status);
}

std::optional<int> ModelProcess::status() const {
    if (!hasEnded() || !WIFEXITED(*_ending)) return std::nullopt;
    const int status = WEXITSTATUS(*_ending);
    const std::uint64_t size = _facts.size();
    const bool isDone = size > 0 && _facts.read(size - 1, 1).front() == endMark;
    // Memory that runs out ends the process with a message.
    return isDone || (status == Unreadable && _err.size() > 0) ? std::optional(status) : std::nullopt;
}

std::string ModelProcess::fault() const {
    if (!hasEnded() || status()) return {};
    if (WIFEXITED(*_ending)) return "ended unexpectedly with status " + std::to_string(WEXITSTATUS(*_ending));
    const int signal = WTERMSIG(*_ending);
    return "ended by signal " + std::to_string(signal) + " (" + strsignal(signal) + ')';
}

std::string ModelProcess::facts() const {
    std::string facts = _facts.read(0, _facts.size());
    facts.resize(std::min(facts.find(endMark), facts.size()));
    return facts;
}

} // namespace velkor::host
