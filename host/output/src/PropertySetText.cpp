#include "output/PropertySetText.h"

#include "velkor/text/Wording.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace velkor::host {

std::vector<std::string> unreadableDefinitions(const PropertySetCheck& check, const SetLibrary& library) {
    std::vector<std::string> lines;
    const SetCatalogue& catalogue = library.of(check.definedBy);
    for (const auto& [name, count] : check.unreadable)
        lines.push_back("the definition of " + name + " cannot be read: " + catalogue.unreadable(name));
    return lines;
}

Json coverageJson(const PropertySetCheck& check) {
    Json names = Json::array();
    for (const auto& [name, count] : check.uncheckedNames()) names.push_back({{"set", name}, {"count", count}});
    return {{"sets",
             {{"total", check.sets},
              {"checked", check.checkedSets},
              {"custom", check.customSets},
              {"not_checked", check.uncheckedSets()}}},
            {"properties", {{"total", check.properties}, {"checked", check.checkedProperties}}},
            {"without_definition", std::move(names)}};
}

std::string coverageText(const PropertySetCheck& check) {
    return text::grouped(check.checkedSets) + " of " + text::counted(check.sets, "set", "sets") + " and " +
           text::grouped(check.checkedProperties) + " of " +
           text::counted(check.properties, "property or quantity", "properties and quantities") + " checked";
}

std::string undefinedText(const PropertySetCheck& check, std::size_t most) {
    const auto names = check.uncheckedNames();
    std::string text;
    const std::size_t shown = std::min(names.size(), most);
    for (std::size_t i = 0; i < shown; ++i) {
        const auto& [name, count] = names[i];
        text += (text.empty() ? "" : ", ") + (name.empty() ? "sets without a name" : name);
        if (count > 1) text += " (" + text::grouped(count) + ')';
    }
    if (names.size() > shown) text += ", " + text::counted(names.size() - shown, "other", "others");
    return text;
}

} // namespace velkor::host
