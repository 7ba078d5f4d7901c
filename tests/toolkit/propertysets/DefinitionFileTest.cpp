#include "velkor/propertysets/DefinitionFile.h"

#include "velkor/text/Wording.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace velkor {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

std::string described(const PropertyDefinition& property) {
    std::string result(wordOf(property.kind));
    result.append(" ").append(property.name);
    for (const auto& [before, fact] : {std::pair(":", property.valueType), std::pair(" by ", property.definingType),
                                       std::pair(" in ", property.unitType), std::pair(" of ", property.enumeration),
                                       std::pair(" for ", property.usageName)})
        if (!fact.empty()) result.append(before).append(fact);
    if (!property.enumerators.empty()) result.append("=").append(text::joined(property.enumerators, "|"));
    if (!property.members.empty())
        result.append(" (").append(text::joined(property.members, "; ", described)).append(")");
    return result;
}

std::string described(const ApplicableClass& named) {
    return named.predefinedType.empty() ? named.entity : named.entity + '/' + named.predefinedType;
}

/// What a definition says behind its name: "type-driven-only IfcWall, IfcDoor {single Width:IfcLengthMeasure; any X}".
std::string described(const SetDefinition& set) {
    std::string result(wordOf(set.templateType));
    if (!result.empty()) result += ' ';
    result += text::joined(set.classes, ", ", [](const ApplicableClass& named) { return described(named); });
    if (!set.methods.empty()) result.append(" measured by ").append(text::joined(set.methods));
    const auto word = [](const PropertyDefinition& property) { return described(property); };
    return result.append(" {").append(text::joined(set.properties, "; ", word)).append("}");
}

std::string described(const std::vector<DefinitionFault>& faults) {
    return text::joined(faults, " ", [](const DefinitionFault& fault) { return fault.kind; });
}

std::string document(const std::string& content, const std::string& attributes = {}) {
    return "<PropertySetDef" + attributes + "><Name>Pset_T</Name>" + content + "</PropertySetDef>";
}
std::string classes(const std::string& content, const std::string& typeValue = {}) {
    return document("<ApplicableClasses>" + content + "</ApplicableClasses><ApplicableTypeValue>" + typeValue +
                    "</ApplicableTypeValue>");
}
std::string property(const std::string& type) {
    return document("<PropertyDefs><PropertyDef><Name>P</Name><PropertyType>" + type +
                    "</PropertyType></PropertyDef></PropertyDefs>");
}
std::string enumeration(const std::string& content) {
    return property("<TypePropertyEnumeratedValue>" + content + "</TypePropertyEnumeratedValue>");
}

DefinitionReading readingOf(const std::string& bytes, const std::string& path = "x/Pset_T.xml") {
    auto reading = readDefinition(bytes, path);
    EXPECT_TRUE(reading) << bytes << '\n' << reading.error().message;
    if (!reading) return {};
    for (const auto& [line, kind, text] : reading->faults) {
        EXPECT_THAT(text, HasSubstr(": ")) << kind;
        EXPECT_NE(definitionFaultKind(kind), nullptr) << kind;
    }
    return std::move(*reading);
}

} // namespace

