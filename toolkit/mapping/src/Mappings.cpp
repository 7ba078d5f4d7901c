#include "velkor/mapping/Mappings.h"

#include "QORIFCOptionsFromXCAD.h"
#include "ResourceNames.h"
#include "velkor/exchangeservices/QORIExchangeIFCCustomMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCPLMAttributesMappingServices.h"
#include "velkor/objectmodeler/ClassDictionary.h"
#include "velkor/resources/ResourceSearch.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <iterator>

namespace velkor {

namespace {

constexpr const char* scopeEndings[] = {names::custom::importEnding, names::custom::exportEnding};

constexpr MappingMeaning meanings[] = {
    {IFC_MAPPING_MAPPED, "mapped", "a mapping applies"},
    {IFC_MAPPING_NONE, "none", "no mapping applies"},
    {IFC_MAPPING_DEPRECATED_ENTITY, "deprecated_entity", "the target release has no such entity"},
    {IFC_MAPPING_DEPRECATED_PROPERTY, "deprecated_property", "the target release has no such property of the entity"},
    {IFC_MAPPING_INTRODUCED_ENTITY, "introduced_entity", "the entity is new in the target release"},
    {IFC_MAPPING_INTRODUCED_PROPERTY, "introduced_property", "the property is new in the target release"},
    {S_OK, "found", "the document knows it"},
    {S_FALSE, "unknown_releases", "the document says nothing about this pair of releases"},
    {E_FAIL, "unknown", "nothing is known of it"},
};

// Of a pair that the document says nothing about, the query for one name just fails.
const MappingMeaning& meaningOf(HRESULT status, bool isPairKnown) {
    const HRESULT meant = status == E_FAIL && !isPairKnown ? S_FALSE : status;
    const auto* const found = std::ranges::find(meanings, meant, &MappingMeaning::status);
    return found == std::end(meanings) ? std::end(meanings)[-1] : *found;
}

std::string utf8(const QORUnicodeString& text) {
    return std::string(text.utf8());
}

bool isSwitchedOff() {
    return QORIFCOptionsFromXCAD::GetInstance()->GetValueIFCVersionMapping() == S_OK;
}

std::string noDocument(const ResourceSearch& search) {
    return std::string("no ") + search.kind.name + ": " + search.reason;
}

// The file that a service uses, once it has been loaded.
template <class Load>
tl::expected<std::string, std::string> documentOf(const PlatformSetup& setup, const ResourceKind& kind, Load load) {
    const ResourceSearch search = searchResource(kind, setup);
    if (!search.isUsable()) return tl::unexpected(noDocument(search));
    const std::string& path = search.used.front().path;
    if (FAILED(load())) return tl::unexpected(path + ": cannot be read");
    return path;
}

struct VersionServices {
    QORIExchangeIFCMappingServices_var services = objectmodeler::createComponent("ExchangeIFCMappingServices");

