/// One custom mapping: the entity and property that are used in place of others within a scope.
#pragma once

#include "VelkorExport.h"

#include "velkor/text/QORUnicodeString.h"

class VELKOR_API CustoMappingElement {
public:
    /// Empty texts; hash and rank are not set.
    CustoMappingElement();
    /// `iFromType` takes no part in the hash.
    CustoMappingElement(const QORUnicodeString& iFromEntity, const QORUnicodeString& iFromProperty,
                        const QORUnicodeString& iFromType, const QORUnicodeString& iToEntity,
                        const QORUnicodeString& iToProperty, const QORUnicodeString& iScope,
                        unsigned int iInheritanceRank);
    /// The same with an empty type.
    CustoMappingElement(const QORUnicodeString& iFromEntity, const QORUnicodeString& iFromProperty,
                        const QORUnicodeString& iToEntity, const QORUnicodeString& iToProperty,
                        const QORUnicodeString& iScope, unsigned int iInheritanceRank);
    ~CustoMappingElement();
    CustoMappingElement(const CustoMappingElement& other) = default;
    CustoMappingElement& operator=(const CustoMappingElement& other) = default;

    QORUnicodeString GetFromEntity() { return FromEntity; } ///< The entity or property set that is mapped.
    /// The property that is mapped; empty when the entity itself is.
    QORUnicodeString GetFromProperty() { return FromProperty; }
    QORUnicodeString GetFromType() { return FromType; }     ///< The scope: a type followed by its direction.
    QORUnicodeString GetToEntity() { return ToEntity; }     ///< What takes the place of the entity.
    QORUnicodeString GetToProperty() { return ToProperty; } ///< What takes the place of the property.
    /// Name of a type followed by "_Import" or "_Export".
    QORUnicodeString GetScope() { return Scope; }
    /// Hash of the entity, the property and the scope, put together in upper case.
    unsigned int GetHashKey() const { return HashKey; }
    /// An element of a table stays when its rank is smaller than a newcomer's.
    unsigned int GetInheritanceRank() const { return InheritanceRank; }

private:
    QORUnicodeString FromEntity;
    QORUnicodeString FromProperty;
    QORUnicodeString FromType;
    QORUnicodeString ToEntity;
    QORUnicodeString ToProperty;
    QORUnicodeString Scope;
    unsigned int HashKey;
    unsigned int InheritanceRank;
};

/// The element's hash; 0 for null.
VELKOR_API unsigned int QORHTAB_ComputeKeyCustoMappingElement(CustoMappingElement* element);
/// 0 when both elements are there and have the same hash, else 1: the hash alone tells elements apart.
VELKOR_API int QORHTAB_CompareCustoMappingElement(CustoMappingElement* a, CustoMappingElement* b);
