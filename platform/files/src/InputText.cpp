#include "velkor/files/InputText.h"

#include "velkor/files/FileContents.h"

#include <algorithm>
#include <istream>

namespace velkor::files {

tl::expected<std::string, OpenError> readInput(const std::string& path, std::istream* standardInput, std::size_t most) {
    if (path != "-") return readFile(path, most);
    std::string bytes, block(64 << 10, '\0');
    while (standardInput != nullptr && *standardInput && bytes.size() < most) {
        const std::size_t wanted = std::min(block.size(), most - bytes.size());
        standardInput->read(block.data(), static_cast<std::streamsize>(wanted));
        bytes.append(block, 0, static_cast<std::size_t>(standardInput->gcount()));
    }
    if (standardInput != nullptr && standardInput->bad())
        return tl::unexpected(OpenError{OpenError::Code::Failed, "reading failed"});
    return bytes;
}

} // namespace velkor::files
