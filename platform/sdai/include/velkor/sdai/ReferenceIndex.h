/// Who refers to whom in an exchange structure.
///
///     const ReferenceIndex index(*file);
///     for (const std::uint32_t user : index.users(number)) use(file->id(user));
///
/// What one instance refers to, Part21Lexer::nextReference() finds without an index.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/sdai/Part21File.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace velkor::sdai {

/// Made by one reading of the structure; four bytes a reference and an instance. References that lead nowhere are
/// passed over.
class VELKOR_PLATFORM_API ReferenceIndex {
public:
    explicit ReferenceIndex(const Part21File& file); ///< Reads all references of a file.

    /// The instances that refer to one, by their numbers, in file order and each once.
    std::span<const std::uint32_t> users(std::uint32_t number) const noexcept {
        return std::span(_users).subspan(_first[number], _first[number + 1] - _first[number]);
    }
    std::size_t memoryUse() const noexcept; ///< Bytes that it takes.

private:
    // Of each instance the place of its first user; one more for the end.
    std::vector<std::uint32_t> _first;
    std::vector<std::uint32_t> _users;
};

} // namespace velkor::sdai
