// The restore on lists that the input writes line by line, an empty line between the two. What
// is restored is then asked everything, so that a wrong reference inside it is found.

#include "velkor/sdai/QORDXSdaiSchemaRestore.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using namespace velkor::sdai;

void require(bool condition) {
    if (!condition) std::abort();
}

void visit(const EntityDefinition& entity) {
    for (std::size_t i = 0; i < entity.attributes().size(); ++i) {
        const AttributeSlot& slot = entity.attributes()[i];
        require(entity.attributeIndex(slot.attribute->name()) == static_cast<int>(i));
        require(entity.isKindOf(slot.attribute->owner()));
        require(!slot.attribute->type().expressText().empty());
    }
    for (const Attribute* attribute : entity.derivedAttributes()) {
        require(entity.attribute(attribute->name()) == attribute);
        require(entity.attributeIndex(attribute->name()) == -1);
    }
    for (const EntityDefinition* subtype : entity.subtypes()) {
        require(subtype->supertype() == &entity && subtype->isKindOf(entity) && !entity.isKindOf(*subtype));
    }
    for (const UniquenessRule& rule : entity.uniquenessRules()) {
        for (const Attribute* attribute : rule.attributes) require(entity.isKindOf(attribute->owner()));
    }
}

void visit(const SchemaDefinition& schema, const DefinedType& type) {
    require(schema.definedType(type.name()) == &type);
    require(!type.underlying().expressText().empty() && type.resolved().kind() != TypeKind::Defined);
    if (const EnumerationType* enumeration = type.underlying().asEnumeration()) {
        for (std::size_t i = 0; i < enumeration->values().size(); ++i) {
            require(enumeration->position(enumeration->values()[i]) == static_cast<int>(i));
        }
    }
    if (const SelectType* select = type.underlying().asSelect()) {
        for (const Type* item : select->items()) {
            const DefinedType* definedType = item->asDefined();
            require(definedType ? select->accepts(*definedType) : select->accepts(*item->asEntity()));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string text(reinterpret_cast<const char*>(data), size);
    std::vector<const char*> lists[2];
    int list = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        if (end == begin && list == 0)
            list = 1;
        else
            lists[list].push_back(text.data() + begin);
        if (end < text.size()) text[end] = '\0';
        begin = end + 1;
    }
    const auto schema = restoreSchema(lists[0], lists[1]);
    if (!schema) {
        require(!schema.error().empty());
        return 0;
    }
    for (const EntityDefinition* entity : (*schema)->entities()) {
        require((*schema)->entity(entity->name()) == entity);
        visit(*entity);
    }
    for (const DefinedType* type : (*schema)->definedTypes()) visit(**schema, *type);
    return 0;
}
