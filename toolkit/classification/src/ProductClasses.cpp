#include "velkor/classification/ProductClasses.h"

#include "velkor/exchangeservices/QORIExchangeAECServices.h"
#include "velkor/objectmodeler/ClassDictionary.h"
#include "velkor/resources/ResourceSearch.h"

#include <map>

namespace velkor {

std::vector<ProductClass> classesOf(const Classification& classification) {
    std::map<std::pair<std::string_view, std::string_view>, ProductClass> groups;
    for (const Classification::Decision& decision : classification.decisions) {
        const std::string_view entity = decision.entity == nullptr ? std::string_view() : decision.entity->name();
        groups.try_emplace({entity, decision.neutralId}, ProductClass{&decision, 0}).first->second.count +=
            decision.count;
    }
    std::vector<ProductClass> result;
    for (const auto& [key, group] : groups) result.push_back(group);
    return result;
}

tl::expected<ConfiguredClassification, std::string>
classifyAsConfigured(const sdai::Model& model, const PlatformSetup& setup, const Progress& progress) {
    const ResourceSearch search = searchResource(aecMappingResource, setup);
    if (!search.isUsable()) return tl::unexpected("no document of correspondences: " + search.reason);
    const std::string& path = search.used.front().path;
    const QORIExchangeAECServices_var services = objectmodeler::createComponent("ExchangeAECServices");
    if (FAILED(services->LoadAECResource())) return tl::unexpected(path + ": cannot be read");
    return ConfiguredClassification{path, classify(model, progress)};
}

} // namespace velkor
