/// Resource files judged by their linters.
///
///     ResourceCheck check(1000);
///     CheckedFile file = check.file("mine.xml", nullptr, nullptr);
#pragma once

#include "configuration/ResourceSearch.h"
#include "linter/Linter.h"

#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::host::lint {

struct LinterKind {
    /// The word for it on the command line.
    const char* word;
    const ResourceKind* resource;
    std::unique_ptr<Linter> (*make)(Dictionaries&);
};

/// In the order of the resource kinds.
const std::vector<LinterKind>& linterKinds();
/// Null when there is none of the word.
const LinterKind* linterKind(std::string_view word);

struct CheckedFile {
    std::string path;
    /// Null when it is none of the six.
    const LinterKind* kind = nullptr;
    /// Why the file could not be read; nothing has then been judged.
    std::string unreadable;
    /// Findings beyond the limit of the check are counted alone.
    Judgement judgement = {};
    std::size_t errors = 0;
    std::size_t warnings = 0;
};

class ResourceCheck {
public:
    /// Keeps at most `limit` findings of all files together.
    explicit ResourceCheck(std::size_t limit) noexcept : _limit(limit) {}

    /// Judges one file or, for "-", standard input by itself; without a kind as what its content looks like.
    CheckedFile file(const std::string& path, const LinterKind* kind, std::istream* standardInput);
    /// Judges the files of one kind in the order in which the services read them.
    std::vector<CheckedFile> files(const std::vector<std::string>& paths, const LinterKind& kind);

private:
    CheckedFile counted(CheckedFile file);

    Dictionaries _dictionaries;
    // How many findings may still be kept.
    std::size_t _limit;
};

} // namespace velkor::host::lint
