/// Models that are compressed, in ZIP archives (.ifczip, .zip) and by gzip (.gz).
///
///     if (packingOf(bytes) != Packing::None) {
///         auto model = unpackModel(bytes);
///         if (!model) return report(model.error().message);
///         use(model->text());
///     }
#pragma once

#include "velkor/files/OpenError.h"
#include "velkor/files/OutputFile.h"
#include "velkor/files/ScratchFile.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::files {

enum class Packing : std::uint8_t { None, Gzip, Zip };

/// How the content of a file is packed, by its first bytes; its name does not matter.
VELKOR_PLATFORM_API Packing packingOf(std::string_view bytes) noexcept;
/// How a file of a name is to be packed: .ifczip and .zip, .gz, in any case; None for all others.
VELKOR_PLATFORM_API Packing packingOfName(std::string_view path) noexcept;

/// The text of a model that was packed.
class UnpackedModel {
public:
    std::string_view text() const noexcept { return {_bytes.get(), _size}; }
    /// The name that it has in its archive, in UTF-8; empty for gzip.
    const std::string& member() const noexcept { return _member; }

private:
    friend class UnpackedBytes;
    struct Free {
        void operator()(char* bytes) const noexcept { std::free(bytes); }
    };
    std::unique_ptr<char, Free> _bytes;
    std::size_t _size = 0;
    std::string _member;
};

/// The most that bytes of an archive are unpacked to: `mostUnpackedRatio` times their number, or `alwaysUnpacked` where
/// that is more, and never more than `mostUnpacked`. What claims or turns out to hold more is refused, with no more
/// memory touched.
constexpr std::uint64_t mostUnpackedRatio = 250, alwaysUnpacked = 64ULL << 20, mostUnpacked = 32ULL << 30;

/// Unpacks the one model of an archive: the only member of a ZIP archive whose name ends with ".ifc", or its only
/// member. Its text is in memory once; `bytes` are not needed any more. Archives that are encrypted, damaged, too
/// large, or without one model for certain are refused; the message, which has no name of the file, says why.
VELKOR_PLATFORM_API tl::expected<UnpackedModel, OpenError> unpackModel(std::string_view bytes);

/// A model written piece by piece into a file, which is packed when its name says so. The same text under the same
/// name gives the same bytes, whenever it is written.
class VELKOR_PLATFORM_API ModelOutput {
public:
    /// Begins a file beside the one of the name.
    static tl::expected<ModelOutput, OpenError> create(const QORUnicodeString& path);
    /// Writes to what is open already, unpacked.
    static ModelOutput onto(int descriptor) { return ModelOutput(OutputFile::onto(descriptor)); }

    /// Takes the model's text. To be committed by commit() alone.
    OutputFile& text() noexcept { return _scratch ? _scratch->output() : _file; }
    /// Packs what was written and flushes it to the disk. Nothing is written behind it.
    [[nodiscard]] tl::expected<void, OpenError> flush();
    /// Puts the file in the place of its predecessor. To be called once.
    [[nodiscard]] tl::expected<void, OpenError> commit();

private:
    explicit ModelOutput(OutputFile file) : _file(std::move(file)) {}
    VELKOR_PLATFORM_LOCAL tl::expected<void, OpenError> pack();

    OutputFile _file;
    // Holds the text of a model that is packed, until it is.
    std::optional<ScratchFile> _scratch;
    Packing _packing = Packing::None;
    std::string _member;
};

} // namespace velkor::files