TEST(DefinitionFileTest, EveryReleasesWayOfSayingItIsRead) {
    struct Form {
        std::string bytes, says, faults = {};
    };
    for (
        const auto& [bytes, says, faults] : std::initializer_list<Form>{
            // Namespaces and what holds no fact.
            {"<?xml version='1.0'?><PropertySetDef xmlns='http://psd' templatetype='PSET_TYPEDRIVENOVERRIDE'>"
             "<IfcVersion version='IFC4'/><Name>Pset_T</Name><Definition>Not "
             "<Name>this</Name></Definition><PropertyDefs>"
             "<PropertyDef><Name>A</Name><Definition/><PropertyType><TypePropertySingleValue>"
             "<DataType type='IfcLabel'/></TypePropertySingleValue></PropertyType><NameAliases>"
             "<NameAlias lang='en'>B</NameAlias></NameAliases></PropertyDef></PropertyDefs></PropertySetDef>",
             "type-driven-override  {single A:IfcLabel}"},
            {"<QtoSetDef templatetype='QTO_OCCURRENCEDRIVEN'><Name>Pset_T</Name><MethodOfMeasurement>BaseQuantities"
             "</MethodOfMeasurement><QtoDefs><QtoDef><Name>A</Name><QtoType>Q_AREA</QtoType></QtoDef><QtoDef>"
             "<Name>N</Name><QtoType>Q_NUMBER</QtoType></QtoDef></QtoDefs></QtoSetDef>",
             "occurrence-driven  measured by BaseQuantities {area A; number N}"},
            {document("", " templatetype='PSET_MATERIALDRIVEN'"), "material-driven  {}"},
            {document("", " templatetype=''"), " {}", "template-unknown"},
            // Classes.
            {classes("<ClassName>IfcActuator/ELECTRICACTUATOR</ClassName><ClassName>IfcDiscreteAccessory/Wire loop"
                     "</ClassName>",
                     "IfcActuator/ELECTRICACTUATOR,IfcDiscreteAccessory/Wire loop"),
             "IfcActuator/ELECTRICACTUATOR, IfcDiscreteAccessory/Wire loop {}"},
            {classes("<ClassName>IFCSHAREDBLDGELEMENTS/IfcBeam\n</ClassName>"), "IfcBeam {}",
             "blanks class-with-schema"},
            {classes("<ClassName>IFCHVACDOMAIN/IfcFan/AIRFOIL</ClassName><ClassName>IfcFan/</ClassName>"),
             "IfcFan/AIRFOIL, IfcFan {}", "class-with-schema"},
            {classes("<ClassName> IfcZone</ClassName><ClassName/>"), "IfcZone {}", "blanks class-missing"},
            {classes("<ClassName>IfcDoor, IfcWindow</ClassName>"), "IfcDoor, IfcWindow {}", "classes-in-one-text"},
            {classes("<ClassName>IfcDoor</ClassName><ClassName>IfcDoor/GATE</ClassName><ClassName>IfcDoor</ClassName>"),
             "IfcDoor, IfcDoor/GATE {}", "class-repeated"},
            // Conditions.
            {classes("<ClassName>IfcActuatorType</ClassName>", " IfcActuatorType.PredefinedType=\"HYDRAULICACTUATOR\""),
             "IfcActuatorType/HYDRAULICACTUATOR {}"},
            {classes("<ClassName>IfcA</ClassName><ClassName>IfcAType</ClassName>",
                     "IfcA.ObjectType=\"Big bolt\", \"Bolt\" | IfcAType.ElementType=\"Big bolt\""),
             "IfcA/Big bolt, IfcA/Bolt, IfcAType/Big bolt {}"},
            {classes("<ClassName>IfcActuator</ClassName>", "IfcActuator/ELECTRICACTUATOR"),
             "IfcActuator/ELECTRICACTUATOR {}"},
            {classes("<ClassName>IfcFlowMovingDevice</ClassName>",
                     "RelatedEntityIs:IfcFanType.PredefinedType=\"AIRFOIL.\""),
             "IfcFanType/AIRFOIL {}", "stray-point condition"},
            {classes("<ClassName>IfcPerformanceHistory</ClassName>",
                     "RelatedEntityIs:IfcCooledBeamType.PredefinedType=\"ACTIVE\""),
             "IfcPerformanceHistory {}", "condition"},
            {classes("<ClassName>IfcA</ClassName>", "PSET.Pset_X.Shape=\"ROUND\""), "IfcA {}", "condition"},
            {classes("<ClassName>IfcA</ClassName>", "IfcB.PredefinedType=\"X\""), "IfcA {}", "condition"},
            {classes("<ClassName>IfcA</ClassName>", "IfcA.PredefinedType=\"X"), "IfcA {}", "condition"},
            // Kinds and types.
            {property(
                 "<TypePropertyTableValue><DefiningValue><DataType type='IfcReal'/><UnitType type='TIMEUNIT'/>"
                 "</DefiningValue><DefinedValue><DataType type='IfcReal'/></DefinedValue></TypePropertyTableValue>"),
             " {table P:IfcReal by IfcReal}"},
            {property(
                 "<TypePropertyBoundedValue><DataType type='IfcReal '/><UnitType type='lengthunit'/><ValueRangeDef>"
                 "<LowerBoundValue value='1'/></ValueRangeDef></TypePropertyBoundedValue>"),
             " {bounded P:IfcReal in LENGTHUNIT}", "blanks"},
            {property("<TypePropertyListValue><ListValue><DataType type='IfcLabel'/><Values><ValueItem>x</ValueItem>"
                      "</Values></ListValue></TypePropertyListValue>"),
             " {list P:IfcLabel}"},
            {property("<TypePropertyTableValue><DefiningValue><DataType type='IfcReal'/><UnitType type='TIMEUNIT'/>"
                      "</DefiningValue><DefinedValue><DataType type='IfcMassMeasure'/><UnitType type='MASSUNIT'/>"
                      "</DefinedValue></TypePropertyTableValue>"),
             " {table P:IfcMassMeasure by IfcReal in MASSUNIT}"},
            {property("<TypePropertyReferenceValue reftype='IfcPerson'/>"), " {reference P:IfcPerson}"},
            {property("<TypePropertyReferenceValue reftype=''/>"), " {reference P}", "type-missing"},
            {property("<TypeSimpleProperty><DataType type='IfcTimeSeries'/><UnitType type='IFCPOWERMEASURE'/>"
                      "</TypeSimpleProperty>"),
             " {single P:IfcTimeSeries in IFCPOWERMEASURE}", "simple-property"},
            {property("<TypePropertySingleValue><DataType/><UnitType type='USERDEFINED'/></TypePropertySingleValue>"),
             " {single P}", "type-missing"},
            {property("<TypePropertySingleValue><UnitType type='UNSPECIFIED'/></TypePropertySingleValue>"),
             " {single P}", "unit-missing"},
            {property("<TypeComplexProperty name='CP_X'><PropertyDef><Name>M</Name><PropertyType>"
                      "<TypePropertySingleValue/></PropertyType></PropertyDef><PropertyDef><Name>N</Name></PropertyDef>"
                      "<PropertyDef><Name>M</Name></PropertyDef></TypeComplexProperty>"),
             " {complex P for CP_X (single M; any N)}", "kind-missing kind-missing property-repeated"},
            {property("<TypePropertyUnheardOf/>"), " {any P}", "kind-missing"},
            {"<QtoSetDef><Name>Pset_T</Name><QtoDefs><QtoDef><Name>A</Name><QtoType>Q_HEAT</QtoType></QtoDef></QtoDefs>"
             "</QtoSetDef>",
             " {any A}", "kind-missing"},
            // Enumerations.
            {enumeration("<EnumList name='PEnum_X'><EnumItem>A</EnumItem><EnumItem>Unset\n</EnumItem><EnumItem>A"
                         "</EnumItem></EnumList>"),
             " {enumerated P of PEnum_X=A|Unset}", "blanks enumerator-repeated"},
            {enumeration("<EnumList/><ConstantList><ConstantDef><Name>A</Name><Definition>x</Definition></ConstantDef>"
                         "<ConstantDef><Name>UNSET.</Name></ConstantDef></ConstantList>"),
             " {enumerated P=A|UNSET}", "stray-point enumerators-elsewhere"},
            {enumeration("<EnumList name='E'><EnumItem>A</EnumItem><EnumItem>B</EnumItem></EnumList><ConstantList>"
                         "<ConstantDef><Name>C</Name></ConstantDef><ConstantDef><Name>B</Name></ConstantDef>"
                         "</ConstantList>"),
             " {enumerated P of E=A|B|C}", "enumerators-differ"},
            {enumeration("<EnumList name='E'><EnumItem>A</EnumItem><EnumItem>B</EnumItem></EnumList><ConstantList>"
                         "<ConstantDef><Name>B</Name></ConstantDef><ConstantDef><Name>A</Name></ConstantDef>"
                         "</ConstantList>"),
             " {enumerated P of E=A|B}"},
            {enumeration("<EnumList name='E'><EnumItem/></EnumList>"), " {enumerated P of E}",
             "name-missing enumerators-missing"},
            // Names.
            {"<PropertySetDef><Name>Pset_<b>x</b>T</Name><Name>Pset_U</Name></PropertySetDef>", " {}"},
            {document("<PropertyDefs><PropertyDef><Name> A</Name></PropertyDef><PropertyDef/></PropertyDefs>"),
             " {any A}", "blanks kind-missing name-missing"},
            {"<PropertySetDef/>", " {}", "name-missing"},
            {"<PropertySetDef><Name>Pset_U</Name></PropertySetDef>", " {}", "name-differs"},
        }) {
        const DefinitionReading reading = readingOf(bytes);
        EXPECT_EQ(described(reading.definition), says) << bytes;
        EXPECT_EQ(described(reading.faults), faults) << bytes;
        EXPECT_EQ(reading.definition.isQuantitySet, bytes.starts_with("<QtoSetDef"));
        EXPECT_EQ(reading.definition.name, faults == "name-differs" ? "Pset_U" : "Pset_T");
    }
}

