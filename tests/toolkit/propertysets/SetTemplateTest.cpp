#include "velkor/propertysets/SetTemplate.h"

#include "velkor/check/ModelCheck.h"

#include <gmock/gmock.h>

namespace velkor {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

const SetTemplateHeader header{"wall's.ifc", "2026-01-31T12:00:00Z"};

SetDefinition setOf(const std::string& name, std::vector<PropertyDefinition> properties) {
    SetDefinition set;
    set.name = name;
    set.templateType = TemplateType::TypeDrivenOverride;
    set.classes = {{"IfcWall", ""}};
    set.properties = std::move(properties);
    return set;
}

/// A property of every kind, enumerations of one name that agree and that do not, and names that need encoding.
SetDefinition everything() {
    SetDefinition set = setOf("Pset_Wände", {});
    set.classes.push_back({"IfcActuator", "ELECTRICACTUATOR"});
    for (auto kind = static_cast<unsigned>(PropertyKind::Single); kind <= static_cast<unsigned>(PropertyKind::Number);
         ++kind)
        set.properties.push_back({.name = "It's " + std::to_string(kind), .kind = static_cast<PropertyKind>(kind)});
    set.properties[0].valueType = "IfcLabel";
    set.properties[4].valueType = "IfcPowerMeasure";
    set.properties[4].definingType = "IfcReal";
    set.properties[5].valueType = "IfcPerson";
    set.properties[6].usageName = "Range";
    set.properties[6].members = {{.name = "It's 0"}, {.name = "Area", .kind = PropertyKind::Area}};
    set.properties.push_back({.name = "Plain", .kind = PropertyKind::Complex, .members = {{.name = "P"}}});
    const auto addStatus = [&](const std::string& name, std::vector<std::string> values) {
        set.properties.push_back(
            {.name = name, .kind = PropertyKind::Enumerated, .enumeration = "PEnum", .enumerators = std::move(values)});
    };
    addStatus("Status", {"NEW", "OLD", "NEW"});
    addStatus("Again", {"NEW", "OLD"});
    addStatus("Other", {"OLD"});
    return set;
}

std::vector<std::string> problems(const std::string& text) {
    const auto model = sdai::Model::fromText(text, "template.ifc");
    if (!model) return {model.error().message};
    std::vector<std::string> lines;
    for (const sdai::Problem& problem : checkModel(**model).problems) lines.push_back(problem.message);
    return lines;
}

SetTemplateFile written(const SetDefinition& set, std::string_view release) {
    const auto file = setTemplates({&set}, release, header);
    EXPECT_TRUE(file) << file.error();
    return file.value_or(SetTemplateFile());
}

} // namespace

TEST(SetTemplate, IsASoundModelOfItsRelease) {
    const SetDefinition set = everything();
    for (const auto& [release, schema] : {std::pair("IFC2X3", "IFC4"), std::pair("IFC4", "IFC4"),
                                          std::pair("IFC4X2", "IFC4X2"), std::pair("IFC4X3_ADD2", "IFC4X3_ADD2")}) {
        const SetTemplateFile file = written(set, release);
        EXPECT_EQ(file.release, schema);
        EXPECT_THAT(file.text, HasSubstr("FILE_SCHEMA(('" + std::string(schema) + "'));"));
        EXPECT_THAT(problems(file.text), IsEmpty()) << release;
    }
}

