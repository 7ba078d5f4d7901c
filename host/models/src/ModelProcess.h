/// A process of its own for the work on one model, so that nothing that happens to it touches the others.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <sys/types.h>
#include <tl/expected.hpp>

namespace velkor::host {

/// A file in memory that has no name.
class MemoryFile {
public:
    /// The number of the system's error when there is none to be had.
    static tl::expected<MemoryFile, int> create();
    MemoryFile(MemoryFile&& other) noexcept;
    MemoryFile& operator=(MemoryFile&&) = delete;
    ~MemoryFile();

    int descriptor() const noexcept { return _descriptor; }
    std::uint64_t size() const;
    /// Bytes from `offset` on that are there, at most `size`.
    std::string read(std::uint64_t offset, std::size_t size) const;

private:
    explicit MemoryFile(int descriptor) noexcept : _descriptor(descriptor) {}
    int _descriptor;
};

class ModelProcess {
public:
    /// Has `work` called in a process of its own, which ends with the status that it gives. What the process writes to
    /// standard output and standard error is kept, and so is what `work` puts into its argument. The number of the
    /// system's error when there is no process to be had.
    static tl::expected<ModelProcess, int> start(const std::function<int(std::string& facts)>& work);
    ModelProcess(ModelProcess&& other) noexcept;
    ModelProcess& operator=(ModelProcess&&) = delete;
    /// Ends the process if it still runs.
    ~ModelProcess();

    /// Leaves the process, which runs on, to others, and what it writes with it.
    void leave() noexcept { _id = -1; }

    pid_t id() const noexcept { return _id; }
    bool hasEnded() const noexcept { return _ending.has_value(); }
    /// To be called with what the system says of its end.
    void end(int ending) noexcept { _ending = ending; }
    /// The status that the work gave; nothing when the process ended by itself, and fault() says how.
    std::optional<int> status() const;
    std::string fault() const;

    const MemoryFile& out() const noexcept { return _out; }
    const MemoryFile& err() const noexcept { return _err; }
    std::string facts() const;

private:
    ModelProcess(MemoryFile out, MemoryFile err, MemoryFile facts) noexcept;
    [[noreturn]] void work(const std::function<int(std::string&)>& work, pid_t parent);

    pid_t _id = -1;
    std::optional<int> _ending;
    MemoryFile _out, _err, _facts;
};

} // namespace velkor::host