    tl::expected<std::string, std::string> load(const PlatformSetup& setup) {
        return documentOf(setup, versionMappingResource, [&] { return services->LoadVersionMappingDocument(); });
    }
};

} // namespace

tl::expected<MappingAnswer, std::string> mapBetweenReleases(const PlatformSetup& setup, const MappingRelease& from,
                                                            const MappingRelease& to, std::string_view entity,
                                                            std::string_view property) {
    VersionServices version;
    auto document = version.load(setup);
    if (!document) return tl::unexpected(document.error());
    QORUnicodeString toEntity, toProperty, renamed(entity);
    // The table of another pair of releases would answer for this one.
    version.services->ResetVersionMappingTable();
    const HRESULT status = version.services->GetVersionMapping(from.code, to.code, QORUnicodeString(entity),
                                                               QORUnicodeString(property), toEntity, toProperty);
    const HRESULT rename = version.services->GetMappedEntityName(from.code, to.code, renamed);
    // The outputs are untouched unless a mapping applies.
    MappingAnswer answer{status,
                         meaningOf(status, rename == S_OK),
                         false,
                         utf8(toEntity),
                         utf8(toProperty),
                         {},
                         isSwitchedOff(),
                         {std::move(*document)}};
    // Names come back in upper case even when nothing has become of them.
    if (property.empty() && rename == S_OK && text::toUpper(renamed.utf8()) != text::toUpper(entity))
        answer.entityName = utf8(renamed);
    answer.isMapped = (status != IFC_MAPPING_NONE && SUCCEEDED(status)) || !answer.entityName.empty();
    return answer;
}

tl::expected<MappingList<std::string>, std::string>
deprecatedEntities(const PlatformSetup& setup, const MappingRelease& from, const MappingRelease& to) {
    VersionServices version;
    auto document = version.load(setup);
    if (!document) return tl::unexpected(document.error());
    QORListValQORUnicodeString entities;
    const HRESULT status = version.services->GetDeprecatedEntities(from.code, to.code, entities);
    MappingList<std::string> list{status, meaningOf(status, false), {}, std::move(*document)};
    for (const QORUnicodeString& entity : entities) list.entries.push_back(utf8(entity));
    return list;
}

tl::expected<MappingList<IntroducedValue>, std::string>
introducedValues(const PlatformSetup& setup, const MappingRelease& from, const MappingRelease& to) {
    VersionServices version;
    auto document = version.load(setup);
    if (!document) return tl::unexpected(document.error());
    QORListValQORUnicodeString entities, properties, values;
    const HRESULT status =
        version.services->GetIntroducedPropertyValues(from.code, to.code, entities, properties, values);
    MappingList<IntroducedValue> list{status, meaningOf(status, false), {}, std::move(*document)};
    for (int i = 1; i <= entities.Size(); ++i)
        list.entries.push_back({utf8(entities[i]), utf8(properties[i]), utf8(values[i])});
    return list;
}

bool isMappingScope(std::string_view scope) {
    const std::string given = text::toUpper(scope);
    return std::ranges::any_of(scopeEndings, [&](const char* ending) {
        return scope.size() > std::string_view(ending).size() && given.ends_with(text::toUpper(ending));
    });
}

tl::expected<MappingAnswer, std::string> mapForType(const PlatformSetup& setup, std::string_view entity,
                                                    std::string_view property, std::string_view scope) {
    const QORIExchangeIFCCustomMappingServices_var services =
        objectmodeler::createComponent("ExchangeIFCCustomMappingServices");
    auto document = documentOf(setup, customMappingResource, [&] { return services->LoadCustomMapping(); });
    if (!document) return tl::unexpected(document.error());
    QORUnicodeString toEntity, toProperty;
    const HRESULT status = services->GetCustomMapping(QORUnicodeString(entity), QORUnicodeString(property),
                                                      QORUnicodeString(scope), toEntity, toProperty);
    return MappingAnswer{status,          meaningOf(status, true), status == IFC_MAPPING_MAPPED,
                         utf8(toEntity),  utf8(toProperty),        {},
                         isSwitchedOff(), {std::move(*document)}};
}

tl::expected<MappingAnswer, std::string> mapPlmAttribute(const PlatformSetup& setup, std::string_view type,
                                                         std::string_view attribute) {
    const QORIExchangeIFCPLMAttributesMappingServices_var services =
        objectmodeler::createComponent("ExchangeIFCPLMAttributesMappingServices");
    services->LoadMapping();
    QORUnicodeString set, property;
    const HRESULT status =
        services->GetIFCPropertyFromPLMAttribute(QORUnicodeString(type), QORUnicodeString(attribute), set, property);
    // One rule is the services' own, so that there may be an answer without any document.
    const ResourceSearch search = searchResource(plmAttributesMappingResource, setup);
    if (FAILED(status) && !search.isUsable()) return tl::unexpected(noDocument(search));
    // What is in a file that could not be read may be the answer.
    if (FAILED(status) && setup.hasToldErrors()) return tl::unexpected(std::string());
    MappingAnswer answer{status,         meaningOf(status == S_OK ? IFC_MAPPING_MAPPED : status, true),
                         status == S_OK, utf8(set),
                         utf8(property), {},
                         false,          {}};
    for (const ResourceSearch::File& file : search.used) answer.documents.push_back(file.path);
    return answer;
}

} // namespace velkor