TEST(SetTemplate, SaysWhatTheDefinitionSays) {
    const SetTemplateFile file = written(everything(), "IFC4X3_ADD2");
    EXPECT_THAT(file.notes, IsEmpty());
    for (const char* part :
         {"FILE_NAME('wall''s.ifc','2026-01-31T12:00:00Z',",
          "$,'Pset_W\\X2\\00E4\\X0\\nde',$,.PSET_TYPEDRIVENOVERRIDE.,'IfcWall,IfcActuator/ELECTRICACTUATOR',(#",
          "$,'It''s 0',$,.P_SINGLEVALUE.,'IfcLabel',$,$,$,$,$,$);", "$,'It''s 2',$,.P_BOUNDEDVALUE.,$,$,$,",
          "$,'It''s 4',$,.P_TABLEVALUE.,'IfcReal','IfcPowerMeasure',$,", ".P_REFERENCEVALUE.,'IfcPerson',",
          "$,'It''s 6',$,'Range',.Q_COMPLEX.,(#", "$,'Plain',$,$,.P_COMPLEX.,(#", ".Q_NUMBER.,$,",
          "IFCPROPERTYENUMERATION('PEnum',(IFCLABEL('NEW'),IFCLABEL('OLD')),$);",
          "IFCPROPERTYENUMERATION('Pset_W\\X2\\00E4\\X0\\nde.Other',(IFCLABEL('OLD')),$);"})
        EXPECT_THAT(file.text, HasSubstr(part));
    EXPECT_EQ(file.text.find("('PEnum',"), file.text.rfind("('PEnum',"));
}

TEST(SetTemplate, HasTheSameIdentifiersOnEveryRunAndOthersForAnotherRelease) {
    const SetDefinition set = setOf("Pset_A", {{.name = "P"}});
    const SetTemplateFile file = written(set, "IFC4");
    EXPECT_EQ(written(set, "IFC4").text, file.text);
    // Pinned: others may have stored them.
    EXPECT_THAT(file.text, HasSubstr("IFCPROPERTYSETTEMPLATE('3jb$e83xDUi8ruj6GCBuem',"));
    EXPECT_THAT(written(set, "IFC2X3").text,
                Not(HasSubstr(file.text.substr(file.text.find("IFCPROPERTYSETTEMPLATE"), 40))));
}

TEST(SetTemplate, TellsWhatItCannotSay) {
    SetDefinition set =
        setOf("Qto_A", {{.name = "N", .kind = PropertyKind::Number}, {.name = "N"}, {.name = std::string(256, 'n')}});
    set.isQuantitySet = true;
    set.templateType = TemplateType::MaterialDriven;
    set.methods = {"DIN 277"};
    set.classes = {{"IfcCourse", ""}};
    const SetTemplateFile file = written(set, "IFC4");
    EXPECT_THAT(file.notes,
                ElementsAre("Qto_A: the template type is left out: IFC4 has no Q_NUMBER",
                            "Qto_A: the second property \"N\" is left out", StartsWith("Qto_A: the property \"nnnn"),
                            "Qto_A: methods of measurement are left out: DIN 277",
                            "Qto_A: the template type is left out: IFC4 has no PSET_MATERIALDRIVEN",
                            "Qto_A: the class IfcCourse is left out: IFC4 has none"));
    EXPECT_THAT(problems(file.text), IsEmpty());

    // Room for the classes alone, not for their types.
    set.classes.clear();
    for (const char* name : {"IfcCableCarrierSegment", "IfcCableCarrierFitting", "IfcAirToAirHeatRecovery",
                             "IfcElectricDistributionBoard", "IfcElectricFlowStorageDevice", "IfcProtectiveDevice"})
        set.classes.insert(set.classes.end(), {{name, ""}, {std::string(name) + "Type", ""}});
    EXPECT_THAT(written(set, "IFC4").text, HasSubstr("'IfcCableCarrierSegment,IfcCableCarrierFitting,"));
    set.classes.assign(40, {"IfcWall", ""});
    EXPECT_THAT(written(set, "IFC4").notes, testing::Contains(HasSubstr("the classes are left out: their names are")));
}

TEST(SetTemplate, RefusesWhatHasNone) {
    const SetDefinition nothing = setOf("Pset_Nothing", {}), something = setOf("Pset_A", {{.name = "P"}});
    EXPECT_EQ(setTemplates({&something, &nothing}, "IFC4", header).error(),
              "Pset_Nothing has no properties that a template has room for");
    EXPECT_THAT(setTemplates({&something}, "IFC5", header).error(), HasSubstr("IFC5"));
}

} // namespace velkor