TEST(DefinitionFileTest, FaultsAreToldWithTheirLineInTheOrderOfTheFile) {
    const DefinitionReading reading =
        readingOf("<PropertySetDef>\n<Name>Pset_T</Name>\n<ApplicableClasses>\n<ClassName/>\n"
                  "</ApplicableClasses>\n<PropertyDefs>\n<PropertyDef>\n<Name>P</Name>\n"
                  "<PropertyType><TypePropertySingleValue>\n<DataType type=''/>"
                  "</TypePropertySingleValue></PropertyType></PropertyDef>\n<PropertyDef>"
                  "<Name>P</Name></PropertyDef></PropertyDefs></PropertySetDef>",
                  "Pset_U.xml");
    EXPECT_EQ(text::joined(reading.faults, "\n",
                           [](const DefinitionFault& fault) { return std::to_string(fault.line) + ' ' + fault.text; }),
              "0 the set in the file of \"Pset_U\" is named \"Pset_T\": it is found by the name of the file\n"
              "4 an empty class: left out\n"
              "10 the type of values of property \"P\": any will do\n"
              "11 property \"P\" has no kind: any will do\n"
              "11 property \"P\" is defined twice: the first counts");
    std::set<std::string_view> names;
    for (const DefinitionFaultKind& kind : definitionFaultKinds())
        EXPECT_TRUE(names.insert(kind.name).second && kind.meaning.ends_with('.')) << kind.name;
}

