#include "velkor/mapping/VersionMapping.h"

#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"
#include "velkor/objectmodeler/ClassDictionary.h"
#include "velkor/text/Unicode.h"

#include <algorithm>

namespace velkor {

namespace {

QORIExchangeIFCMappingServices_var mappingServices() {
    return objectmodeler::createComponent("ExchangeIFCMappingServices");
}

} // namespace

tl::expected<VersionMapping, std::string> VersionMapping::load(const PlatformSetup& setup, const MappingRelease& from,
                                                               const MappingRelease& to) {
    auto deprecated = deprecatedEntities(setup, from, to);
    if (!deprecated) return tl::unexpected(deprecated.error());
    auto introduced = introducedValues(setup, from, to);
    if (!introduced) return tl::unexpected(introduced.error());
    // The services look through the whole document for every name as long as they find no such pair.
    if (introduced->status != S_OK) return tl::unexpected(introduced->document + ": " + introduced->meaning.words);
    // The table of another pair of releases would answer for this one.
    mappingServices()->ResetVersionMappingTable();
    VersionMapping mapping(from, to);
    for (const std::string& entity : deprecated->entries) mapping._deprecated.push_back(text::toUpper(entity));
    mapping._introduced = std::move(introduced->entries);
    return mapping;
}

std::string VersionMapping::entityName(std::string_view entity) const {
    QORUnicodeString renamed(entity);
    if (mappingServices()->GetMappedEntityName(_from->code, _to->code, renamed) != S_OK) return {};
    // Names come back in upper case even when nothing has become of them.
    std::string name = text::toUpper(renamed.utf8());
    return name == text::toUpper(entity) ? std::string() : name;
}

bool VersionMapping::isDeprecated(std::string_view entity) const {
    return std::ranges::find(_deprecated, text::toUpper(entity)) != _deprecated.end();
}

std::optional<std::pair<std::string, std::string>> VersionMapping::property(std::string_view entity,
                                                                            std::string_view property) const {
    QORUnicodeString toEntity, toProperty;
    const HRESULT status = mappingServices()->GetVersionMapping(_from->code, _to->code, QORUnicodeString(entity),
                                                                QORUnicodeString(property), toEntity, toProperty);
    if (status != IFC_MAPPING_MAPPED) return std::nullopt;
    return std::pair(std::string(toEntity.utf8()), std::string(toProperty.utf8()));
}

} // namespace velkor
