/// The text of a file, mapped into memory or read into it.
#pragma once

#include "velkor/files/InputFile.h"
#include "velkor/sdai/Part21File.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::sdai::part21 {

class FileText {
public:
    /// The message says in a few words why the file cannot be read. An empty file has an empty text.
    static tl::expected<FileText, files::OpenError> open(const std::string& path, Part21File::Access access);

    FileText() = default;
    FileText(FileText&& other) noexcept;
    FileText& operator=(FileText&& other) noexcept;
    ~FileText();

    std::string_view text() const noexcept { return {_data, _size}; }

    /// Tells the system that the text is going to be read from a position on; maps the next few
    /// megabytes in one step and has those behind them fetched.
    void expectReading(std::uint64_t position) noexcept;

private:
    static tl::expected<FileText, files::OpenError> map(const files::InputFile& file);
    static tl::expected<FileText, files::OpenError> read(files::InputFile& file);
    void advise(std::uint64_t from, std::uint64_t length, int advice) const noexcept;

    const char* _data = nullptr;
    std::size_t _size = 0;
    /// Holds what has been read; null when the text is mapped.
    std::unique_ptr<char[]> _read;
    std::uint64_t _prepared = 0;
};

} // namespace velkor::sdai::part21
