/// An exchange structure (ISO 10303-21) in memory, with its header and an index of
/// its instances. Nothing but the index is built at opening; instances are decoded from
/// the text when asked for.
///
///     auto file = Part21File::open("house.ifc");
///     if (!file) return report(file.error().message);
///     for (std::uint32_t i = 0; i < (*file)->instanceCount(); ++i) use((*file)->instanceText(i));
///
/// Reading is tolerant: what is damaged is noted in problems() and skipped, the rest stays
/// usable.
#pragma once

#include "velkor/files/InputFile.h"
#include "velkor/files/OpenError.h"
#include "velkor/PlatformExport.h"
#include "velkor/sdai/Problem.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace velkor::sdai {

/// The header section. Texts are decoded to UTF-8; what a file leaves out is empty.
struct FileHeader {
    std::vector<std::string> description;
    std::string implementationLevel;
    std::string name;
    std::string timeStamp;
    std::vector<std::string> author;
    std::vector<std::string> organization;
    std::string preprocessorVersion;
    std::string originatingSystem;
    std::string authorization;
    std::vector<std::string> schemas;
};

/// Which instructions the index scan uses. Automatic picks the widest the processor has.
enum class ScanPath : std::uint8_t { Automatic, Portable, Sse2, Avx2, Avx512 };

class VELKOR_PLATFORM_API Part21File {
public:
    /// Keyword number of an instance that is a complex (external) mapping: "#1=(A()B());".
    static constexpr std::uint16_t complexKeyword = 0xFFFE;
    /// Keyword number when a file has more different keywords than numbers; the text tells.
    static constexpr std::uint16_t unlistedKeyword = 0xFFFF;

    /// How the text of a file comes into memory. `Mapped` costs no memory of its own, but who makes a file shorter
    /// while it is mapped ends the process with SIGBUS when the text behind its new end is looked at. `Read` copies
    /// the file, which nobody can change then.
    enum class Access : std::uint8_t { Mapped, Read };
    /// Files with fewer bytes are read in any case.
    static constexpr std::size_t mappedFrom = 1 << 20;

    /// Indexes a file. One that holds a ZIP archive or a gzip file, whatever its name, is unpacked into memory within
    /// the bounds of files::unpackModel; lines and offsets count in the model's text, and name() is
    /// "house.ifczip: house.ifc" then. The message of an error names the file and says why
    /// it cannot be read as an exchange structure at all.
    static tl::expected<std::unique_ptr<Part21File>, files::OpenError>
    open(const std::string& path, ScanPath scanPath = ScanPath::Automatic, Access access = Access::Mapped);
    /// The same over what is open already and stays the caller's: a regular file from its beginning, wherever it
    /// is read just now, or a pipe to its end. `name` stands for the file in messages.
    static tl::expected<std::unique_ptr<Part21File>, files::OpenError>
    fromDescriptor(int descriptor, std::string name, ScanPath scanPath = ScanPath::Automatic,
                   Access access = Access::Mapped);
    /// The same over bytes that the caller keeps alive.
    static tl::expected<std::unique_ptr<Part21File>, files::OpenError>
    fromText(std::string_view text, std::string name, ScanPath scanPath = ScanPath::Automatic);
    ~Part21File();
    Part21File(const Part21File&) = delete;
    Part21File& operator=(const Part21File&) = delete;

    /// The file as messages name it: path(), and behind ": " the member() of an archive.
    const std::string& name() const noexcept;
    const std::string& path() const noexcept;   ///< That it was opened by, or the name that was given for one.
    const std::string& member() const noexcept; ///< Name of the text in a ZIP archive; empty for others.
    std::string_view text() const noexcept;     ///< All bytes of the file.
    const FileHeader& header() const noexcept;  ///< What the header section says.
    /// Sections of data; a DATA section may name its own schema (edition 2).
    struct DataSection {
        std::uint32_t firstInstance;
        std::string name;
        std::vector<std::string> schemas;
    };
    std::span<const DataSection> dataSections() const noexcept; ///< The data sections in their order.

    /// Instances are numbered from 0 in file order.
    std::uint32_t instanceCount() const noexcept;
    /// Number of the instance of an id; nothing when the file has none. Of several
    /// instances with the same id the first counts.
    std::optional<std::uint32_t> find(std::uint64_t id) const noexcept;
    std::uint64_t id(std::uint32_t number) const noexcept; ///< The id of an instance by its number.
    /// Where the instance's "#" stands.
    std::uint64_t offset(std::uint32_t number) const noexcept;
    /// Index into keywords(), or complexKeyword, or unlistedKeyword.
    std::uint16_t keyword(std::uint32_t number) const noexcept;
    std::span<const std::uint16_t> keywordNumbers() const noexcept; ///< The number of the keyword of each instance.
    /// The different keywords of the file, upper case, in order of first appearance.
    std::span<const std::string> keywords() const noexcept;
    /// Text from behind "=" up to the start of the next instance or the end of the section;
    /// begins with the keyword or "(" and holds the closing ";" unless that is missing.
    std::string_view instanceText(std::uint32_t number) const noexcept;

    /// Line of a byte position, counted from 1; CR, LF and CRLF all end a line.
    std::uint64_t line(std::uint64_t offset) const;
    /// What the index scan found wrong, in file order, bounded in number; problemCount() is
    /// the full count.
    std::span<const Problem> problems() const noexcept;
    std::uint64_t problemCount() const noexcept;
    /// Bytes held beside the text.
    std::size_t memoryUse() const noexcept;

private:
    struct State;
    VELKOR_PLATFORM_LOCAL explicit Part21File(std::unique_ptr<State> state);
    VELKOR_PLATFORM_LOCAL static tl::expected<std::unique_ptr<Part21File>, files::OpenError>
    over(tl::expected<files::InputFile, files::OpenError> input, std::string name, ScanPath scanPath, Access access);
    VELKOR_PLATFORM_LOCAL static tl::expected<std::unique_ptr<Part21File>, files::OpenError>
    read(std::unique_ptr<State> state, ScanPath path);
    std::unique_ptr<State> _state;
};

} // namespace velkor::sdai
