/// What a document may have of what the parser's time grows with the square of.
#pragma once

#include "DocumentStore.h"

#include <libxml/parser.h>
#include <string>

namespace velkor::xml {

/// libxml2 compares every attribute of an element with every other, and looks for namespaces one by one.
inline constexpr int maximumAttributes = 1000;
inline constexpr int maximumNamespaces = 1000;
/// Different names: the table in which libxml2 looks them up does not grow with their number.
inline constexpr int maximumNames = 100'000;
/// Bytes of a document: what libxml2 counts with an int.
inline constexpr std::size_t maximumBytes = 0x7FFFFFFF;

inline std::string tooDeep() {
    return "elements nest deeper than " + std::to_string(maximumDepth);
}
inline std::string tooManyAttributes() {
    return "an element has more than " + std::to_string(maximumAttributes) + " attributes";
}
inline std::string tooManyNamespaces() {
    return "more than " + std::to_string(maximumNamespaces) + " namespaces are in force";
}

inline std::string tooManyNames() {
    return "more than " + std::to_string(maximumNames) + " different names";
}

/// What is too much of an element whose begin is reported; empty when nothing is. Of the names, `known` are those of
/// other documents.
inline std::string elementExcess(const xmlParserCtxt& parser, int attributes, int known = 0) {
    if (parser.nameNr >= maximumDepth) return tooDeep();
    if (attributes > maximumAttributes) return tooManyAttributes();
    if (parser.nsNr / 2 > maximumNamespaces) return tooManyNamespaces();
    if (xmlDictSize(parser.dict) - known > maximumNames) return tooManyNames();
    return {};
}

/// The same while a tag is being read: at its end the work is done already. There is room for twice as many attributes
/// as have been needed.
inline std::string tagExcess(const xmlParserCtxt& parser, int known = 0) {
    if (parser.maxatts > 2 * 5 * (maximumAttributes + 1)) return tooManyAttributes();
    if (parser.nsNr / 2 > maximumNamespaces) return tooManyNamespaces();
    if (xmlDictSize(parser.dict) - known > maximumNames) return tooManyNames();
    return {};
}

} // namespace velkor::xml
