#include "DeclarationList.h"

#include <algorithm>
#include <array>
#include <limits>

namespace velkor::sdai {

namespace {

struct Keyword {
    std::string_view text;
    void (*read)(TextReader&, DeclarationList&, Declaration&, std::size_t number);
    DeclarationKind kind;
};

void readName(TextReader& reader, DeclarationList&, Declaration& declaration, std::size_t) {
    declaration.name = reader.name();
    reader.close();
}

void readDefinedType(TextReader& reader, DeclarationList& list, Declaration& declaration, std::size_t number) {
    declaration.name = reader.name();
    reader.comma();
    declaration.type = readType(reader, list, number, places::underlying);
    reader.close();
}

void readEnumeration(TextReader& reader, DeclarationList&, Declaration& declaration, std::size_t) {
    std::string_view value = reader.name();
    const char* const begin = value.data();
    declaration.members.count = 1;
    for (; reader.another(); ++declaration.members.count) value = reader.name();
    if (declaration.members.count > DeclarationList::Most) reader.fail("at most 65535 enumerators");
    if (!reader.failed()) declaration.name = {begin, static_cast<std::size_t>(value.data() + value.size() - begin)};
}

void readSelect(TextReader& reader, DeclarationList& list, Declaration& declaration, std::size_t number) {
    declaration.members.first = static_cast<std::uint32_t>(list.items.size());
    do {
        list.items.push_back(readReference(reader, list, number, places::item));
    } while (reader.another());
    declaration.members.count = static_cast<std::uint32_t>(list.items.size()) - declaration.members.first;
}

// An upper bound of 0 stands for an expression, which may exceed the lower bound.
void readBounds(TextReader& reader, Declaration& declaration, int least) {
    constexpr int unbounded = -1;
    declaration.lower = reader.integer(least);
    reader.comma();
    declaration.upper = reader.integer(std::min(least, unbounded));
    if (declaration.upper != unbounded && declaration.upper != 0 && declaration.upper < declaration.lower) {
        reader.fail("an upper bound not below the lower bound");
    }
}

bool readUnique(TextReader& reader) {
    reader.comma();
    return reader.choice("UNIQ", "DUPL", "UNIQ or DUPL");
}

void readList(TextReader& reader, DeclarationList& list, Declaration& declaration, std::size_t number) {
    declaration.type = readType(reader, list, number, places::valueType);
    reader.comma();
    readBounds(reader, declaration, 0);
    declaration.unique = readUnique(reader);
    reader.close();
}

void readSet(TextReader& reader, DeclarationList& list, Declaration& declaration, std::size_t number) {
    declaration.type = readType(reader, list, number, places::valueType);
    reader.comma();
    readBounds(reader, declaration, 0);
    reader.close();
}

void readArray(TextReader& reader, DeclarationList& list, Declaration& declaration, std::size_t number) {
    declaration.type = readType(reader, list, number, places::valueType);
    reader.comma();
    readBounds(reader, declaration, std::numeric_limits<int>::min());
    declaration.unique = readUnique(reader);
    reader.comma();
    declaration.optional = reader.choice("OPT", "REQ", "OPT or REQ");
    reader.close();
}

void readEntity(TextReader& reader, DeclarationList&, Declaration& declaration, std::size_t) {
    declaration.name = reader.name();
    reader.comma();
    declaration.isAbstract = reader.choice("ABSTRACT", "INSTANTIABLE", "ABSTRACT or INSTANTIABLE");
    reader.comma();
    reader.choice("SIMPLE", "SIMPLE", "SIMPLE");
    reader.comma();
    reader.choice("INDEPENDENT", "INDEPENDENT", "INDEPENDENT");
    reader.close();
}

constexpr std::array<Keyword, 11> keywords{{
    {"ExplicitAttr", readName, DeclarationKind::ExplicitAttr},
    {"Entity", readEntity, DeclarationKind::Entity},
    {"DefinedType", readDefinedType, DeclarationKind::DefinedType},
    {"EnumerationType", readEnumeration, DeclarationKind::EnumerationType},
    {"ListType", readList, DeclarationKind::ListType},
    {"SetType", readSet, DeclarationKind::SetType},
    {"SelectType", readSelect, DeclarationKind::SelectType},
    {"DerivedAttr", readName, DeclarationKind::DerivedAttr},
    {"ArrayType", readArray, DeclarationKind::ArrayType},
    {"UniquenessRule", readName, DeclarationKind::UniquenessRule},
    {"Schema", readName, DeclarationKind::Schema},
}};

void readDeclaration(TextReader& reader, DeclarationList& list, Declaration& declaration, std::size_t number) {
    const std::string_view word = reader.keyword();
    if (reader.failed()) return;
    for (const Keyword& keyword : keywords) {
        if (keyword.text != word) continue;
        declaration.kind = keyword.kind;
        // The schema is number 1 and nothing else is.
        if ((keyword.kind == DeclarationKind::Schema) != (number == 1)) break;
        keyword.read(reader, list, declaration, number);
        if (keyword.kind == DeclarationKind::Entity)
            declaration.ordinal = list.entities++;
        else if (places::owned.fits(keyword.kind))
            declaration.ordinal = list.attributesAndRules++;
        return;
    }
    reader.fail(number == 1 ? "the keyword Schema" : "the keyword of a declaration");
}

void readSimpleType(TextReader& reader, TypeReference& type, const char* expected) {
    const std::string_view word = reader.word();
    if (word == "RealType") {
        type.simple = TypeKind::Real;
        reader.expect('(', "\"(8)\"");
        type.width = reader.integer(1);
        if (type.width != 8) reader.fail("8, the only size of a REAL");
        reader.expect(')', "\")\"");
        return;
    }
    if (word == "IntegerType")
        type.simple = TypeKind::Integer;
    else if (word == "BooleanType")
        type.simple = TypeKind::Boolean;
    else if (word == "LogicalType")
        type.simple = TypeKind::Logical;
    else if (word == "StringType")
        type.simple = TypeKind::String;
    else if (word == "BinaryType")
        type.simple = TypeKind::Binary;
    else
        return reader.fail(expected);

    const bool mayHaveWidth = type.simple == TypeKind::String || type.simple == TypeKind::Binary;
    if (!mayHaveWidth || !reader.take('(')) return;
    type.width = reader.integer(1);
    if (reader.take(',')) type.fixed = reader.choice("FIXED", "FIXED", "FIXED");
    reader.expect(')', "\")\"");
}

} // namespace

tl::expected<DeclarationList, std::string> readDeclarations(std::span<const char* const> texts) {
    if (texts.empty()) return tl::unexpected<std::string>("the declaration list is empty; expected the schema first");
    if (texts.size() > DeclarationList::Most) {
        return tl::unexpected("the declaration list holds " + std::to_string(texts.size()) +
                              " texts; expected at most " + std::to_string(DeclarationList::Most));
    }
    DeclarationList list;
    list.declarations.resize(texts.size() + 1);
    for (std::size_t number = 1; number <= texts.size(); ++number) {
        const char* text = texts[number - 1];
        if (text == nullptr) return tl::unexpected(listError("declaration", number, "", "expected a text, found none"));
        TextReader reader(text);
        readDeclaration(reader, list, list.declarations[number], number);
        if (reader.failed()) return tl::unexpected(listError("declaration", number, text, reader.message()));
    }
    return list;
}

TypeReference readType(TextReader& reader, const DeclarationList& list, std::size_t end, const Place& place) {
    TypeReference type;
    if (reader.atReference()) {
        type.number = readReference(reader, list, end, place);
    } else {
        readSimpleType(reader, type, place.expected);
    }
    return type;
}

std::uint16_t readReference(TextReader& reader, const DeclarationList& list, std::size_t end, const Place& place) {
    const std::uint32_t number = reader.reference();
    if (reader.failed()) return 0;
    if (number >= end) {
        reader.fail(end < list.declarations.size() ? "a reference to an earlier declaration"
                                                   : "the number of a declaration");
        return 0;
    }
    if (!place.fits(list[number].kind)) {
        reader.fail(place.expected);
        return 0;
    }
    return static_cast<std::uint16_t>(number);
}

std::string listError(const char* list, std::size_t position, const char* text, std::string_view message) {
    std::string result = std::string(list) + ' ' + std::to_string(position);
    if (*text != '\0') result += ' ' + quoted(text);
    return result.append(": ").append(message);
}

} // namespace velkor::sdai
