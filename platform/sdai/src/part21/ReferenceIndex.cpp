#include "velkor/sdai/ReferenceIndex.h"

#include "velkor/objectmodeler/OutOfMemory.h"
#include "velkor/sdai/Part21Lexer.h"

#include <limits>
#include <utility>

namespace velkor::sdai {

namespace {

/// The instances that others refer to, those of the first instance first, once for each pair.
struct References {
    explicit References(const Part21File& file);

    std::vector<std::uint32_t> used;
    // Of each instance where its references end.
    std::vector<std::uint32_t> ends;
};

References::References(const Part21File& file) {
    constexpr std::uint32_t nobody = 0xFFFFFFFF;
    const std::uint32_t count = file.instanceCount();
    ends.reserve(count);
    // The last that was seen to refer to an instance.
    std::vector<std::uint32_t> last(count, nobody);
    for (std::uint32_t user = 0; user < count; ++user) {
        Part21Lexer lexer(file.instanceText(user));
        for (Token token = lexer.nextReference(); token.kind != TokenKind::End; token = lexer.nextReference()) {
            const auto number = file.find(decodeInstanceName(token.text));
            if (number && std::exchange(last[*number], user) != user) used.push_back(*number);
        }
        // Places have 32 bits; a structure with more references has a dozen gigabytes of them.
        if (used.size() > std::numeric_limits<std::uint32_t>::max()) objectmodeler::outOfMemory();
        ends.push_back(static_cast<std::uint32_t>(used.size()));
    }
}

} // namespace

ReferenceIndex::ReferenceIndex(const Part21File& file) {
    const References references(file);
    const std::uint32_t count = file.instanceCount();
    // The place of the first user of an instance stands one further until its users are put down, each of which moves
    // it on: what remains is the place of the first user of the next.
    _first.assign(count + std::size_t{2}, 0);
    for (const std::uint32_t used : references.used) ++_first[used + std::size_t{2}];
    for (std::uint32_t i = 0; i < count; ++i) _first[i + std::size_t{2}] += _first[i + std::size_t{1}];
    _users.resize(references.used.size());
    std::size_t at = 0;
    for (std::uint32_t user = 0; user < count; ++user) {
        for (; at < references.ends[user]; ++at) _users[_first[references.used[at] + std::size_t{1}]++] = user;
    }
}

std::size_t ReferenceIndex::memoryUse() const noexcept {
    return (_first.capacity() + _users.capacity()) * sizeof(std::uint32_t);
}

} // namespace velkor::sdai
