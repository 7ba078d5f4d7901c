/// Where the texts of all releases are stored: each once, with the first release that uses it.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velkor::dictgen {

class TextStore {
public:
    explicit TextStore(std::size_t releases) : _texts(releases), _sizes(releases) {}

    /// Place of a text that the release uses, as the tables write it: the release that stores it in the upper
    /// 8 bits, the bytes before it in the lower 24.
    std::uint32_t place(std::size_t release, const std::string& text);
    /// What a release stores, in order; each text is followed by one zero byte.
    const std::deque<std::string>& texts(std::size_t release) const { return _texts[release]; }

private:
    std::vector<std::deque<std::string>> _texts;
    std::vector<std::uint32_t> _sizes;
    // The keys are views of the texts stored.
    std::unordered_map<std::string_view, std::uint32_t> _places;
};

} // namespace velkor::dictgen
