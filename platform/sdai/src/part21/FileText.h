/// The text of a file, mapped into memory, or read or unpacked into it.
#pragma once

#include "velkor/files/InputFile.h"
#include "velkor/files/Packing.h"
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
    static tl::expected<FileText, files::OpenError> of(files::InputFile file, Part21File::Access access);

    FileText() = default;
    explicit FileText(files::UnpackedModel model) noexcept;
    FileText(FileText&& other) noexcept;
    FileText& operator=(FileText&& other) noexcept;
    ~FileText();

    std::string_view text() const noexcept { return {_data, _size}; }

    /// What the text was in an archive; empty for others.
    const std::string& member() const noexcept { return _unpacked.member(); }

    /// Tells the system that the text is going to be read from a position on; maps the next few
    /// megabytes in one step and has those behind them fetched.
    void expectReading(std::uint64_t position) noexcept;

private:
    static tl::expected<FileText, files::OpenError> map(const files::InputFile& file);
    static tl::expected<FileText, files::OpenError> read(files::InputFile& file);
    bool isMapped() const noexcept { return _data != nullptr && !_read && _unpacked.text().data() == nullptr; }
    void advise(std::uint64_t from, std::uint64_t length, int advice) const noexcept;

    const char* _data = nullptr;
    std::size_t _size = 0;
    /// Holds what has been read; null when the text is mapped.
    std::unique_ptr<char[]> _read;
    /// Holds what has been unpacked.
    files::UnpackedModel _unpacked;
    std::uint64_t _prepared = 0;
};

} // namespace velkor::sdai::part21
