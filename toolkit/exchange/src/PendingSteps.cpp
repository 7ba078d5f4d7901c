// Steps that are still to come say so.

#include "velkor/exchange/Conversion.h"

namespace velkor {

[[gnu::weak]] Converted<StepReport> convertProperties(const sdai::Model&, const PropertyOptions&, files::OutputFile&) {
    return tl::unexpected(std::string("other properties are not written yet"));
}

} // namespace velkor
