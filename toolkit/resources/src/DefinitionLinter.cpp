#include "DefinitionLinter.h"

#include "DefinitionParts.h"
#include "ResourceNames.h"
#include "velkor/configuration/DefinitionReleases.h"
#include "velkor/propertysets/SetCatalogue.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace velkor::lint {

namespace {

namespace names = velkor::names::definition;
using text::trimmed;

constexpr std::string_view ending = ".xml";

// The published format; attributes belong to no element in particular here, since none of them is read.
const Format& format() {
    static const Format result = [] {
        const std::vector<const char*> attributes{names::templateType,
                                                  names::releaseName,
                                                  names::type,
                                                  names::listName,
                                                  names::referenceType,
                                                  "ifdguid",
                                                  "schema",
                                                  "currencytype",
                                                  "lang",
                                                  "value",
                                                  "guid",
                                                  "URL",
                                                  "libraryname",
                                                  "sectionref"};
        Format made{names::propertySet, {}, true};
        for (const char* name : {names::propertySet,
                                 names::quantitySet,
                                 names::release,
                                 names::name,
                                 names::classes,
                                 names::className,
                                 names::typeValue,
                                 names::method,
                                 names::properties,
                                 names::quantities,
                                 names::property,
                                 names::quantity,
                                 names::propertyType,
                                 names::quantityType,
                                 names::single,
                                 names::simple,
                                 names::enumerated,
                                 names::bounded,
                                 names::list,
                                 names::table,
                                 names::reference,
                                 names::complex,
                                 names::dataType,
                                 names::unitType,
                                 names::listValue,
                                 names::definingValue,
                                 names::definedValue,
                                 names::enumeration,
                                 names::enumerator,
                                 names::constants,
                                 names::constant,
                                 "Definition",
                                 "Applicability",
                                 "ValueRangeDef",
                                 "LowerBoundValue",
                                 "UpperBoundValue",
                                 "Expression",
                                 "Values",
                                 "ValueItem",
                                 "ReferenceSelect",
                                 "ValueDef",
                                 "MinValue",
                                 "MaxValue",
                                 "DefaultValue",
                                 "NameAliases",
                                 "NameAlias",
                                 "DefinitionAliases",
                                 "DefinitionAlias",
                                 "PsetDefinitionAliases",
                                 "PsetDefinitionAlias",
                                 "QtoDefinitionAliases",
                                 "QtoDefinitionAlias"})
            made.elements.push_back({name, {}, {}, attributes});
        return made;
    }();
    return result;
}

std::string setNameOf(const std::string& path) {
    std::string name = path.substr(path.find_last_of('/') + 1);
    if (name.ends_with(ending)) name.resize(name.size() - ending.size());
    return name;
}

/// The release that a text such as "2x3 TC1", "IFC4x1" or "IFC4X3 ADD2" means; empty when it is none.
std::string releaseNamed(std::string_view written) {
    constexpr std::string_view prefix = "IFC";
    std::string name = toUpper(written);
    if (name.starts_with(prefix)) name.erase(0, prefix.size());
    name.erase(std::min(name.find(' '), name.size()));
    name.insert(0, prefix);
    for (const std::string& known : Dictionaries::all())
        if (known == name) return std::string(definingRelease(known));
    // Of the last release the corrections have a name of their own.
    for (const std::string_view release : definitionReleases)
        if (release.starts_with(name + '_')) return std::string(release);
    return {};
}

/// Where each property of the set itself is defined.
std::unordered_map<std::string_view, int> propertyLines(const XmlElement& root) {
    std::unordered_map<std::string_view, int> lines;
    for (const XmlElement& list : root.children) {
        if (list.name != names::properties && list.name != names::quantities) continue;
        for (const XmlElement& property : list.children)
            for (const XmlElement& child : property.children)
                if (child.name == names::name) lines.try_emplace(trimmed(child.text), property.line);
    }
    return lines;
}

/// Where classes are named, by the whole text and by each word of it.
class ClassLines {
public:
    explicit ClassLines(const XmlElement& root) : _listLine(root.line) {
        root.visitNamed(names::classes, [this](const XmlElement& list) { _listLine = list.line; });
        root.visitNamed(names::className, [this](const XmlElement& element) {
            std::string_view rest = trimmed(element.text);
            _lines.try_emplace(std::string(rest), element.line);
            while (!rest.empty()) {
                const std::string_view word = rest.substr(0, rest.find_first_of(" ,;/\t\r\n"));
                _lines.try_emplace(std::string(word), element.line);
                rest.remove_prefix(std::min(word.size() + 1, rest.size()));
            }
        });
    }

    /// That of the list where the class is named elsewhere.
    int of(const ApplicableClass& applicable) const {
        auto found = _lines.find(applicable.entity + '/' + applicable.predefinedType);
        if (found == _lines.end()) found = _lines.find(applicable.entity);
        return found == _lines.end() ? _listLine : found->second;
    }

private:
    std::unordered_map<std::string, int> _lines;
    int _listLine;
};

} // namespace

