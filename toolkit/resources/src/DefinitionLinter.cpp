#include "DefinitionLinter.h"

namespace velkor::lint {

namespace {

constexpr std::string_view ending = ".xml";

// The published format; attributes belong to no element in particular here, since none of them is read.
const Format& format() {
    static const Format result = [] {
        const std::vector<const char*> attributes{"ifdguid", "templatetype", "version",     "schema",    "type",
                                                  "name",    "currencytype", "lang",        "value",     "reftype",
                                                  "guid",    "URL",          "libraryname", "sectionref"};
        Format made{"PropertySetDef", {}, true};
        for (const char* name : {"PropertySetDef",
                                 "QtoSetDef",
                                 "IfcVersion",
                                 "Name",
                                 "Definition",
                                 "Applicability",
                                 "ApplicableClasses",
                                 "ClassName",
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
    std::vector<const XmlElement*> names;
    root.visitNamed("Name", [&](const XmlElement& name) { names.push_back(&name); });
    for (std::size_t i = 1; i < names.size(); ++i) {
        countEntry();
        if (names[i]->text.empty()) error(names[i]->line, "missing-value", "Name has no text");
    }
    if (names.size() < 2)
        error(root.line, "no-entries",
              "expected the name of the set and of one property at least, found " + std::to_string(names.size()) +
                  " Name");
    const std::string file = setNameOf(path());
    if (!names.empty() && names.front()->text != file) {
        error(names.front()->line, "file-name",
              "a set is looked for under the name of its file, " + quoted(file) + ", not under " +
                  quoted(names.front()->text));
    }
    judgeClasses(root);
}

void DefinitionLinter::judgeClasses(const XmlElement& root) {
    bool hasClass = false;
    root.visitNamed("ClassName", [&](const XmlElement& element) {
        hasClass = true;
        const std::string& text = element.text;
        if (text.empty()) return error(element.line, "missing-value", "ClassName has no text");
        const std::size_t slash = text.find('/');
        judgeEntity(element.line, slash == 0 ? text : text.substr(0, slash), {});
    });
    if (!hasClass) warn(root.line, "no-classes", "the set applies to nothing, since it has no ClassName");
}

} // namespace velkor::lint
