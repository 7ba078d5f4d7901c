#include "PropertyQuantity.h"

#include "RecordBuilder.h"
#include "RecordText.h"
#include "velkor/text/Unicode.h"

namespace velkor::exchange {

namespace {

struct QuantityKind {
    std::string_view measure;
    std::string_view entity;
    std::string_view attribute;
};

constexpr QuantityKind kinds[] = {
    {"IFCLENGTHMEASURE", "IFCQUANTITYLENGTH", "LENGTHVALUE"},
    {"IFCPOSITIVELENGTHMEASURE", "IFCQUANTITYLENGTH", "LENGTHVALUE"},
    {"IFCNONNEGATIVELENGTHMEASURE", "IFCQUANTITYLENGTH", "LENGTHVALUE"},
    {"IFCAREAMEASURE", "IFCQUANTITYAREA", "AREAVALUE"},
    {"IFCVOLUMEMEASURE", "IFCQUANTITYVOLUME", "VOLUMEVALUE"},
    {"IFCMASSMEASURE", "IFCQUANTITYWEIGHT", "WEIGHTVALUE"},
    {"IFCTIMEMEASURE", "IFCQUANTITYTIME", "TIMEVALUE"},
    {"IFCCOUNTMEASURE", "IFCQUANTITYCOUNT", "COUNTVALUE"},
};

bool isNamedUnit(const sdai::Model& model, std::string_view parameter) {
    bool isNamed = true;
    eachReference(parameter, [&](std::uint64_t id) {
        const auto number = model.file().find(id);
        const sdai::EntityDefinition* entity = number ? model.entityAt(*number) : nullptr;
        isNamed = entity != nullptr && entity->isKindOf("IFCNAMEDUNIT");
    });
    return isNamed;
}

} // namespace

std::string quantityOf(const sdai::Model& model, const ReleaseSchema& schema, std::uint32_t property,
                       const std::string& name) {
    const sdai::EntityDefinition* entity = model.entityAt(property);
    if (entity == nullptr || !entity->isKindOf("IFCPROPERTYSINGLEVALUE")) return {};
    const std::string_view unit = parameterOf(model, property, "UNIT");
    if (!isNamedUnit(model, unit)) return {};
    sdai::Part21Lexer lexer(parameterOf(model, property, "NOMINALVALUE"));
    const std::string measure = text::asciiUpper(lexer.next().text);
    if (lexer.next().kind != sdai::TokenKind::Open) return {};
    const sdai::Token value = lexer.next();
    double number = 0.0;
    const bool isInteger = value.kind == sdai::TokenKind::Integer;
    if (!isInteger && value.kind != sdai::TokenKind::Real) return {};
    if (!sdai::decodeReal(value.text, number) || number < 0.0) return {};
    for (const QuantityKind& kind : kinds) {
        if (kind.measure != measure || schema.entity(kind.entity) == nullptr) continue;
        const bool isCount = kind.measure == "IFCCOUNTMEASURE";
        if (isCount && !isInteger) return {};
        RecordBuilder quantity(schema, kind.entity);
        quantity.set("NAME", literal(name));
        quantity.set("DESCRIPTION", std::string(parameterOf(model, property, "DESCRIPTION")));
        quantity.set("UNIT", std::string(unit));
        quantity.set(kind.attribute, std::string(value.text) += isInteger && !isCount ? "." : "");
        return quantity.text();
    }
    return {};
}

} // namespace velkor::exchange