TEST(DefinitionFileTest, WhatIsNoDefinitionIsRefusedWithItsPlace) {
    for (const auto& [bytes, expected] : std::initializer_list<std::pair<std::string, std::string>>{
             {"", "d/Pset_T.xml:1: Document is empty"},
             {"<PropertySetDef>\n<Name>\n</PropertySetDef>", "d/Pset_T.xml:3: "},
             {"<wall/>", "d/Pset_T.xml:1: expected PropertySetDef or QtoSetDef, found \"wall\""},
             {"<!DOCTYPE PropertySetDef [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;'>]>"
              "<PropertySetDef><Name>&b;</Name></PropertySetDef>",
              "d/Pset_T.xml:1: declarations"},
             {document(std::string(mostDefinitionBytes, ' ')), "d/Pset_T.xml: is larger than 4 MB"},
         }) {
        const auto reading = readDefinition(bytes, "d/Pset_T.xml");
        ASSERT_FALSE(reading) << bytes.substr(0, 100);
        EXPECT_THAT(reading.error().message, StartsWith(expected));
        EXPECT_EQ(reading.error().code, "definition-unreadable");
    }
    std::string nested = document("");
    const std::string open = "<PropertyDefs>", inner = "<PropertyDef><PropertyType><TypeComplexProperty>";
    nested = "<PropertySetDef>" + open;
    for (int i = 0; i < 3000; ++i) nested += inner;
    const auto reading = readDefinition(nested, "d/Pset_T.xml");
    ASSERT_FALSE(reading);
    EXPECT_THAT(reading.error().message, HasSubstr("deeper than 256"));
}

TEST(DefinitionFileTest, OfThousandsThatAreListedTwiceOneIsTaken) {
    std::string items, properties;
    for (int i = 0; i < 20000; ++i) {
        const std::string number = std::to_string(i % 19999);
        items.append("<EnumItem>").append(number).append("</EnumItem>");
        properties.append("<PropertyDef><Name>").append(number).append("</Name></PropertyDef>");
    }
    const DefinitionReading enumerated = readingOf(enumeration("<EnumList name='E'>" + items + "</EnumList>"));
    EXPECT_EQ(enumerated.definition.properties.at(0).enumerators.size(), 19999U);
    EXPECT_EQ(described(enumerated.faults), "enumerator-repeated");
    const DefinitionReading many = readingOf(document("<PropertyDefs>" + properties + "</PropertyDefs>"));
    EXPECT_EQ(many.definition.properties.size(), 19999U);
    EXPECT_EQ(many.definition.properties.back().name, "19998");
}

