// Any bytes as a ZIP archive or a gzip file that holds a model. What is unpacked keeps to the bound for its size, is
// the same again, and is read as the text itself; what is refused has a reason of one line.

#include "FuzzSupport.h"
#include "velkor/files/Packing.h"
#include "velkor/sdai/Part21File.h"

#include <algorithm>
#include <cstdint>
#include <string>

using namespace velkor;
using velkor::test::require;

namespace {

void requireReason(const files::OpenError& error) {
    require(!error.message.empty() && error.message.find('\n') == std::string::npos);
}

/// Files that hold the text of an archive, and the archive itself, are read alike.
void checkReading(std::string_view bytes, const files::UnpackedModel& model) {
    const auto packed = sdai::Part21File::fromText(bytes, "fuzz");
    // What lies in an archive is not unpacked once more.
    if (files::packingOf(model.text()) != files::Packing::None) return require(!packed);
    const auto plain = sdai::Part21File::fromText(model.text(), "fuzz");
    require(packed.has_value() == plain.has_value());
    if (!packed) return requireReason(packed.error());
    require((*packed)->path() == "fuzz" && (*packed)->member() == model.member());
    require((*packed)->text() == model.text() && (*packed)->instanceCount() == (*plain)->instanceCount());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto model = files::unpackModel(bytes);
    if (!model) {
        requireReason(model.error());
        return 0;
    }
    require(model->text().size() <= std::max<std::uint64_t>(files::alwaysUnpacked, size * files::mostUnpackedRatio));
    require(files::packingOf(bytes) == files::Packing::Gzip ? model->member().empty() : !model->member().empty());
    // A ZIP archive may stand behind other bytes, a model that is read as one may not.
    if (files::packingOf(bytes) != files::Packing::None) checkReading(bytes, *model);
    return 0;
}
