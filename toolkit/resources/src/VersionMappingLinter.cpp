#include "VersionMappingLinter.h"

#include "MappingReleases.h"
#include "velkor/text/Wording.h"

#include <ranges>

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
    if (const auto* known = findMappingRelease<std::string_view>(&MappingRelease::text, text)) {
        if (known->dictionary.empty()) return {};
        return {std::string(known->dictionary)};
    }
    if (text.empty()) return {};
    // The dictionary's name is what one thinks of first.
    const auto* meant = findMappingRelease<std::string_view>(&MappingRelease::dictionary,
                                                             toUpper(text.starts_with("IFC") ? text : "IFC" + text));
    const auto texts = std::views::transform(mappingReleases, &MappingRelease::text);
    error(version.line, "unknown-release",
          "expected a release (" + text::joined(texts, ", ") + ") in " + quoted(attribute) + ", found " + quoted(text),
          meant == nullptr ? "" : "did you mean " + quoted(meant->text) + '?');
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
    const auto [first, isNew] = block.renames.try_emplace(toUpper(entity), toEntity, mapping.line);
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
