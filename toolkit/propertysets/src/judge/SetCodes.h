/// The kinds of findings, for those who make them.
#pragma once

#include "velkor/propertysets/PropertySetCheck.h"

#include <cstdint>

namespace velkor {

/// In the order of setCodes().
enum class Code : std::uint8_t {
    SetUnknown,
    SetNotApplicable,
    SetTemplate,
    SetRepeated,
    PropertyUnknown,
    PropertyKind,
    PropertyRepeated,
    ValueType,
    ValueEnumerator,
    ValueUnit,
    QuantityKind,
    QuantityMethod,
};

inline constexpr std::size_t codeCount = static_cast<std::size_t>(Code::QuantityMethod) + 1;

inline const SetCode& codeOf(Code code) noexcept {
    return setCodes()[static_cast<std::size_t>(code)];
}

/// What the agreement on property sets or that on quantity sets calls a fault is an error.
inline sdai::Severity severityOf(Code code, bool isQuantitySet) noexcept {
    const std::string_view agreement = isQuantitySet ? codeOf(code).quantityAgreement : codeOf(code).agreement;
    return agreement.empty() ? sdai::Severity::Warning : sdai::Severity::Error;
}

} // namespace velkor
