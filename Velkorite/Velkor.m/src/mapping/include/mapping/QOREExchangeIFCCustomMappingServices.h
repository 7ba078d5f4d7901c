/// The custom mappings, from one document per process, expanded by type and direction.
#pragma once

#include "velkor/exchangeservices/QORIExchangeIFCCustomMappingServices.h"
#include "xml/XmlNodes.h"

class QOREExchangeIFCCustomMappingServices final : public QORIExchangeIFCCustomMappingServices {
    VELKOR_DECLARE_CLASS

public:
    HRESULT LoadCustomMapping() override;
    HRESULT GetCustomMapping(const QORUnicodeString& iEntity, const QORUnicodeString& iProperty,
                             const QORUnicodeString& iScope, QORUnicodeString& oEntity,
                             QORUnicodeString& oProperty) override;

private:
    HRESULT BuildCustomMappingTable();
    void addMappings(const velkor::library::NodeRange& nodes, const char* section, bool isResolving);
    void addScopes(const QORUnicodeString& scopes, bool isResolving, const QORUnicodeString& fromEntity,
                   const QORUnicodeString& toEntity, const QORUnicodeString& fromProperty,
                   const QORUnicodeString& toProperty);
    int AddCustomMappingElement(const QORUnicodeString& iScopeName, const QORUnicodeString& iFromEntity,
                                const QORUnicodeString& iToEntity, const QORUnicodeString& iFromProperty,
                                const QORUnicodeString& iToProperty, unsigned int iRank);

    /// Name of the elements that are being read.
    QORUnicodeString CurrentSection;
};
