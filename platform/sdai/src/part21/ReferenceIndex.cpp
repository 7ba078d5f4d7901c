#include "velkor/sdai/ReferenceIndex.h"

#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>

namespace velkor::sdai {

namespace {

/// Calls take(used) for each instance that one refers to, as often as it does.
template <class Take>
void eachReference(const Part21File& file, std::uint32_t number, Take take) {
    Part21Lexer lexer(file.instanceText(number));
    for (Token token = lexer.next(); token.kind != TokenKind::End && token.kind != TokenKind::Semicolon;
         token = lexer.next())
        if (token.kind == TokenKind::InstanceName)
            if (const auto used = file.find(decodeInstanceName(token.text))) take(*used);
}

} // namespace

ReferenceIndex::ReferenceIndex(const Part21File& file) {
    const std::uint32_t count = file.instanceCount();
    constexpr std::uint32_t nobody = 0xFFFFFFFF;
    // The last that was seen to refer to an instance, so that each counts once.
    std::vector<std::uint32_t> last(count, nobody);
    _first.assign(count + std::size_t{1}, 0);
    const auto eachUse = [&](auto take) {
        std::ranges::fill(last, nobody);
        for (std::uint32_t user = 0; user < count; ++user)
            eachReference(file, user, [&](std::uint32_t used) {
                if (std::exchange(last[used], user) != user) take(used, user);
            });
    };
    eachUse([this](std::uint32_t used, std::uint32_t) { ++_first[used + std::size_t{1}]; });
    for (std::uint32_t i = 0; i < count; ++i) _first[i + std::size_t{1}] += _first[i];
    _users.resize(_first[count]);
    std::vector<std::uint32_t> next(_first.begin(), _first.end() - 1);
    eachUse([&](std::uint32_t used, std::uint32_t user) { _users[next[used]++] = user; });
}

std::size_t ReferenceIndex::memoryUse() const noexcept {
    return (_first.capacity() + _users.capacity()) * sizeof(std::uint32_t);
}

} // namespace velkor::sdai
