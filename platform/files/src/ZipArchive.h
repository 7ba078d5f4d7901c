/// ZIP archives that hold one model.
#pragma once

#include "velkor/files/OpenError.h"
#include "velkor/files/OutputFile.h"
#include "velkor/files/Packing.h"

#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::files {

tl::expected<UnpackedModel, OpenError> unpackZip(std::string_view bytes);
tl::expected<void, OpenError> packZip(std::string_view text, const std::string& member, OutputFile& output);

} // namespace velkor::files
