#include "linter/ResourceCheck.h"

#include "InputText.h"
#include "linter/AECLinter.h"
#include "linter/AttributeListLinter.h"
#include "linter/CustomMappingLinter.h"
#include "linter/DefinitionLinter.h"
#include "linter/PLMAttributesLinter.h"
#include "linter/VersionMappingLinter.h"

#include <algorithm>

namespace velkor::host::lint {

namespace {

template <class Kind>
std::unique_ptr<Linter> make(Dictionaries& dictionaries) {
    return std::make_unique<Kind>(dictionaries);
}

bool isVersionMapping(const XmlElement& root) {
    bool result = false;
    root.visitNamed("Version", [&](const XmlElement& version) {
        result |= version.hasAttribute("from") || version.hasAttribute("to") || version.contains("Mapping") ||
                  version.contains("Deprecation") || version.contains("Introduction");
    });
    return result;
}

bool isAttributeList(const XmlElement& root) {
    return root.contains("AttributeID") && root.contains("Level");
}

const LinterKind* recognized(const XmlElement& root) {
    if (root.name == "IfcMapping") return linterKind("custom-mapping");
    if (root.name == "IfcPLMMappingAttr") return linterKind("plm-attributes");
    if (root.name == "PropertySetDef" || root.name == "QtoSetDef") return linterKind("definition");
    if (root.contains("NeutralID")) return linterKind("aec");
    if (isAttributeList(root)) return linterKind("attribute-list");
    return isVersionMapping(root) ? linterKind("version-mapping") : nullptr;
}

// More than the parser takes.
constexpr std::size_t mostBytes = std::size_t{2} << 30;

CheckedFile judged(const std::string& path, const LinterKind* kind, Linter* linter, Dictionaries& dictionaries,
                   std::istream* standardInput) {
    CheckedFile file{path, kind, {}};
    const auto text = readInput(path, standardInput, mostBytes);
    if (!text) {
        file.unreadable = text.error();
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
        own = file.kind->make(dictionaries);
        linter = own.get();
    }
    file.judgement = linter->judge(path, *reading.root);
    auto& findings = file.judgement.findings;
    findings.insert(findings.begin(), reading.findings.begin(), reading.findings.end());
    std::ranges::stable_sort(findings, {}, &Finding::line);
    return file;
}

} // namespace

const std::vector<LinterKind>& linterKinds() {
    static const std::vector<LinterKind> kinds{
        {"version-mapping", &versionMappingResource, make<VersionMappingLinter>},
        {"custom-mapping", &customMappingResource, make<CustomMappingLinter>},
        {"plm-attributes", &plmAttributesMappingResource, make<PLMAttributesLinter>},
        {"aec", &aecMappingResource, make<AECLinter>},
        {"attribute-list", &attributeListResource, make<AttributeListLinter>},
        {"definition", &propertySetResource, make<DefinitionLinter>}};
    return kinds;
}

const LinterKind* linterKind(std::string_view word) {
    const auto found = std::ranges::find_if(linterKinds(), [&](const LinterKind& kind) { return word == kind.word; });
    return found == linterKinds().end() ? nullptr : &*found;
}

CheckedFile ResourceCheck::file(const std::string& path, const LinterKind* kind, std::istream* standardInput) {
    return counted(judged(path, kind, nullptr, _dictionaries, standardInput));
}

std::vector<CheckedFile> ResourceCheck::files(const std::vector<std::string>& paths, const LinterKind& kind) {
    const auto linter = kind.make(_dictionaries);
    std::vector<CheckedFile> result;
    for (const std::string& path : paths)
        result.push_back(counted(judged(path, &kind, linter.get(), _dictionaries, nullptr)));
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

} // namespace velkor::host::lint
