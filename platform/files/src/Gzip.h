/// Text compressed by gzip (RFC 1952).
#pragma once

#include "velkor/files/OpenError.h"
#include "velkor/files/OutputFile.h"
#include "velkor/files/Packing.h"

#include <string_view>
#include <tl/expected.hpp>

namespace velkor::files {

tl::expected<UnpackedModel, OpenError> unpackGzip(std::string_view bytes);
tl::expected<void, OpenError> packGzip(std::string_view text, OutputFile& output);

} // namespace velkor::files
