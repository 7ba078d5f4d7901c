/// The values of a property or quantity, as the file types them.
#pragma once

#include "judge/PropertySlots.h"
#include "judge/SharedText.h"

namespace velkor {

/// A value of IfcValue in the file, IFCLABEL('x').
struct TypedValue {
    /// Empty when it is not typed.
    std::string_view keyword;
    /// What stands in its parentheses first.
    sdai::Token token;
};

inline TypedValue typedValue(const sdai::Primitive& value) noexcept {
    sdai::Part21Lexer lexer(value.encoded());
    TypedValue result{{}, lexer.next()};
    if (result.token.kind != sdai::TokenKind::Keyword || lexer.peek().kind != sdai::TokenKind::Open) return result;
    result.keyword = result.token.text;
    lexer.next();
    result.token = lexer.next();
    return result;
}

/// Takes each value that is given of a slot, until `take` answers false.
template <class Take>
void eachValue(const DXSdaiAppInstance& property, const PropertySlots::Value& slot, Take take) {
    if (slot.place < 0) return;
    const sdai::Primitive value = property.attribute(static_cast<std::size_t>(slot.place));
    if (!slot.isMany) {
        if (isGiven(value)) take(value);
        return;
    }
    for (const sdai::Primitive each : value.asAggregate()) {
        if (isGiven(each) && !take(each)) return;
    }
}

} // namespace velkor
