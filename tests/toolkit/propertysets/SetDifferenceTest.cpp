#include "velkor/propertysets/SetDifference.h"

#include "velkor/text/Wording.h"

#include <functional>
#include <gmock/gmock.h>

namespace velkor {

namespace {

SetDefinition wallCommon() {
    SetDefinition set;
    set.name = "Pset_WallCommon";
    set.templateType = TemplateType::TypeDrivenOverride;
    set.classes = {{"IfcWall", ""}};
    set.properties.resize(4);
    set.properties[0] = {.name = "Reference", .valueType = "IfcIdentifier"};
    set.properties[1] = {.name = "Status", .kind = PropertyKind::Enumerated, .enumerators = {"NEW", "EXISTING"}};
    set.properties[2] = {.name = "Curve",
                         .kind = PropertyKind::Table,
                         .valueType = "IfcPowerMeasure",
                         .definingType = "IfcReal",
                         .unitType = "POWERUNIT"};
    set.properties[3] = {.name = "Voltage", .kind = PropertyKind::Complex, .members = {{.name = "Upper"}}};
    return set;
}

/// A line for each thing that differs.
std::vector<std::string> lines(const SetDifference& set) {
    std::vector<std::string> result;
    const auto changes = [&](const std::string& name, const std::vector<SetDifference::Change>& all) {
        for (const auto& change : all)
            result.push_back(name + std::string(change.what) + ": " + change.before + " -> " + change.after);
    };
    changes("", set.changes);
    for (const ApplicableClass* one : set.addedClasses) result.push_back("+class " + textOf(*one));
    for (const ApplicableClass* one : set.removedClasses) result.push_back("-class " + textOf(*one));
    for (const auto method : set.addedMethods) result.push_back("+method " + std::string(method));
    for (const auto method : set.removedMethods) result.push_back("-method " + std::string(method));
    for (const auto& one : set.addedProperties) result.push_back("+" + one.name);
    for (const auto& one : set.removedProperties) result.push_back("-" + one.name);
    for (const auto& one : set.changedProperties) {
        changes(one.name + ' ', one.changes);
        if (!one.addedEnumerators.empty()) result.push_back(one.name + " +" + text::joined(one.addedEnumerators));
        if (!one.removedEnumerators.empty()) result.push_back(one.name + " -" + text::joined(one.removedEnumerators));
    }
    return result;
}

struct DifferenceCase {
    const char* why;
    std::function<void(SetDefinition&)> change;
    std::vector<std::string> expected;
};

const DifferenceCase cases[] = {
    {"nothing", [](SetDefinition&) {}, {}},
    {"order, and letter case of classes and types",
     [](SetDefinition& set) {
         std::swap(set.properties[0], set.properties[3]);
         std::swap(set.properties[1].enumerators[0], set.properties[1].enumerators[1]);
         set.properties[3].valueType = "IFCIDENTIFIER";
         set.classes = {{"IFCWALL", ""}};
     },
     {}},
    {"types and styles of what is named",
     [](SetDefinition& set) {
         set.classes.insert(set.classes.begin(), {{"IfcWallType", ""}, {"IfcWallStyle", ""}});
     },
     {}},
    {"a type of another predefined type, and one whose objects are not named",
     [](SetDefinition& set) {
         set.classes = {{"IfcWallType", ""}, {"IfcWall", "SHEAR"}};
     },
     {"+class IfcWallType", "+class IfcWall/SHEAR", "-class IfcWall"}},
    {"what one definition leaves out and nobody is held to",
     [](SetDefinition& set) {
         set.properties[1].enumeration = "PEnum_Status";
         set.properties[2].unitType.clear();
         set.templateType = TemplateType::Unspecified;
     },
     {}},
    {"what all of a set is",
     [](SetDefinition& set) {
         set.isQuantitySet = true;
         set.templateType = TemplateType::OccurrenceDriven;
         set.methods = {"DIN 277"};
     },
     {"kind: property set -> quantity set", "template type: type-driven-override -> occurrence-driven",
      "+method DIN 277"}},
    {"properties that come, go and are spelled anew",
     [](SetDefinition& set) {
         set.properties[0].name = "REFERENCE";
         set.properties[2].name = "PowerCurve";
     },
     {"+PowerCurve", "-Curve", "REFERENCE name: Reference -> REFERENCE"}},
    {"kind and types",
     [](SetDefinition& set) {
         set.properties[0].kind = PropertyKind::List;
         set.properties[0].valueType = "IfcLabel";
         set.properties[2].definingType.clear();
         set.properties[2].unitType = "ENERGYUNIT";
     },
     {"Reference kind: single -> list", "Reference value type: IfcIdentifier -> IfcLabel",
      "Curve defining type: IfcReal -> ", "Curve unit type: POWERUNIT -> ENERGYUNIT"}},
    {"enumerators, which letter case tells apart",
     [](SetDefinition& set) {
         set.properties[1].enumerators = {"NEW", "existing", "DEMOLISH"};
     },
     {"Status +existing, DEMOLISH", "Status -EXISTING"}},
    {"members of complex properties",
     [](SetDefinition& set) {
         set.properties[3].usageName = "Range";
         set.properties[3].members = {{.name = "upper", .kind = PropertyKind::Bounded}, {.name = "Lower"}};
     },
     {"+Voltage.Lower", "Voltage usage name:  -> Range", "Voltage.upper name: Upper -> upper",
      "Voltage.upper kind: single -> bounded"}},
    {"a complex property that becomes a simple one",
     [](SetDefinition& set) { set.properties[3] = {.name = "Voltage"}; },
     {"Voltage kind: complex -> single"}},
};

} // namespace

TEST(SetDifference, TellsEachThingThatIsAnotherAndNothingElse) {
    for (const DifferenceCase& one : cases) {
        const SetDefinition before = wallCommon();
        SetDefinition after = before;
        one.change(after);
        const SetDifference difference = compareSets(before, after);
        EXPECT_EQ(lines(difference), one.expected) << one.why;
        EXPECT_EQ(difference.empty(), one.expected.empty()) << one.why;
    }
}

} // namespace velkor
