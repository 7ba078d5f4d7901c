#include "velkor/files/Packing.h"

#include "Gzip.h"
#include "velkor/files/Paths.h"
#include "ZipArchive.h"

#include <utility>

namespace velkor::files {

namespace {

bool endsWithIgnoringCase(std::string_view text, std::string_view lower) {
    if (text.size() < lower.size()) return false;
    text.remove_prefix(text.size() - lower.size());
    for (std::size_t i = 0; i < lower.size(); ++i) {
        const char letter = text[i] >= 'A' && text[i] <= 'Z' ? static_cast<char>(text[i] - 'A' + 'a') : text[i];
        if (letter != lower[i]) return false;
    }
    return true;
}

/// The name of a model in the archive of a name: "house.ifc" for "house.ifczip" and "house.ifc.zip".
std::string memberOf(std::string_view path) {
    if (const auto separator = path.rfind('/'); separator != std::string_view::npos) path.remove_prefix(separator + 1);
    path = path.substr(0, path.rfind('.'));
    if (endsWithIgnoringCase(path, ".ifc")) return std::string(path);
    return std::string(path.empty() ? "model" : path) + ".ifc";
}

} // namespace

Packing packingOf(std::string_view bytes) noexcept {
    using namespace std::string_view_literals;
    if (bytes.starts_with("\x1F\x8B"sv)) return Packing::Gzip;
    // The second one is an archive without members.
    if (bytes.starts_with("PK\x03\x04"sv) || bytes.starts_with("PK\x05\x06"sv)) return Packing::Zip;
    return Packing::None;
}

Packing packingOfName(std::string_view path) noexcept {
    if (endsWithIgnoringCase(path, ".ifczip") || endsWithIgnoringCase(path, ".zip")) return Packing::Zip;
    return endsWithIgnoringCase(path, ".gz") ? Packing::Gzip : Packing::None;
}

tl::expected<UnpackedModel, OpenError> unpackModel(std::string_view bytes) {
    return packingOf(bytes) == Packing::Gzip ? unpackGzip(bytes) : unpackZip(bytes);
}

tl::expected<ModelOutput, OpenError> ModelOutput::create(const QORUnicodeString& path) {
    auto file = OutputFile::create(path);
    if (!file) return tl::unexpected(std::move(file.error()));
    ModelOutput output(std::move(*file));
    const std::string native = nativePath(path);
    output._packing = packingOfName(native);
    if (output._packing == Packing::None) return output;
    auto scratch = ScratchFile::createBeside(path);
    if (!scratch) return tl::unexpected(std::move(scratch.error()));
    output._scratch.emplace(std::move(*scratch));
    output._member = memberOf(native);
    return output;
}

tl::expected<void, OpenError> ModelOutput::flush() {
    return pack().and_then([this] { return _file.flush(); });
}

tl::expected<void, OpenError> ModelOutput::commit() {
    return pack().and_then([this] { return _file.commit(); });
}

tl::expected<void, OpenError> ModelOutput::pack() {
    if (!_scratch) return {};
    if (auto written = _scratch->output().commit(); !written) return written;
    const auto text = _scratch->text();
    if (!text) return tl::unexpected(text.error());
    auto packed = _packing == Packing::Gzip ? packGzip(*text, _file) : packZip(*text, _member, _file);
    _scratch.reset();
    return packed;
}

} // namespace velkor::files
