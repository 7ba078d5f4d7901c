#include "ZipArchive.h"

#include "UnpackedBytes.h"
#include "velkor/text/Printable.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <new>
#include <optional>
#include <vector>
#include <zip.h>
#include <zlib.h>

namespace velkor::files {

namespace {

// 1 January 1980, the first day that an archive can name, so that the same model gives the same bytes.
constexpr zip_uint16_t firstDay = (1 << 5) | 1;
constexpr zip_uint32_t readableByAll = 0100644U << 16;
constexpr std::size_t listedMembers = 5;

using Archive = std::unique_ptr<zip_t, void (*)(zip_t*)>;
using Member = std::unique_ptr<zip_file_t, int (*)(zip_file_t*)>;
using Source = std::unique_ptr<zip_source_t, void (*)(zip_source_t*)>;

/// An error that the library fills in.
struct ZipError {
    ZipError() { zip_error_init(&error); }
    ZipError(const ZipError&) = delete;
    ZipError& operator=(const ZipError&) = delete;
    ~ZipError() { zip_error_fini(&error); }
    zip_error_t error;
};

/// The library's words for an error. Throws std::bad_alloc when it got no memory.
std::string textOf(zip_error_t* error) {
    const int code = zip_error_code_zip(error);
    if (code == ZIP_ER_MEMORY || (code == ZIP_ER_ZLIB && zip_error_code_system(error) == Z_MEM_ERROR))
        throw std::bad_alloc();
    return zip_error_strerror(error);
}

tl::unexpected<OpenError> damaged(const std::string& reason) {
    return tl::unexpected(UnpackedBytes::damaged("is a damaged ZIP archive: " + reason));
}
tl::unexpected<OpenError> damaged(zip_error_t* error) {
    // Nothing but its beginning was found of what is known to begin as one.
    if (zip_error_code_zip(error) == ZIP_ER_NOZIP)
        return damaged("it ends too early, the directory of its members is missing");
    return damaged(textOf(error));
}
tl::unexpected<OpenError> refused(const std::string& reason) {
    return tl::unexpected(UnpackedBytes::damaged("is a ZIP archive " + reason));
}
tl::unexpected<OpenError> failed(const std::string& reason) {
    return tl::unexpected(OpenError{OpenError::Code::Failed, "the ZIP archive cannot be made: " + reason});
}
tl::unexpected<OpenError> failed(zip_t* archive) {
    return failed(textOf(zip_get_error(archive)));
}

/// Whether a name is one of a folder, or of what a system's archiver keeps about the file of the same name.
bool isBeside(std::string_view name) {
    const auto separator = name.rfind('/');
    const std::string_view last = separator == std::string_view::npos ? name : name.substr(separator + 1);
    return last.empty() || last.starts_with("._") || name.starts_with("__MACOSX/");
}

bool isNamedAsModel(std::string_view name) {
    return name.size() > 4 && text::equalIgnoringCase(name.substr(name.size() - 4), ".ifc");
}

struct Entry {
    zip_uint64_t index;
    std::string name;
};

std::vector<Entry> entriesOf(zip_t* archive) {
    std::vector<Entry> entries;
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        const auto index = static_cast<zip_uint64_t>(i);
        const char* const name = zip_get_name(archive, index, ZIP_FL_ENC_GUESS);
        if (name != nullptr && !isBeside(name)) entries.push_back({index, name});
    }
    return entries;
}

std::string listed(const std::vector<Entry>& entries) {
    const std::size_t shown = std::min(entries.size(), listedMembers);
    std::string names =
        text::joined(std::vector<Entry>(entries.begin(), entries.begin() + static_cast<int>(shown)), ", ",
                     [](const Entry& entry) { return text::quoted(text::excerpt(entry.name, 80)); });
    if (shown < entries.size()) ((names += " and ") += text::grouped(entries.size() - shown)) += " more";
    return names;
}

/// The one member that is the model.
tl::expected<Entry, OpenError> modelIn(zip_t* archive) {
    std::vector<Entry> entries = entriesOf(archive);
    if (entries.empty()) return refused("that holds no file, expected one model in it");
    if (entries.size() == 1) return std::move(entries.front());
    std::vector<Entry> models;
    std::ranges::copy_if(entries, std::back_inserter(models), isNamedAsModel, &Entry::name);
    if (models.size() == 1) return std::move(models.front());
    if (models.empty()) return refused("that holds no .ifc file, expected one model in it; it has " + listed(entries));
    return refused("with " + text::grouped(models.size()) + " models, expected one: " + listed(models));
}

/// Why a member cannot be read, when its entry in the archive shows that.
std::optional<OpenError> faultOf(const zip_stat_t& entry, std::uint64_t most) {
    if ((entry.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && entry.encryption_method != ZIP_EM_NONE)
        return refused("whose model is encrypted, expected one that opens without a password").value();
    if ((entry.valid & ZIP_STAT_COMP_METHOD) != 0 && zip_compression_method_supported(entry.comp_method, 0) == 0)
        return refused("whose model is compressed by the method " + std::to_string(entry.comp_method) +
                       ", which cannot be read, expected deflated or stored")
            .value();
    if ((entry.valid & ZIP_STAT_SIZE) == 0) return damaged("the size of its model is not known").value();
    if (entry.size > most) return UnpackedBytes::tooLarge(most);
    return std::nullopt;
}

tl::expected<UnpackedModel, OpenError> read(zip_t* archive, Entry entry, std::uint64_t most) {
    zip_stat_t found;
    if (zip_stat_index(archive, entry.index, 0, &found) != 0) return damaged(zip_get_error(archive));
    if (auto fault = faultOf(found, most)) return tl::unexpected(std::move(*fault));
    const Member member(zip_fopen_index(archive, entry.index, 0), zip_fclose);
    if (!member) return damaged(zip_get_error(archive));
    UnpackedBytes bytes(most);
    // One more, for the end to be found and with it the check sum.
    bytes.reserve(static_cast<std::size_t>(found.size) + 1);
    while (bytes.room() > 0) {
        const zip_int64_t count = zip_fread(member.get(), bytes.end(), bytes.room());
        if (count < 0) return damaged(zip_file_get_error(member.get()));
        // The library looks at the check sum alone.
        if (count == 0 && bytes.size() < found.size) return damaged("its model is smaller than it says");
        if (count == 0) return bytes.finish(std::move(entry.name));
        bytes.added(static_cast<std::size_t>(count));
    }
    return damaged("its model is larger than it says");
}

/// An archive in memory being written, over a source that keeps its bytes.
tl::expected<void, OpenError> put(std::string_view text, const std::string& member, zip_source_t* target) {
    ZipError error;
    zip_source_keep(target);
    Archive archive(zip_open_from_source(target, ZIP_TRUNCATE, &error.error), zip_discard);
    if (!archive) {
        zip_source_free(target);
        return failed(textOf(&error.error));
    }
    Source source(zip_source_buffer(archive.get(), text.data(), text.size(), 0), zip_source_free);
    const zip_int64_t index = source ? zip_file_add(archive.get(), member.c_str(), source.get(), ZIP_FL_ENC_GUESS) : -1;
    if (index < 0) return failed(archive.get());
    static_cast<void>(source.release());
    const auto added = static_cast<zip_uint64_t>(index);
    if (zip_file_set_dostime(archive.get(), added, 0, firstDay, 0) != 0 ||
        zip_file_set_external_attributes(archive.get(), added, 0, ZIP_OPSYS_UNIX, readableByAll) != 0 ||
        zip_close(archive.get()) != 0)
        return failed(archive.get());
    static_cast<void>(archive.release());
    return {};
}

} // namespace

tl::expected<UnpackedModel, OpenError> unpackZip(std::string_view bytes) {
    ZipError error;
    zip_source_t* const source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error.error);
    if (source == nullptr) throw std::bad_alloc();
    const Archive archive(zip_open_from_source(source, ZIP_RDONLY, &error.error), zip_discard);
    if (!archive) {
        zip_source_free(source);
        return damaged(&error.error);
    }
    return modelIn(archive.get()).and_then([&](const Entry& entry) {
        return read(archive.get(), entry, UnpackedBytes::most(bytes.size()));
    });
}

tl::expected<void, OpenError> packZip(std::string_view text, const std::string& member, OutputFile& output) {
    ZipError error;
    const Source target(zip_source_buffer_create(nullptr, 0, 0, &error.error), zip_source_free);
    if (!target) throw std::bad_alloc();
    if (auto done = put(text, member, target.get()); !done) return done;
    if (zip_source_open(target.get()) != 0) return failed("its bytes cannot be read");
    std::string block(256 << 10, '\0');
    zip_int64_t count = 0;
    while ((count = zip_source_read(target.get(), block.data(), block.size())) > 0)
        output.write(std::string_view(block).substr(0, static_cast<std::size_t>(count)));
    zip_source_close(target.get());
    if (count < 0) return failed("its bytes cannot be read");
    return {};
}

} // namespace velkor::files
