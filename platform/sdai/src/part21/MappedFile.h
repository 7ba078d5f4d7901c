/// A file mapped into memory for reading.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::sdai::part21 {

class MappedFile {
public:
    /// The error says in a few words why the file cannot be mapped. An empty file maps to an
    /// empty text.
    static tl::expected<MappedFile, std::string> open(const std::string& path);

    MappedFile() = default;
    MappedFile(MappedFile&& other) noexcept;
    MappedFile& operator=(MappedFile&& other) noexcept;
    ~MappedFile();

    std::string_view text() const noexcept { return {_data, _size}; }

    /// Tells the system that the text is going to be read from a position on; maps the next few
    /// megabytes in one step and has those behind them fetched.
    void expectReading(std::uint64_t position) noexcept;

private:
    void advise(std::uint64_t from, std::uint64_t length, int advice) const noexcept;

    char* _data = nullptr;
    std::size_t _size = 0;
    std::uint64_t _prepared = 0;
};

} // namespace velkor::sdai::part21
