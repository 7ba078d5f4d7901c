#include "velkor/resources/ResourceCheck.h"

#include "AECLinter.h"
#include "AttributeListLinter.h"
#include "CustomMappingLinter.h"
#include "DefinitionLinter.h"
#include "DefinitionTableLinter.h"
#include "PLMAttributesLinter.h"
#include "ResourceNames.h"
#include "velkor/files/InputText.h"
#include "velkor/propertysets/DefinitionTable.h"
#include "velkor/resources/ResourceSearch.h"
#include "VersionMappingLinter.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace velkor::lint {

namespace {

using Make = std::unique_ptr<Linter> (*)(Dictionaries&);

template <class Kind>
std::unique_ptr<Linter> make(Dictionaries& dictionaries) {
    return std::make_unique<Kind>(dictionaries);
}

constexpr LinterKind read(const char* word, const ResourceKind& resource) {
    return {word, resource.name, &resource};
}

constexpr LinterKind kinds[] = {
    read("version-mapping", versionMappingResource),      read("custom-mapping", customMappingResource),
    read("plm-attributes", plmAttributesMappingResource), read("aec", aecMappingResource),
    read("attribute-list", attributeListResource),        read("definition", propertySetResource),
    {"definition-table", "Definition table", nullptr}};
constexpr const LinterKind& tableKind = kinds[std::size(kinds) - 1];
// In the same order; a table is no document of elements.
constexpr Make makers[] = {make<VersionMappingLinter>,
                           make<CustomMappingLinter>,
                           make<PLMAttributesLinter>,
                           make<AECLinter>,
                           make<AttributeListLinter>,
                           make<DefinitionLinter>,
                           nullptr};
static_assert(std::size(kinds) == std::size(makers));

std::unique_ptr<Linter> linterOf(const LinterKind& kind, Dictionaries& dictionaries) {
    return makers[&kind - kinds](dictionaries);
}

bool isVersionMapping(const XmlElement& root) {
    bool result = false;
    root.visitNamed(names::version::block, [&](const XmlElement& version) {
        result |= version.hasAttribute(names::version::from) || version.hasAttribute(names::version::to) ||
                  version.contains(names::version::mapping) || version.contains(names::version::deprecation) ||
                  version.contains(names::version::introduction);
    });
    return result;
}

bool isAttributeList(const XmlElement& root) {
    return root.contains(names::attributelist::entry) && root.contains(names::attributelist::level);
}

const LinterKind* recognized(const XmlElement& root) {
    if (root.name == names::custom::root) return linterKind("custom-mapping");
    if (root.name == names::plm::root) return linterKind("plm-attributes");
    if (root.name == names::definition::propertySet || root.name == names::definition::quantitySet)
        return linterKind("definition");
    if (root.contains(names::aec::neutral)) return linterKind("aec");
    if (isAttributeList(root)) return linterKind("attribute-list");
    return isVersionMapping(root) ? linterKind("version-mapping") : nullptr;
}

// More than the parser takes.
constexpr std::size_t mostBytes = std::size_t{2} << 30;

CheckedFile judged(const std::string& path, const LinterKind* kind, Linter* linter, Dictionaries& dictionaries,
                   std::istream* standardInput) {
    CheckedFile file{path, kind, {}};
    auto text = files::readInput(path, standardInput, mostBytes);
    if (!text) {
        file.unreadable = std::move(text.error());
        return file;
    }
    if (kind == nullptr && beginsTable(*text)) file.kind = &tableKind;
    if (file.kind == &tableKind) {
        file.judgement = judgeDefinitionTable(*text, dictionaries);
        return file;
    }
    XmlReading reading = readXml(*text, path);
    if (reading.root == nullptr) {
        file.judgement.findings = std::move(reading.findings);
        return file;
    }
    std::unique_ptr<Linter> own;
    if (linter == nullptr) {
        if (file.kind == nullptr) file.kind = recognized(*reading.root);
        if (file.kind == nullptr) {
            file.judgement.findings = {
                {Severity::Error, reading.root->line, "kind-unknown",
                 "nothing here tells what kind of resource file it is, root element " + reading.root->name,
                 "name it with --kind"}};
            return file;
        }
        own = linterOf(*file.kind, dictionaries);
        linter = own.get();
    }
    file.judgement = linter->judge(path, reading);
    auto& findings = file.judgement.findings;
    findings.insert(findings.begin(), reading.findings.begin(), reading.findings.end());
    std::ranges::stable_sort(findings, {}, &Finding::line);
    return file;
}

} // namespace

std::span<const LinterKind> linterKinds() {
    return kinds;
}

const LinterKind* linterKind(std::string_view word) {
    const auto* const found = std::ranges::find(kinds, word, &LinterKind::word);
    return found == std::end(kinds) ? nullptr : found;
}

void FindingCounts::add(const CheckedFile& file) {
    if (file.unreadable) return;
    ++files;
    entries += file.judgement.entries;
    errors += file.errors;
    warnings += file.warnings;
    listed += file.judgement.findings.size();
}

ResourceCheck::ResourceCheck(std::size_t limit) : _dictionaries(std::make_unique<Dictionaries>()), _limit(limit) {}
ResourceCheck::~ResourceCheck() = default;

CheckedFile ResourceCheck::file(const std::string& path, const LinterKind* kind, std::istream* standardInput) {
    return counted(judged(path, kind, nullptr, *_dictionaries, standardInput));
}

std::vector<CheckedFile> ResourceCheck::files(const std::vector<std::string>& paths, const LinterKind& kind) {
    const auto linter = &kind == &tableKind ? nullptr : linterOf(kind, *_dictionaries);
    std::vector<CheckedFile> result;
    for (const std::string& path : paths)
        result.push_back(counted(judged(path, &kind, linter.get(), *_dictionaries, nullptr)));
    return result;
}

std::vector<CheckedFile> ResourceCheck::used(const PlatformSetup& setup) {
    std::vector<CheckedFile> result;
    for (const LinterKind& kind : kinds) {
        if (kind.resource == nullptr) continue;
        std::vector<std::string> paths;
        std::unordered_set<std::string> known;
        // Setup data may name a file that the collection standard has as well.
        const auto add = [&](const std::string& path) {
            if (known.insert(path).second) paths.push_back(path);
        };
        const ResourceSearch search = searchResource(*kind.resource, setup);
        for (const auto& used : search.used) add(used.path);
        for (const auto& view : search.releaseViews) std::ranges::for_each(view.files, add);
        std::ranges::move(files(paths, kind), std::back_inserter(result));
    }
    return result;
}

CheckedFile ResourceCheck::counted(CheckedFile file) {
    auto& findings = file.judgement.findings;
    const auto errors = std::ranges::count(findings, Severity::Error, &Finding::severity);
    file.errors = static_cast<std::size_t>(errors);
    file.warnings = findings.size() - file.errors;
    if (findings.size() > _limit) {
        findings.resize(_limit);
        findings.shrink_to_fit();
    }
    _limit -= findings.size();
    return file;
}

} // namespace velkor::lint
