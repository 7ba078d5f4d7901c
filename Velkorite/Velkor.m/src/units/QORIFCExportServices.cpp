#include "QORIFCExportServices.h"

#include "velkor/text/Unicode.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <string_view>

namespace {

constexpr std::string_view alphabet = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$";
constexpr std::size_t partCount = 6;

using Parts = std::array<std::uint32_t, partCount>;

/// The first part in two digits and the others in four. A part's bits that do not fit are left out.
QORUnicodeString written(const Parts& parts) {
    std::array<char, 2 + 4 * (partCount - 1)> text;
    auto* end = text.data();
    for (std::size_t part = 0; part < partCount; ++part) {
        const int digits = part == 0 ? 2 : 4;
        for (int shift = 6 * (digits - 1); shift >= 0; shift -= 6) *end++ = alphabet[parts[part] >> shift & 63U];
    }
    return QORUnicodeString(std::string_view(text.data(), text.size()));
}

/// 15 bits of the C library's generator, the higher ones of each number.
std::uint32_t draw() {
    constexpr int drawnBits = 15;
    constexpr int spareBits = std::bit_width(static_cast<unsigned int>(RAND_MAX)) - drawnBits;
    static_assert(spareBits >= 0);
    return static_cast<std::uint32_t>(std::rand()) >> spareBits;
}

} // namespace

QORUnicodeString QORIFCExportServices::_sGUIDString = "";

QORIFCExportServices::QORIFCExportServices() = default;
QORIFCExportServices::~QORIFCExportServices() = default;

void QORIFCExportServices::GenerateIFCGUID(QORUnicodeString& guid) {
    static std::uint32_t generation = 0;
    std::srand(++generation + static_cast<std::uint32_t>(std::time(nullptr)));
    std::array<std::uint32_t, 8> r;
    for (std::uint32_t& number : r) number = draw();

    // Four 16-bit pieces as they stand, then four with their lower byte first.
    const std::uint32_t data1 = r[0] << 16U | r[1];
    const std::uint32_t data2 = r[2];
    const std::uint32_t data3 = r[3];
    std::array<std::uint32_t, 8> data4;
    for (std::size_t i = 0; i < data4.size(); ++i) data4[i] = r[4 + i / 2] >> (i % 2 * 8) & 0xFFU;

    guid = written({data1 >> 24U, data1 & 0xFFFFFFU, data2 << 8U | data3 >> 8U,
                    (data3 & 0xFFU) << 16U | data4[0] << 8U | data4[1], data4[2] << 16U | data4[3] << 8U | data4[4],
                    data4[5] << 16U | data4[6] << 8U | data4[7]});
}

void QORIFCExportServices::ConvertPLMIDToGUID(const QORUnicodeString& plmId, QORUnicodeString& guid) {
    std::string_view rest = plmId.utf8();
    const std::size_t pieceLength = velkor::text::characterCount(rest) / partCount;
    Parts parts;
    for (std::size_t part = 0; part < partCount; ++part) {
        const bool isLast = part == partCount - 1;
        const std::size_t size = isLast ? rest.size() : velkor::text::byteOffset(rest, pieceLength);
        // The hash of the piece as ComputeHashKey gives it, without a string for each piece.
        parts[part] = velkor::text::hash32(rest.substr(0, size));
        rest.remove_prefix(size);
    }
    guid = written(parts);
}

void QORIFCExportServices::SetParentGUID(QORUnicodeString& guid) {
    _sGUIDString = guid;
}

void QORIFCExportServices::GetParentGUID(QORUnicodeString& guid) {
    guid = _sGUIDString;
}
