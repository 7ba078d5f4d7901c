#include "CustoMappingElement.h"

#include "ResourceKeys.h"

// Whoever makes an empty element fills the numbers in.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
CustoMappingElement::CustoMappingElement() {}

CustoMappingElement::CustoMappingElement(const QORUnicodeString& iFromEntity, const QORUnicodeString& iFromProperty,
                                         const QORUnicodeString& iFromType, const QORUnicodeString& iToEntity,
                                         const QORUnicodeString& iToProperty, const QORUnicodeString& iScope,
                                         unsigned int iInheritanceRank)
    : FromEntity(iFromEntity), FromProperty(iFromProperty), FromType(iFromType), ToEntity(iToEntity),
      ToProperty(iToProperty), Scope(iScope), InheritanceRank(iInheritanceRank) {
    std::string joined;
    joined.reserve(FromEntity.utf8().size() + FromProperty.utf8().size() + Scope.utf8().size());
    joined.append(FromEntity.utf8()).append(FromProperty.utf8()).append(Scope.utf8());
    HashKey = velkor::mappingKeyHash(QORUnicodeString(std::move(joined)));
}

CustoMappingElement::CustoMappingElement(const QORUnicodeString& iFromEntity, const QORUnicodeString& iFromProperty,
                                         const QORUnicodeString& iToEntity, const QORUnicodeString& iToProperty,
                                         const QORUnicodeString& iScope, unsigned int iInheritanceRank)
    : CustoMappingElement(iFromEntity, iFromProperty, "", iToEntity, iToProperty, iScope, iInheritanceRank) {}

CustoMappingElement::~CustoMappingElement() = default;

unsigned int QORHTAB_ComputeKeyCustoMappingElement(CustoMappingElement* element) {
    return element != nullptr ? element->GetHashKey() : 0;
}

int QORHTAB_CompareCustoMappingElement(CustoMappingElement* a, CustoMappingElement* b) {
    return a != nullptr && b != nullptr && a->GetHashKey() == b->GetHashKey() ? 0 : 1;
}
