/// Resource files judged by their linters.
///
///     ResourceCheck check(1000);
///     const CheckedFile file = check.file("mine.xml", nullptr, nullptr);
///     for (const Finding& finding : file.judgement.findings) show(file.path, finding.line, finding.message);
#pragma once

#include "ResourceKinds.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/files/OpenError.h"
#include "velkor/resources/Finding.h"
#include "velkor/ToolkitExport.h"

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::lint {

/// What a file can be judged as.
struct LinterKind {
    /// Short stable word for it: "version-mapping".
    const char* word;
    /// For people.
    const char* name;
    /// Null for what the services do not read.
    const ResourceKind* resource;
};

/// In the order of the resource kinds, and tables of definitions, which definitions are made from.
VELKOR_TOOLKIT_API std::span<const LinterKind> linterKinds();
/// Null when there is none of the word.
VELKOR_TOOLKIT_API const LinterKind* linterKind(std::string_view word);

/// What a text was judged as, and what is wrong in it.
struct Judgement {
    /// How many entries the services read, or would if they were right.
    std::size_t entries = 0;
    /// In the order of the file.
    std::vector<Finding> findings;
};

/// A file that was judged.
struct CheckedFile {
    std::string path;
    /// Null when it is none of them.
    const LinterKind* kind = nullptr;
    /// Why the file could not be read; nothing has then been judged.
    std::optional<files::OpenError> unreadable = {};
    /// Findings beyond the limit of the check are counted alone.
    Judgement judgement = {};
    std::size_t errors = 0;
    std::size_t warnings = 0;
};

/// Files that could be read, and what was found in them, with what is beyond the limit of the check.
struct VELKOR_TOOLKIT_API FindingCounts {
    std::size_t files = 0;
    std::size_t entries = 0;
    std::size_t errors = 0;
    std::size_t warnings = 0;
    std::size_t listed = 0;

    void add(const CheckedFile& file);                                  ///< Adds those of a file.
    std::size_t findings() const noexcept { return errors + warnings; } ///< Errors and warnings together.
};

/// Remembers the dictionaries that files were judged by. A file is read whole and judged in one pass.
class VELKOR_TOOLKIT_API ResourceCheck {
public:
    /// Keeps at most `limit` findings of all files together.
    explicit ResourceCheck(std::size_t limit);
    ~ResourceCheck();
    ResourceCheck(const ResourceCheck&) = delete;
    ResourceCheck& operator=(const ResourceCheck&) = delete;

    /// Judges one file or, for "-", standard input by itself; without a kind as what its content looks like.
    CheckedFile file(const std::string& path, const LinterKind* kind, std::istream* standardInput);
    /// Judges the files of one kind in the order in which the services read them.
    std::vector<CheckedFile> files(const std::vector<std::string>& paths, const LinterKind& kind);
    /// Judges every file that the services use or models are judged by, kind by kind.
    std::vector<CheckedFile> used(const PlatformSetup& setup);

private:
    VELKOR_TOOLKIT_LOCAL CheckedFile counted(CheckedFile file);

    std::unique_ptr<class Dictionaries> _dictionaries;
    // How many findings may still be kept.
    std::size_t _limit;
};

} // namespace velkor::lint
