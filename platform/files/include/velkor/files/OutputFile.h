/// A file written piece by piece that appears as a whole or not at all.
///
///     auto output = OutputFile::create("house.ifc");
///     if (!output) return report(output.error().message);
///     output->write(text);
///     if (auto done = output->commit(); !done) return report(done.error().message);
#pragma once

#include "velkor/files/OpenError.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::files {

/// Until commit() the file of the name stays what it is, so it may be read, or be mapped, while its successor is
/// written. That one has no name as far as the file system allows, and then nothing is left of it whatever ends the
/// process. A link stays and leads to the new file; a device or a pipe is written to as it is. Messages say in a few
/// words why something failed.
class VELKOR_PLATFORM_API OutputFile {
public:
    /// Begins a file beside the one of the name.
    static tl::expected<OutputFile, OpenError> create(const QORUnicodeString& path);
    /// Writes to what is open already, standard output for example, which stays the caller's. A pipe that
    /// nobody reads any more is an error only where SIGPIPE is ignored.
    static OutputFile onto(int descriptor);
    OutputFile(OutputFile&& other) noexcept;
    OutputFile& operator=(OutputFile&&) = delete;
    /// What was not committed is taken away.
    ~OutputFile();

    /// Puts bytes behind those written. Small pieces are gathered, large ones go to the system as they are. After
    /// a failure nothing more is written, and commit() says why.
    void write(std::string_view bytes);
    /// Bytes given to write() so far.
    std::uint64_t size() const noexcept { return _size; }
    /// Writes what is gathered and flushes it to the disk: what is likely to fail has failed then. commit() does it
    /// where it was not called. Nothing is written behind it.
    [[nodiscard]] tl::expected<void, OpenError> flush();
    /// Puts the file in the place of its predecessor, with its permissions. To be called once.
    [[nodiscard]] tl::expected<void, OpenError> commit();

private:
    explicit OutputFile(int descriptor) noexcept : _descriptor(descriptor) {}
    VELKOR_PLATFORM_LOCAL void send(std::string_view bytes);
    VELKOR_PLATFORM_LOCAL void nameBesideTarget();
    VELKOR_PLATFORM_LOCAL void close();

    int _descriptor;
    bool _isOwn = false;
    // False for what is written to as it is.
    bool _replaces = false;
    bool _isFlushed = false;
    bool _keepsMode = false;
    std::uint32_t _mode = 0;
    // Of the system; 0 while all is well.
    int _error = 0;
    std::uint64_t _size = 0;
    std::string _target;
    // Empty as long as the new file has no name, and when there is nothing to take away any more.
    std::string _temporary;
    std::string _gathered;
};

} // namespace velkor::files
