#include "output/ClassificationText.h"

#include "velkor/classification/ProductClasses.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

std::string entityName(const Classification::Decision& decision) {
    return decision.entity == nullptr ? "(complex instance)" : std::string(decision.entity->name());
}

std::string orDash(const std::string& text) {
    return text.empty() ? "-" : text;
}

Json classesJson(const Classification& classification) {
    Json classes = Json::array();
    for (const ProductClass& group : classesOf(classification)) {
        classes.push_back({{"entity", entityName(*group.decision)},
                           {"neutral_id", textOrNull(group.decision->neutralId)},
                           {"plm_type", textOrNull(group.decision->plmType)},
                           {"count", group.count}});
    }
    return classes;
}

} // namespace velkor::host
