#include "DefinitionLinter.h"

#include "ResourceNames.h"

namespace velkor::lint {

namespace {

namespace names = velkor::names::definition;

constexpr std::string_view ending = ".xml";

// The published format; attributes belong to no element in particular here, since none of them is read.
const Format& format() {
    static const Format result = [] {
        const std::vector<const char*> attributes{"ifdguid", "templatetype", "version",     "schema",    "type",
                                                  "name",    "currencytype", "lang",        "value",     "reftype",
                                                  "guid",    "URL",          "libraryname", "sectionref"};
        Format made{names::propertySet, {}, true};
        for (const char* name : {names::propertySet,
                                 names::quantitySet,
                                 "IfcVersion",
                                 names::name,
                                 "Definition",
                                 "Applicability",
                                 "ApplicableClasses",
                                 names::className,
                                 "ApplicableTypeValue",
                                 "PropertyDefs",
                                 "PropertyDef",
                                 "PropertyType",
                                 "TypePropertySingleValue",
                                 "TypePropertyEnumeratedValue",
                                 "TypePropertyBoundedValue",
                                 "TypePropertyTableValue",
                                 "TypePropertyReferenceValue",
                                 "TypePropertyListValue",
                                 "TypeComplexProperty",
                                 "DataType",
                                 "UnitType",
                                 "EnumList",
                                 "EnumItem",
                                 "ConstantList",
                                 "ConstantDef",
                                 "ValueRangeDef",
                                 "LowerBoundValue",
                                 "UpperBoundValue",
                                 "Expression",
                                 "DefiningValue",
                                 "DefinedValue",
                                 "ListValue",
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
                                 "QtoDefs",
                                 "QtoDef",
                                 "QtoType",
                                 "QtoDefinitionAliases",
                                 "QtoDefinitionAlias",
                                 "MethodOfMeasurement"})
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

} // namespace

DefinitionLinter::DefinitionLinter(Dictionaries& dictionaries) : Linter(format(), dictionaries) {}

void DefinitionLinter::judgeEntries(const XmlElement& root) {
    std::vector<const XmlElement*> found;
    root.visitNamed(names::name, [&](const XmlElement& name) { found.push_back(&name); });
    for (std::size_t i = 1; i < found.size(); ++i) {
        countEntry();
        if (found[i]->text.empty()) error(found[i]->line, "missing-value", std::string(names::name) + " has no text");
    }
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
    judgeClasses(root);
}

void DefinitionLinter::judgeClasses(const XmlElement& root) {
    bool hasClass = false;
    root.visitNamed(names::className, [&](const XmlElement& element) {
        hasClass = true;
        const std::string& text = element.text;
        if (text.empty()) return error(element.line, "missing-value", std::string(names::className) + " has no text");
        judgeEntity(element.line, std::string(names::classNamed(text)), {});
    });
    if (!hasClass)
        warn(root.line, "no-classes", std::string("the set applies to nothing, since it has no ") + names::className);
}

} // namespace velkor::lint