TEST(DefinitionFileTest, WhatIsWrittenReadsBackTheSameWithoutFault) {
    SetDefinition set;
    set.name = "Pset_<T> & \"more\"";
    set.classes = {{"IfcActuator", "ELECTRICACTUATOR"}, {"IfcDiscreteAccessory", "Wire loop"}, {"IfcWall", ""}};
    const auto add = [](std::vector<PropertyDefinition>& to, PropertyKind kind, const std::string& valueType = {}) {
        PropertyDefinition& added = to.emplace_back();
        added.kind = kind;
        added.name = std::string(wordOf(kind)) + " <\xC3\xA4>" + std::to_string(to.size());
        added.valueType = valueType;
        return &added;
    };
    PropertyDefinition complex;
    for (std::vector<PropertyDefinition>* to : {&set.properties, &complex.members}) {
        add(*to, PropertyKind::Single, "IfcLengthMeasure")->unitType = "LENGTHUNIT";
        add(*to, PropertyKind::Single);
        PropertyDefinition* enumerated = add(*to, PropertyKind::Enumerated);
        enumerated->enumeration = "PEnum_'\"X";
        enumerated->enumerators = {"A", "B & C", "two\twords\nand lines"};
        add(*to, PropertyKind::Bounded, "IfcReal");
        add(*to, PropertyKind::List, "IfcLabel");
        add(*to, PropertyKind::Table, "IfcMassMeasure")->definingType = "IfcReal";
        add(*to, PropertyKind::Reference, "IfcTimeSeries")->unitType = "POWERUNIT";
        add(*to, PropertyKind::Reference);
    }
    add(set.properties, PropertyKind::Complex)->members = complex.members;
    set.properties.back().usageName = "CP\n<X>";
    PropertyDefinition outer = set.properties.back();
    set.properties.push_back(outer);
    set.properties.back().name = "outer";
    set.properties.back().members.push_back(outer);
    for (auto type = TemplateType::Unspecified; type <= TemplateType::ProfileDriven;
         type = static_cast<TemplateType>(static_cast<int>(type) + 1)) {
        set.templateType = type;
        const std::string bytes = writtenDefinition(set, "IFC4");
        EXPECT_THAT(bytes, AllOf(HasSubstr("<IfcVersion version=\"IFC4\"/>"), testing::Not(HasSubstr("ConstantDef"))));
        const DefinitionReading reading = readingOf(bytes, set.name + ".xml");
        EXPECT_EQ(reading.definition, set) << bytes;
    }

    SetDefinition quantities;
    quantities.name = "Qto_T";
    quantities.isQuantitySet = true;
    quantities.templateType = TemplateType::TypeDrivenOverride;
    quantities.methods = {"BaseQuantities", "DIN 277"};
    for (auto kind = PropertyKind::Any; kind <= PropertyKind::Number;
         kind = static_cast<PropertyKind>(static_cast<int>(kind) + 1))
        add(quantities.properties, kind);
    const DefinitionReading reading = readingOf(writtenDefinition(quantities, "IFC4"), "Qto_T.xml");
    EXPECT_EQ(reading.definition, quantities);
    EXPECT_EQ(described(reading.faults), "kind-missing") << "of the one that is left open";
}

