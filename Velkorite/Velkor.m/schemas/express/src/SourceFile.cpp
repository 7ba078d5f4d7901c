#include "SourceFile.h"

#include "ExpressReader.h"

#include <array>
#include <fstream>
#include <openssl/evp.h>
#include <sstream>

namespace velkor::express {

std::string sha256(const std::string& text) {
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest;
    unsigned length = 0;
    EVP_Digest(text.data(), text.size(), digest.data(), &length, EVP_sha256(), nullptr);
    std::string result;
    for (unsigned i = 0; i < length; ++i) {
        result += "0123456789abcdef"[digest[i] >> 4];
        result += "0123456789abcdef"[digest[i] & 15];
    }
    return result;
}

std::optional<std::string> contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    std::ostringstream text;
    text << file.rdbuf();
    return file ? std::optional(text.str()) : std::nullopt;
}

tl::expected<void, std::string> readSource(const std::filesystem::path& path, ExpressSchema& schema,
                                           std::string& inputs) {
    const auto text = contents(path);
    if (!text) return tl::unexpected(path.string() + ": cannot be read");
    (inputs.empty() ? inputs : inputs += ", ") += path.filename().string() + " (SHA-256 " + sha256(*text) + ")";
    return readExpress(*text, path.string(), schema);
}

} // namespace velkor::express
