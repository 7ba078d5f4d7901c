#include "velkor/mapping/TypeMapping.h"

#include "ResourceNames.h"
#include "velkor/exchangeservices/QORIExchangeIFCCustomMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCPLMAttributesMappingServices.h"
#include "velkor/mapping/Mappings.h"
#include "velkor/objectmodeler/ClassDictionary.h"

namespace velkor {

namespace {

std::string orElse(const QORUnicodeString& text, std::string_view otherwise) {
    return text.IsEmpty() ? std::string(otherwise) : std::string(text.utf8());
}

} // namespace

tl::expected<TypeMapping, std::string> TypeMapping::load(const PlatformSetup& setup, Wanted wanted) {
    // The first question reads the document and says what is wrong with it; the services keep it.
    if (wanted.customMapping)
        if (auto first = mapForType(setup, {}, {}, {}); !first) return tl::unexpected(first.error());
    if (wanted.plmAttributes)
        if (auto first = mapPlmAttribute(setup, {}, {}); !first) return tl::unexpected(first.error());
    return TypeMapping();
}

std::optional<TypeMapping::Target> TypeMapping::custom(std::string_view plmType, bool isExport, std::string_view set,
                                                       std::string_view property) const {
    const QORIExchangeIFCCustomMappingServices_var services =
        objectmodeler::createComponent("ExchangeIFCCustomMappingServices");
    std::string scope(plmType);
    scope += isExport ? names::custom::exportEnding : names::custom::importEnding;
    QORUnicodeString toSet, toProperty;
    const HRESULT status = services->GetCustomMapping(QORUnicodeString(set), QORUnicodeString(property),
                                                      QORUnicodeString(std::string_view(scope)), toSet, toProperty);
    if (status != IFC_MAPPING_MAPPED) return std::nullopt;
    return Target{orElse(toSet, set), orElse(toProperty, property)};
}

std::optional<TypeMapping::Target> TypeMapping::plmAttribute(std::string_view plmType,
                                                             std::string_view attribute) const {
    const QORIExchangeIFCPLMAttributesMappingServices_var services =
        objectmodeler::createComponent("ExchangeIFCPLMAttributesMappingServices");
    QORUnicodeString set, property;
    const HRESULT status =
        services->GetIFCPropertyFromPLMAttribute(QORUnicodeString(plmType), QORUnicodeString(attribute), set, property);
    if (status != S_OK || set.IsEmpty() || property.IsEmpty()) return std::nullopt;
    return Target{std::string(set.utf8()), std::string(property.utf8())};
}

} // namespace velkor
