#include "UnitPositions.h"

#include "velkor/sdai/DXSdaiDictionaryRepo.h"

int velkor::library::unitPosition(const sdai::Enumeration& value, Fileschema schema) {
    if (value.type == nullptr) return -1;
    const std::string_view reference = unitDictionary(schema);
    if (value.type->schema().name() == reference) return value.value;

    const auto dictionary = DXSdaiDictionaryRepo::TheOne().schema(reference);
    const auto* named = dictionary ? (*dictionary)->definedType(value.type->definedType().name()) : nullptr;
    const auto* type = named != nullptr ? named->resolved().asEnumeration() : nullptr;
    return type != nullptr ? type->position(value.text()) : -1;
}
