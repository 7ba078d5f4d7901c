#include "VersionMappingLinter.h"

#include "MappingReleases.h"
#include "ResourceNames.h"
#include "velkor/text/Wording.h"

namespace velkor::lint {

namespace {

namespace names = velkor::names::version;

const Format& format() {
    static const Format result{
        nullptr,
        {{names::block, {}, {names::from, names::to}},
         {names::mapping,
          {names::block},
          {names::fromEntity},
          {names::fromProperty, names::toEntity, names::toProperty}},
         {names::deprecation, {names::block}, {names::entity}, {names::property}},
         {names::introduction, {names::block}, {names::entity}, {names::property, names::propertyValue}}}};
    return result;
}

} // namespace

VersionMappingLinter::VersionMappingLinter(Dictionaries& dictionaries) : Linter(format(), dictionaries) {}

void VersionMappingLinter::judgeEntries(const XmlElement& root) {
    std::map<std::string, int> blocks;
    root.visitNamed(names::block, [&](const XmlElement& version) {
        const std::string& from = version.attribute(names::from);
        const std::string& to = version.attribute(names::to);
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
    error(version.line, "unknown-release",
          "expected a release (" + text::joined(mappingReleases, ", ", &MappingRelease::text) + ") in " +
              quoted(attribute) + ", found " + quoted(text),
          meant == nullptr ? "" : "did you mean " + quoted(meant->text) + '?');
    return {};
}

void VersionMappingLinter::judgeBlock(const XmlElement& version) {
    Block block{judgeRelease(version, names::from), judgeRelease(version, names::to), {}, {}};
    for (const XmlElement& child : version.children) {
        const bool isMapping = child.name == names::mapping;
        if (!isMapping && child.name != names::deprecation && child.name != names::introduction) continue;
        countEntry();
        judgePlace(child);
        isMapping ? judgeMapping(child, block) : judgeChange(child, block);
    }
}

void VersionMappingLinter::judgeMapping(const XmlElement& mapping, Block& block) {
    const std::string& entity = mapping.attribute(names::fromEntity);
    const std::string& property = mapping.attribute(names::fromProperty);
    const std::string& toEntity = mapping.attribute(names::toEntity);
    const std::string& toProperty = mapping.attribute(names::toProperty);
    if (entity.empty()) return;
    judgeEntity(mapping.line, entity, block.from);
    judgeEntity(mapping.line, toEntity, block.to);
    judgeProperty(mapping.line, entity, property, block.from);
    judgeProperty(mapping.line, toEntity.empty() ? entity : toEntity, toProperty, block.to);
    if (!property.empty()) return judgeKey(mapping, entity, property, block);

    if (!toProperty.empty())
        warn(mapping.line, "no-effect",
             quoted(names::toProperty) + " has no effect without a " + quoted(names::fromProperty));
    else if (toEntity.empty())
        warn(mapping.line, "no-effect", "the mapping names neither a property nor another entity");
    if (!mapping.isExamined() || toEntity.empty()) return;
    const auto [first, isNew] = block.renames.try_emplace(toUpper(entity), toEntity, mapping.line);
    if (!isNew) {
        warn(mapping.line, "duplicate-key",
             quoted(entity) + " is renamed to " + quoted(first->second.first) + ' ' + inLine(first->second.second) +
                 " already, which counts");
    }
}

void VersionMappingLinter::judgeChange(const XmlElement& change, Block& block) {
    const std::string& entity = change.attribute(names::entity);
    const std::string& property = change.attribute(names::property);
    const std::string& value = change.attribute(names::propertyValue);
    const Dictionaries::Releases& release = change.name == names::deprecation ? block.from : block.to;
    if (entity.empty()) return;
    judgeEntity(change.line, entity, release);
    judgeProperty(change.line, entity, property, release);
    if (change.name == names::introduction) judgeEnumerator(change.line, entity, property, value, release, false);
    if (!value.empty() && property.empty())
        warn(change.line, "no-effect",
             quoted(names::propertyValue) + " has no effect without a " + quoted(names::property));
    judgeKey(change, entity, property, block);
}

void VersionMappingLinter::judgeKey(const XmlElement& entry, const std::string& entity, const std::string& property,
                                    Block& block) {
    if (!entry.isExamined()) return;
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
