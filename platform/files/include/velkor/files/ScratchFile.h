/// A file without a name, for what is written and then read again: what stands between two steps of a work.
///
///     auto scratch = ScratchFile::create();
///     if (!scratch) return report(scratch.error().message);
///     scratch->output().write(text);
///     if (auto done = scratch->output().commit(); !done) return report(done.error().message);
///     const auto again = scratch->text();
#pragma once

#include "velkor/files/OpenError.h"
#include "velkor/files/OutputFile.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::files {

/// It goes with the object, and with the process however that ends. Messages say in a few words why something failed.
class VELKOR_PLATFORM_API ScratchFile {
public:
    /// On the disk of the system's temporary folder, which TMPDIR names.
    static tl::expected<ScratchFile, OpenError> create();
    /// On the disk of a path, whose folder must exist; nothing need be there of the path itself.
    static tl::expected<ScratchFile, OpenError> createBeside(const QORUnicodeString& path);
    ScratchFile(ScratchFile&& other) noexcept;
    ScratchFile& operator=(ScratchFile&&) = delete;
    ~ScratchFile();

    /// To be committed before text() is asked for.
    OutputFile& output() noexcept { return _output; }
    /// What was written, mapped as long as this object or the one it is moved to lives. An error when not all of it
    /// has arrived.
    tl::expected<std::string_view, OpenError> text();

private:
    explicit ScratchFile(int descriptor) noexcept : _descriptor(descriptor), _output(OutputFile::onto(descriptor)) {}
    VELKOR_PLATFORM_LOCAL static tl::expected<ScratchFile, OpenError> createIn(const std::string& folder);

    int _descriptor;
    OutputFile _output;
    const char* _data = nullptr;
    std::size_t _size = 0;
};

} // namespace velkor::files
