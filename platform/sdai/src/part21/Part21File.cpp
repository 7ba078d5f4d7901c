#include "velkor/sdai/Part21File.h"

#include "FileText.h"
#include "Separators.h"
#include "StructureReader.h"
#include "velkor/files/Packing.h"
#include "velkor/text/Printable.h"

#include <algorithm>
#include <array>

namespace velkor::sdai {

using namespace part21;

struct Part21File::State {
    State(FileText file_, std::string_view text, std::string path_)
        : file(std::move(file_)), structure(text), path(std::move(path_)),
          name(file.member().empty() ? path : path + ": " + file.member()) {}

    /// The same over what the text holds when that is packed.
    static tl::expected<std::unique_ptr<State>, files::OpenError> of(FileText file, std::string_view text,
                                                                     std::string path);

    FileText file;
    Structure structure;
    std::string path;
    std::string name;
};

namespace {

using Code = files::OpenError::Code;

tl::unexpected<files::OpenError> failure(Code code, const std::string& file, const std::string& reason) {
    return tl::unexpected(files::OpenError{code, text::printable(file) + ": " + reason});
}

constexpr std::string_view expected = R"(expected an exchange structure that begins with "ISO-10303-21;")";

/// What a text is that is no exchange structure; empty when it may be one.
std::string foreignFormat(std::string_view text) {
    struct Format {
        std::string_view beginning;
        std::string_view name;
    };
    using namespace std::string_view_literals;
    static constexpr std::array<Format, 6> formats{{
        {"PK\x03\x04"sv, "a ZIP archive in another archive"sv},
        {"\x1F\x8B"sv, "a gzip file in another archive"sv},
        {"<"sv, "XML"sv},
        {"{"sv, "JSON"sv},
        {"\xFF\xFE"sv, "text in UTF-16"sv},
        {"\xFE\xFF"sv, "text in UTF-16"sv},
    }};
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    const char* end = text.data() + text.size();
    const char* at = skipSeparators(text.data(), end);
    if (at == end) return "it holds nothing";
    const std::string_view content(at, static_cast<std::size_t>(end - at));
    for (const Format& format : formats) {
        // The first byte of some counts as white space.
        if (text.starts_with(format.beginning) || content.starts_with(format.beginning))
            return "it is " + std::string(format.name);
    }
    // The first keyword may be missing, as long as the section that follows is there.
    for (const std::string_view word : {"ISO-10303-21", "HEADER"}) {
        if (startsWithWord(content, word)) return {};
    }
    return "found " + firstLine(content, 16);
}

} // namespace

tl::expected<std::unique_ptr<Part21File::State>, files::OpenError>
Part21File::State::of(FileText file, std::string_view text, std::string path) {
    if (files::packingOf(text) == files::Packing::None)
        return std::make_unique<State>(std::move(file), text, std::move(path));
    auto model = files::unpackModel(text);
    if (!model) return failure(model.error().code, path, model.error().message);
    FileText unpacked(std::move(*model));
    const std::string_view inside = unpacked.text();
    return std::make_unique<State>(std::move(unpacked), inside, std::move(path));
}

Part21File::Part21File(std::unique_ptr<State> state) : _state(std::move(state)) {}
Part21File::~Part21File() = default;

tl::expected<std::unique_ptr<Part21File>, files::OpenError> Part21File::open(const std::string& path, ScanPath scanPath,
                                                                             Access access) {
    return over(files::InputFile::open(path), path, scanPath, access);
}

tl::expected<std::unique_ptr<Part21File>, files::OpenError>
Part21File::fromDescriptor(int descriptor, std::string name, ScanPath scanPath, Access access) {
    return over(files::InputFile::over(descriptor), std::move(name), scanPath, access);
}

tl::expected<std::unique_ptr<Part21File>, files::OpenError> Part21File::fromText(std::string_view text,
                                                                                 std::string name, ScanPath scanPath) {
    return State::of(FileText(), text, std::move(name)).and_then([scanPath](std::unique_ptr<State> state) {
        return read(std::move(state), scanPath);
    });
}

tl::expected<std::unique_ptr<Part21File>, files::OpenError>
Part21File::over(tl::expected<files::InputFile, files::OpenError> input, std::string name, ScanPath scanPath,
                 Access access) {
    auto file = std::move(input).and_then(
        [access](files::InputFile opened) { return FileText::of(std::move(opened), access); });
    if (!file) return failure(file.error().code, name, "cannot be read: " + file.error().message);
    if (file->text().empty()) return failure(Code::Empty, name, "is empty, " + std::string(expected));
    const std::string_view text = file->text();
    return State::of(std::move(*file), text, std::move(name)).and_then([scanPath](std::unique_ptr<State> state) {
        return read(std::move(state), scanPath);
    });
}

tl::expected<std::unique_ptr<Part21File>, files::OpenError> Part21File::read(std::unique_ptr<State> state,
                                                                             ScanPath path) {
    Structure& structure = state->structure;
    FileText& mapped = state->file;
    const BlockClassifier classifier = blockClassifier(path);
    if (classifier == nullptr) {
        return failure(Code::Unsupported, state->name,
                       "the processor lacks the instructions of the scan path asked for");
    }
    mapped.expectReading(0);
    if (const std::string format = foreignFormat(structure.text); !format.empty()) {
        return failure(Code::NoExchangeStructure, state->name, std::string(expected) + ", " + format);
    }
    StructureReader(structure, classifier).read([&mapped](std::uint64_t position) { mapped.expectReading(position); });
    if (structure.tooManyInstances) {
        return failure(Code::TooLarge, state->name,
                       "has more than " + std::to_string(InstanceIndex::maximumCount) +
                           " instances, which is the most that can be read");
    }
    return std::unique_ptr<Part21File>(new Part21File(std::move(state)));
}

const std::string& Part21File::name() const noexcept {
    return _state->name;
}
const std::string& Part21File::path() const noexcept {
    return _state->path;
}
const std::string& Part21File::member() const noexcept {
    return _state->file.member();
}
std::string_view Part21File::text() const noexcept {
    return _state->structure.text;
}
const FileHeader& Part21File::header() const noexcept {
    return _state->structure.header;
}

std::span<const Part21File::DataSection> Part21File::dataSections() const noexcept {
    return _state->structure.sections;
}

std::uint32_t Part21File::instanceCount() const noexcept {
    return _state->structure.index.count();
}
std::optional<std::uint32_t> Part21File::find(std::uint64_t id) const noexcept {
    return _state->structure.index.find(id);
}
std::uint64_t Part21File::id(std::uint32_t number) const noexcept {
    return _state->structure.index.id(number);
}
std::uint64_t Part21File::offset(std::uint32_t number) const noexcept {
    return _state->structure.index.offset(number);
}
std::uint16_t Part21File::keyword(std::uint32_t number) const noexcept {
    return _state->structure.index.keyword(number);
}
std::span<const std::uint16_t> Part21File::keywordNumbers() const noexcept {
    return _state->structure.index.keywords();
}
std::span<const std::string> Part21File::keywords() const noexcept {
    return _state->structure.keywords.keywords();
}

std::string_view Part21File::instanceText(std::uint32_t number) const noexcept {
    const Structure& structure = _state->structure;
    const char* text = structure.text.data();
    const char* at = text + structure.index.offset(number) + 1;
    const char* end = text + structure.text.size();
    if (number + 1 < structure.index.count()) end = text + structure.index.offset(number + 1);
    // Of the sections that begin at or before the instance the last one holds it.
    const auto behind =
        std::upper_bound(structure.sections.begin(), structure.sections.end(), number,
                         [](std::uint32_t value, const DataSection& section) { return value < section.firstInstance; });
    const auto section = static_cast<std::size_t>(behind - structure.sections.begin());
    if (section > 0) end = std::min(end, text + structure.sectionEnds[section - 1]);

    while (at != end && isDigit(*at)) ++at;
    at = skipSeparators(at, end);
    if (at != end && *at == '=') at = skipSeparators(at + 1, end);
    return {at, static_cast<std::size_t>(end - at)};
}

std::uint64_t Part21File::line(std::uint64_t offset) const {
    return _state->structure.lines.line(offset);
}

std::span<const Problem> Part21File::problems() const noexcept {
    return _state->structure.problems.problems();
}
std::uint64_t Part21File::problemCount() const noexcept {
    return _state->structure.problems.total();
}

std::size_t Part21File::memoryUse() const noexcept {
    const Structure& structure = _state->structure;
    return sizeof(State) + structure.index.memoryUse() + structure.keywords.memoryUse() + structure.lines.memoryUse() +
           structure.problems.problems().capacity() * sizeof(Problem);
}

} // namespace velkor::sdai