DefinitionLinter::DefinitionLinter(Dictionaries& dictionaries) : Linter(format(), dictionaries) {}

void DefinitionLinter::judgeEntries(const XmlElement& root) {
    _releases.clear();
    _emptyLines.clear();
    _unknownLines.clear();
    root.visitNamed(names::release, [&](const XmlElement& element) {
        std::string_view rest = element.attribute(names::releaseName);
        while (!rest.empty()) {
            const std::string_view written = trimmed(rest.substr(0, rest.find(',')));
            rest.remove_prefix(std::min(rest.find(','), rest.size() - 1) + 1);
            if (std::string release = releaseNamed(written); !release.empty())
                _releases.push_back(std::move(release));
            else if (!written.empty())
                warn(element.line, "unknown-release", "expected a release of IFC, found " + quoted(written));
        }
    });
    if (_releases.empty()) _releases.assign(std::begin(definitionReleases), std::end(definitionReleases));
    judgeNames(root);
    judgeClasses(root);
    judgeFacts(root);
}

void DefinitionLinter::judgeNames(const XmlElement& root) {
    std::vector<const XmlElement*> found;
    root.visitNamed(names::name, [&](const XmlElement& name) { found.push_back(&name); });
    std::size_t constants = 0;
    int firstConstant = 0;
    for (std::size_t i = 1; i < found.size(); ++i) {
        countEntry();
        if (found[i]->parent->name == names::constant && constants++ == 0) firstConstant = found[i]->line;
        if (!found[i]->text.empty()) continue;
        error(found[i]->line, "missing-value", std::string(names::name) + " has no text");
        _emptyLines.insert(found[i]->line);
    }
    if (constants > 0)
        warn(firstConstant, "constant-names",
             "the validation service takes " + text::counted(constants, "name", "names") +
                 " of constants for properties",
             std::string("list them as ") + names::enumerator + " alone");
    if (found.size() < 2)
        error(root.line, "no-entries",
              "expected the name of the set and of one property at least, found " + std::to_string(found.size()) + ' ' +
                  names::name);
    const std::string file = setNameOf(path());
    if (!found.empty() && found.front()->text != file) {
        error(found.front()->line, "file-name",
              "a set is looked for under the name of its file, " + quoted(file) + ", not under " +
                  quoted(found.front()->text));
    }
}

// A release may know the objects of a class by their type alone.
bool DefinitionLinter::isClass(const std::string& name) {
    constexpr const char* typeEnding = "Type";
    return !dictionaries().entities(name, _releases).empty() ||
           !dictionaries().entities(name + typeEnding, _releases).empty();
}

void DefinitionLinter::judgeClasses(const XmlElement& root) {
    bool hasClass = false;
    root.visitNamed(names::className, [&](const XmlElement& element) {
        hasClass = true;
        const std::string name(names::classNamed(element.text));
        if (isClass(name)) return;
        (name.empty() ? _emptyLines : _unknownLines).insert(element.line);
        if (!name.empty()) return void(judgeEntity(element.line, name, _releases));
        error(element.line, "missing-value", std::string(names::className) + " has no text");
    });
    if (!hasClass)
        warn(root.line, "no-classes",
             std::string("for the services the set applies to nothing, since it has no ") + names::className);
}

// What is told for the services already is left out here: an unknown class, an empty text, another name than the
// file's.
void DefinitionLinter::judgeFacts(const XmlElement& root) {
    const auto reading = readDefinition(bytes(), path());
    if (!reading) {
        const std::string place = path() + ':' + std::to_string(reading.error().line) + ": ";
        std::string_view reason = reading.error().message;
        if (reason.starts_with(place)) reason.remove_prefix(place.size());
        return error(std::max(1, static_cast<int>(reading.error().line)), reading.error().code.c_str(),
                     "models cannot be judged by it: " + std::string(reason));
    }
    for (const DefinitionFault& fault : reading->faults)
        if (fault.line != 0 && !_emptyLines.contains(fault.line)) tell(fault, fault.line, {});
    const auto lines = propertyLines(root);
    const ClassLines classLines(root);
    for (PartFault& part : faultsOf(reading->definition, _releases, dictionaries())) {
        int line = root.line;
        if (part.property != nullptr) {
            const auto found = lines.find(part.property->name);
            if (found != lines.end()) line = found->second;
        } else if (part.applicable != nullptr) {
            line = classLines.of(*part.applicable);
            if (_unknownLines.contains(line)) continue;
        }
        tell(part.fault, line, std::move(part.hint));
    }
}

void DefinitionLinter::tell(const DefinitionFault& fault, int line, std::string hint) {
    const DefinitionFaultKind* kind = definitionFaultKind(fault.kind);
    if (kind != nullptr && kind->isDropped)
        error(line, fault.kind.c_str(), fault.text, std::move(hint));
    else
        warn(line, fault.kind.c_str(), fault.text, std::move(hint));
}

} // namespace velkor::lint
