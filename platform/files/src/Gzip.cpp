#include "Gzip.h"

#include "UnpackedBytes.h"

#include <algorithm>
#include <climits>
#include <new>
#include <zlib.h>

namespace velkor::files {

namespace {

// Largest window, with header and check sum of gzip.
constexpr int gzipWindow = 15 + 16;

/// As much of a text as zlib counts at once.
uInt portion(std::size_t size) {
    return static_cast<uInt>(std::min<std::size_t>(size, UINT_MAX));
}

Bytef* input(std::string_view bytes) {
    return reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
}

/// Inflates the members of a gzip file one behind the other.
class Inflater {
public:
    explicit Inflater(std::string_view bytes) : _rest(bytes), _result(UnpackedBytes::most(bytes.size())) {
        if (inflateInit2(&_stream, gzipWindow) != Z_OK) throw std::bad_alloc();
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() { inflateEnd(&_stream); }

    tl::expected<UnpackedModel, OpenError> run() {
        while (true) {
            const int status = step();
            if (_result.isTooLarge()) return tl::unexpected(UnpackedBytes::tooLarge(_result.most()));
            if (status == Z_STREAM_END) {
                // Zeros may fill up the last block of a tape.
                if (_rest.find_first_not_of('\0') == std::string_view::npos) return _result.finish();
                if (packingOf(_rest) != Packing::Gzip)
                    return tl::unexpected(UnpackedBytes::damaged("is a damaged gzip file: text stands behind its end"));
                inflateReset(&_stream);
            } else if (status == Z_MEM_ERROR) {
                throw std::bad_alloc();
            } else if (status == Z_BUF_ERROR || (status == Z_OK && _rest.empty() && _result.room() > 0)) {
                return tl::unexpected(UnpackedBytes::damaged("is a damaged gzip file: it ends too early"));
            } else if (status != Z_OK) {
                return tl::unexpected(UnpackedBytes::damaged(std::string("is a damaged gzip file: ") +
                                                             (_stream.msg != nullptr ? _stream.msg : "invalid data")));
            }
        }
    }

private:
    int step() {
        if (_result.room() == 0) _result.grow();
        const uInt given = portion(_rest.size()), room = portion(_result.room());
        _stream.next_in = input(_rest);
        _stream.avail_in = given;
        _stream.next_out = reinterpret_cast<Bytef*>(_result.end());
        _stream.avail_out = room;
        const int status = inflate(&_stream, Z_NO_FLUSH);
        _rest.remove_prefix(given - _stream.avail_in);
        _result.added(room - _stream.avail_out);
        return status;
    }

    std::string_view _rest;
    UnpackedBytes _result;
    z_stream _stream{};
};

} // namespace

tl::expected<UnpackedModel, OpenError> unpackGzip(std::string_view bytes) {
    return Inflater(bytes).run();
}

tl::expected<void, OpenError> packGzip(std::string_view text, OutputFile& output) {
    z_stream stream{};
    // Neither name nor time are put into the header.
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, gzipWindow, MAX_MEM_LEVEL, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::bad_alloc();
    const std::unique_ptr<z_stream, int (*)(z_stream*)> guard(&stream, deflateEnd);
    std::string block(256 << 10, '\0');
    int status = Z_OK;
    while (status == Z_OK) {
        const uInt given = portion(text.size());
        stream.next_in = input(text);
        stream.avail_in = given;
        stream.next_out = reinterpret_cast<Bytef*>(block.data());
        stream.avail_out = static_cast<uInt>(block.size());
        status = deflate(&stream, given == text.size() ? Z_FINISH : Z_NO_FLUSH);
        text.remove_prefix(given - stream.avail_in);
        output.write(std::string_view(block).substr(0, block.size() - stream.avail_out));
    }
    if (status != Z_STREAM_END) return tl::unexpected(OpenError{OpenError::Code::Failed, "compressing failed"});
    return {};
}

} // namespace velkor::files
