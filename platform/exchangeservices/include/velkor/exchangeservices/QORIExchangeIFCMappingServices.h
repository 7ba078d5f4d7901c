/// What becomes of entities and properties from one IFC release to another. A library implements it; a host
/// asks any object for it, or makes the component "ExchangeIFCMappingServices".
///
/// Releases are codes; which ones there are, the library that implements it says.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORListValQORUnicodeString.h"

/// Answers of mapping services: successes with a meaning.
inline constexpr HRESULT IFC_MAPPING_MAPPED = 0x1002;
/// No mapping applies, or mapping is switched off.
inline constexpr HRESULT IFC_MAPPING_NONE = 0x1003;
inline constexpr HRESULT IFC_MAPPING_DEPRECATED_ENTITY = 0x1004;
inline constexpr HRESULT IFC_MAPPING_DEPRECATED_PROPERTY = 0x1005;
inline constexpr HRESULT IFC_MAPPING_INTRODUCED_ENTITY = 0x1006;
inline constexpr HRESULT IFC_MAPPING_INTRODUCED_PROPERTY = 0x1007;

class VELKOR_PLATFORM_API QORIExchangeIFCMappingServices : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// One of the answers above, or E_FAIL. An empty property asks about the entity. Outputs are set by
    /// IFC_MAPPING_MAPPED alone.
    virtual HRESULT GetVersionMapping(int iFromVersion, int iToVersion, const QORUnicodeString& iEntity,
                                      const QORUnicodeString& iProperty, QORUnicodeString& oEntity,
                                      QORUnicodeString& oProperty) = 0;
    /// Appends the properties that the target release introduces with a value. S_FALSE for a pair of
    /// releases that nothing is known of; so the two below.
    virtual HRESULT GetIntroducedPropertyValues(int iFromVersion, int iToVersion, QORListValQORUnicodeString& oEntities,
                                                QORListValQORUnicodeString& oProperties,
                                                QORListValQORUnicodeString& oPropertyValues) = 0;
    /// Appends the entities, in upper case, that the target release no longer has.
    virtual HRESULT GetDeprecatedEntities(int iFromVersion, int iToVersion, QORListValQORUnicodeString& oEntities) = 0;
    /// Replaces the name of an entity by the one it has in the target release.
    virtual HRESULT GetMappedEntityName(int iFromVersion, int iToVersion, QORUnicodeString& ioEntity) = 0;
    /// Reads the mapping document anew.
    virtual HRESULT LoadVersionMappingDocument() = 0;
    /// Forgets the pair of releases that GetVersionMapping answers for. S_OK.
    virtual HRESULT ResetVersionMappingTable() = 0;
};
using QORIExchangeIFCMappingServices_var = QORInterface_var<QORIExchangeIFCMappingServices>;
