#include "velkor/configuration/ConfigurationTable.h"

namespace velkor {

const char* name(ConfigurationPlace place) {
    switch (place) {
    case ConfigurationPlace::Environment:
        return "environment variable";
    case ConfigurationPlace::Key:
        return "configuration key";
    case ConfigurationPlace::KnowledgeTypeKey:
        return "key of a knowledge type";
    case ConfigurationPlace::Setting:
        return "setting of \"IFC\"";
    case ConfigurationPlace::ConversionOption:
        return "conversion option";
    }
    return "";
}

std::vector<std::string_view> namesAt(ConfigurationPlace place) {
    std::vector<std::string_view> names;
    for (const ConfigurationItem& item : configurationItems) {
        if (item.place == place) names.emplace_back(item.name);
    }
    return names;
}

} // namespace velkor
