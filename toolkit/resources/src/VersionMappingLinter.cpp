#include "VersionMappingLinter.h"

#include <algorithm>

namespace velkor::lint {

namespace {

const Format& format() {
    static const Format result{nullptr,
                               {{"Version", {}, {"from", "to"}},
                                {"Mapping", {"Version"}, {"fromEntity"}, {"fromProperty", "toEntity", "toProperty"}},
                                {"Deprecation", {"Version"}, {"entity"}, {"property"}},
                                {"Introduction", {"Version"}, {"entity"}, {"property", "propertyValue"}}}};
    return result;
}

struct Release {
    std::string_view text;
    /// Its dictionary; empty when there is none.
    std::string_view dictionary;
};
constexpr Release releases[] = {{"2x1", ""},   {"2x2", ""}, {"2x3", "IFC2X3"},
                                {"4", "IFC4"}, {"2x5", ""}, {"4x2", "IFC4X2"}};

} // namespace

VersionMappingLinter::VersionMappingLinter(Dictionaries& dictionaries) : Linter(format(), dictionaries) {}

void VersionMappingLinter::judgeEntries(const XmlElement& root) {
    std::map<std::string, int> blocks;
    root.visitNamed("Version", [&](const XmlElement& version) {
        const std::string& from = version.attribute("from");
        const std::string& to = version.attribute("to");
        const auto [first, isNew] = blocks.try_emplace(from + '\n' + to, version.line);
        if (!isNew) {
            error(version.line, "duplicate-block",
                  "the block from " + quoted(from) + " to " + quoted(to) + ' ' + inLine(first->second) +
                      " alone is used");
        }
        judgeBlock(version);
    });
}

Dictionaries::Releases VersionMappingLinter::judgeRelease(const XmlElement& version, const char* attribute) {
    const std::string& text = version.attribute(attribute);
    const auto found = std::ranges::find(releases, text, &Release::text);
    if (found != std::end(releases)) {
        if (found->dictionary.empty()) return {};
        return {std::string(found->dictionary)};
    }
    // The dictionary's name is what one thinks of first.
    const auto meant =
        std::ranges::find(releases, upper(text.starts_with("IFC") ? text : "IFC" + text), &Release::dictionary);
    if (!text.empty()) {
        error(version.line, "unknown-release",
              "expected a release (2x1, 2x2, 2x3, 4, 2x5, 4x2) in " + quoted(attribute) + ", found " + quoted(text),
              meant == std::end(releases) ? "" : "did you mean " + quoted(meant->text) + '?');
    }
    return {};
}

void VersionMappingLinter::judgeBlock(const XmlElement& version) {
    Block block{judgeRelease(version, "from"), judgeRelease(version, "to"), {}, {}};
    for (const XmlElement& child : version.children) {
        const bool isMapping = child.name == "Mapping";
        if (!isMapping && child.name != "Deprecation" && child.name != "Introduction") continue;
        countEntry();
        judgePlace(child);
        isMapping ? judgeMapping(child, block) : judgeChange(child, block);
    }
}

void VersionMappingLinter::judgeMapping(const XmlElement& mapping, Block& block) {
    const std::string& entity = mapping.attribute("fromEntity");
    const std::string& property = mapping.attribute("fromProperty");
    const std::string& toEntity = mapping.attribute("toEntity");
    const std::string& toProperty = mapping.attribute("toProperty");
    if (entity.empty()) return;
    judgeEntity(mapping.line, entity, block.from);
    judgeEntity(mapping.line, toEntity, block.to);
    judgeProperty(mapping.line, entity, property, block.from);
    judgeProperty(mapping.line, toEntity.empty() ? entity : toEntity, toProperty, block.to);
    if (!property.empty()) return judgeKey(mapping, entity, property, block);

    if (!toProperty.empty())
        warn(mapping.line, "no-effect", "\"toProperty\" has no effect without a \"fromProperty\"");
    else if (toEntity.empty())
        warn(mapping.line, "no-effect", "the mapping names neither a property nor another entity");
    if (mapping.index == 0 || toEntity.empty()) return;
    const auto [first, isNew] = block.renames.try_emplace(upper(entity), toEntity, mapping.line);
    if (!isNew) {
        warn(mapping.line, "duplicate-key",
             quoted(entity) + " is renamed to " + quoted(first->second.first) + ' ' + inLine(first->second.second) +
                 " already, which counts");
    }
}

void VersionMappingLinter::judgeChange(const XmlElement& change, Block& block) {
    const std::string& entity = change.attribute("entity");
    const std::string& property = change.attribute("property");
    const std::string& value = change.attribute("propertyValue");
    const Dictionaries::Releases& release = change.name == "Deprecation" ? block.from : block.to;
    if (entity.empty()) return;
    judgeEntity(change.line, entity, release);
    judgeProperty(change.line, entity, property, release);
    if (change.name == "Introduction") judgeEnumerator(change.line, entity, property, value, release, false);
    if (!value.empty() && property.empty())
        warn(change.line, "no-effect", "\"propertyValue\" has no effect without a \"property\"");
    judgeKey(change, entity, property, block);
}

void VersionMappingLinter::judgeKey(const XmlElement& entry, const std::string& entity, const std::string& property,
                                    Block& block) {
    if (entry.index == 0) return;
    const std::string text = keyText({entity, property});
    const auto [first, isNew] = block.keys.try_emplace(keyHash({entity, property}), Key{text, entry.line});
    if (isNew) return;
    const std::string shown = quoted(entity) + (property.empty() ? "" : ' ' + quoted(property));
    const std::string place = inLine(first->second.line);
    if (first->second.text == text)
        warn(entry.line, "duplicate-key", shown + " has an entry " + place + " already, which counts");
    else
        error(entry.line, "key-collision",
              shown + " cannot be told from the entry " + place + ", which counts: their keys have the same hash");
}

} // namespace velkor::lint
