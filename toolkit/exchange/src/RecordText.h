/// Parameters of records as the file has them, found without instance objects, which a model keeps.
///
///     eachReference(parameterOf(*model, number, "RELATEDOBJECTS"), [&](std::uint64_t id) { use(id); });
#pragma once

#include "velkor/sdai/Model.h"
#include "velkor/sdai/Part21Lexer.h"

#include <string>
#include <string_view>

namespace velkor::exchange {

/// A parameter of a simple record, counted from 0, from its first token to the separator behind it; empty when the
/// record is complex or is damaged before its end.
std::string_view parameterOf(std::string_view record, std::size_t position);
/// The same by an attribute of its entity; empty when there is none of the name.
std::string_view parameterOf(const sdai::Model& model, std::uint32_t number, std::string_view attribute);

/// Whether a parameter says nothing: "$", "*", or none at all.
bool isUnset(std::string_view parameter);

/// The text of a literal, also of a typed one; empty for what is none.
std::string textOf(std::string_view parameter);

/// The ids that a parameter names, at any depth and in their order.
template <class Take>
void eachReference(std::string_view parameter, Take take) {
    sdai::Part21Lexer lexer(parameter);
    for (sdai::Token token = lexer.next(); token.kind != sdai::TokenKind::End; token = lexer.next())
        if (token.kind == sdai::TokenKind::InstanceName) take(sdai::decodeInstanceName(token.text));
}

/// The same by the numbers of the instances; what dangles is passed over.
template <class Take>
void eachNumber(const sdai::Part21File& file, std::string_view parameter, Take take) {
    eachReference(parameter, [&](std::uint64_t id) {
        if (const auto number = file.find(id)) take(*number);
    });
}

} // namespace velkor::exchange