TEST(DefinitionFileTest, ReleasesMendWhatTheyContradict) {
    struct Mending {
        std::string release, bytes, says, faults = {};
    };
    const auto single = [](const std::string& type, const std::string& unit = {}) {
        return document(
            "<ApplicableClasses><ClassName>IfcWall</ClassName></ApplicableClasses><PropertyDefs><PropertyDef>"
            "<Name>P</Name><PropertyType><TypePropertySingleValue><DataType type='" +
            type + "'/>" + (unit.empty() ? "" : "<UnitType type='" + unit + "'/>") +
            "</TypePropertySingleValue></PropertyType></PropertyDef></PropertyDefs>");
    };
    const auto reference = [](const std::string& type) {
        return document(
            "<ApplicableClasses><ClassName>IfcWall</ClassName></ApplicableClasses><PropertyDefs><PropertyDef>"
            "<Name>P</Name><PropertyType><TypePropertyReferenceValue reftype='" +
            type + "'/></PropertyType></PropertyDef></PropertyDefs>");
    };
    const auto named = [](const std::string& name, const std::string& attributes) {
        return "<PropertySetDef" + attributes + "><Name>" + name + "</Name></PropertySetDef>";
    };
    for (const auto& [release, bytes, says, faults] : std::initializer_list<Mending>{
             // Classes: a release may know a class by its type alone.
             {"IFC2X3", classes("<ClassName>IfcPump</ClassName><ClassName>IfcCourse</ClassName>"), "IfcPump {}",
              "class-unknown"},
             {"IFC4X3_ADD2", classes("<ClassName>IfcPump</ClassName><ClassName>IfcCourse</ClassName>"),
              "IfcPump, IfcCourse {}"},
             {"IFC4", named("Pset_ElementAssemblyCommon", ""), "IfcElementAssembly {}", "class-missing"},
             {"IFC4",
              "<PropertySetDef><Name>Pset_TankCommon</Name><ApplicableClasses><ClassName>IfcTnak</ClassName>"
              "</ApplicableClasses></PropertySetDef>",
              "IfcTank {}", "class-unknown class-missing"},
             {"IFC4", named("Pset_TankPHistory", ""), "performance-driven IfcTank {}",
              "template-unknown class-missing"},
             {"IFC4", named("MySet", " templatetype='PSET_OCCURRENCEDRIVEN'"), "occurrence-driven  {}",
              "class-missing"},
             {"IFC2X3", classes("<ClassName>IfcPerformanceHistory</ClassName>"), "IfcPerformanceHistory {}"},
             // Predefined types.
             {"IFC4",
              classes("<ClassName>IfcTank/EXPANSION</ClassName><ClassName>IfcTank/ROUND</ClassName><ClassName>"
                      "IfcSensor/LEVEL</ClassName><ClassName>IfcTank/round one</ClassName>"),
              "IfcTank/EXPANSION, IfcTank/ROUND, IfcSensor/LEVELSENSOR, IfcTank/round one {}",
              "predefined-type-unknown predefined-type-unknown"},
             {"IFC2X3",
              classes("<ClassName>IfcTransportElement/ELEVATOR</ClassName><ClassName>IfcTransportElement/SHIP"
                      "</ClassName><ClassName>IfcPump/CIRCULATOR</ClassName>"),
              "IfcTransportElement/ELEVATOR, IfcTransportElement/SHIP, IfcPump/CIRCULATOR {}",
              "predefined-type-unknown"},
             // Types of values.
             {"IFC2X3", single("IfcDuration"), "IfcWall {single P}", "type-unknown"},
             {"IFC4", single("IfcDuration"), "IfcWall {single P:IfcDuration}"},
             {"IFC4", single("IfcValue"), "IfcWall {single P:IfcValue}"},
             {"IFC4", single("IfcWallTypeEnum"), "IfcWall {single P}", "type-unknown"},
             {"IFC4", single("IfcTimeSeries"), "IfcWall {reference P:IfcTimeSeries}", "type-is-entity"},
             {"IFC4", single("IfcTimeSeriesValue"), "IfcWall {single P}", "type-is-entity"},
             {"IFC4", reference("IfcMaterialDefinition"), "IfcWall {reference P:IfcMaterialDefinition}"},
             {"IFC2X3", reference("IfcMaterialDefinition"), "IfcWall {reference P}", "type-unknown"},
             {"IFC4", reference("IfcWall"), "IfcWall {reference P}", "type-unknown"},
             // Unit types.
             {"IFC4",
              property(
                  "<TypeComplexProperty><PropertyDef><Name>M</Name><PropertyType><TypePropertySingleValue>"
                  "<DataType type='IfcReal'/><UnitType type='FURLONGUNIT'/></TypePropertySingleValue></PropertyType>"
                  "</PropertyDef></TypeComplexProperty>"),
              " {complex P (single M:IfcReal)}", "class-missing unit-unknown"},
             {"IFC2X3", single("IfcReal", "IFCPOSITIVELENGTHMEASURE"), "IfcWall {single P:IfcReal in LENGTHUNIT}",
              "unit-is-measure"},
             {"IFC2X3", single("IfcReal", "IFCRATIOMEASURE"), "IfcWall {single P:IfcReal}", "unit-is-measure"},
             {"IFC4", single("IfcReal", "FURLONGUNIT"), "IfcWall {single P:IfcReal}", "unit-unknown"},
             {"IFC4", single("IfcPositiveLengthMeasure", "LENGTHUNIT"),
              "IfcWall {single P:IfcPositiveLengthMeasure in LENGTHUNIT}"},
             {"IFC4", single("IfcLengthMeasure", "AREAUNIT"), "IfcWall {single P:IfcLengthMeasure}", "unit-mismatch"},
         }) {
        SetDefinition definition = readingOf(bytes, "").definition;
        const std::vector<DefinitionFault> found = mendDefinition(definition, release);
        EXPECT_EQ(described(definition), says) << release << ' ' << bytes;
        EXPECT_EQ(described(found), faults) << release << ' ' << bytes;
        SetDefinition again = definition;
        static_cast<void>(mendDefinition(again, release));
        EXPECT_EQ(again, definition) << "mended once and for all";
    }
    SetDefinition definition;
    EXPECT_TRUE(mendDefinition(definition, "IFC1").empty()) << "of a release that nobody knows nothing is said";
}

} // namespace velkor
