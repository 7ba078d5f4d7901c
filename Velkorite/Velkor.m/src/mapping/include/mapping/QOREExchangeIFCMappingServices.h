/// The mapping between IFC releases, from one document per process.
///
/// All instances share the document and the table, which is built for the first pair of releases that is asked
/// for and answers for every later one until it is reset.
#pragma once

#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"
#include "velkor/xml/DomTypes.h"

class QOREExchangeIFCMappingServices final : public QORIExchangeIFCMappingServices {
    VELKOR_DECLARE_CLASS

public:
    HRESULT GetVersionMapping(int iFromVersion, int iToVersion, const QORUnicodeString& iEntity,
                              const QORUnicodeString& iProperty, QORUnicodeString& oEntity,
                              QORUnicodeString& oProperty) override;
    HRESULT GetIntroducedPropertyValues(int iFromVersion, int iToVersion, QORListValQORUnicodeString& oEntities,
                                        QORListValQORUnicodeString& oProperties,
                                        QORListValQORUnicodeString& oPropertyValues) override;
    HRESULT GetDeprecatedEntities(int iFromVersion, int iToVersion, QORListValQORUnicodeString& oEntities) override;
    HRESULT GetMappedEntityName(int iFromVersion, int iToVersion, QORUnicodeString& ioEntity) override;
    HRESULT LoadVersionMappingDocument() override;
    HRESULT ResetVersionMappingTable() override;
};
