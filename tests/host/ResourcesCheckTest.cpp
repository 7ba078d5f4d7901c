#include "ConfigurationTestSupport.h"
#include "Matchers.h"

#include "velkor/text/QORUnicodeString.h"

#include <algorithm>
#include <set>
#include <sys/stat.h>

namespace velkor::host {

using nlohmann::json;

namespace {

/// A document, and what is found in it: line and code of each, and the hint if there is one.
struct Case {
    std::string document;
    std::string findings;
};

std::string findingsOf(const json& file) {
    std::string result;
    for (const json& finding : file["findings"]) {
        result += (result.empty() ? "" : ", ") + finding["line"].dump() + ' ' + finding["code"].get<std::string>();
        if (finding["hint"].is_string()) result += ": " + finding["hint"].get<std::string>();
    }
    return result;
}

std::string plm(const std::string& content) {
    return "<IfcPLMMappingAttr>\n" + content + "</IfcPLMMappingAttr>";
}
std::string line(const char* attribute, const char* property, const char* more = "") {
    return "<fromAttributes plmProp='" + std::string(attribute) + "' propSetName='Pset_A' ifcProp='" + property + "' " +
           more + "/>\n";
}

} // namespace

class ResourcesCheckTest : public ConfiguredTest {
protected:
    json check(const std::string& path, int expectedStatus, const std::vector<std::string>& more = {}) const {
        std::vector<std::string> words{"resources", "check", path};
        words.insert(words.end(), more.begin(), more.end());
        return answer(words, expectedStatus);
    }
    /// The kind is seen from the content, and the same is found when it is told.
    void expect(const char* kind, const Case& expected) const {
        const std::string path = folder.file("document.xml", expected.document);
        const int status = expected.findings.empty() ? Done : Findings;
        const json answered = check(path, status);
        ASSERT_EQ(answered["files"].size(), 1U);
        EXPECT_EQ(answered["files"][0]["kind"], kind) << expected.document;
        EXPECT_EQ(findingsOf(answered["files"][0]), expected.findings) << expected.document;
        EXPECT_EQ(check(path, status, {"--kind", kind}), answered);
        EXPECT_TRUE(!expected.findings.empty() || answered["files"][0]["entries"] != 0) << expected.document;
    }
    std::string text(const std::string& document) const {
        return runHost({"resources", "check", folder.file("document.xml", document)}).out;
    }

    const TemporaryFolder folder;
};

TEST_F(ResourcesCheckTest, VersionMappings) {
    const auto block = [](const std::string& content, const std::string& from = "2x3", const std::string& to = "4") {
        return "<M><Version from='" + from + "' to='" + to + "'>\n" + content + "</Version></M>";
    };
    const std::string wall = "<Mapping fromEntity='IfcWall' fromProperty='Tag'/>";
    const Case cases[] = {
        {block(wall + "\n<Deprecation entity='Ifc2DCompositeCurve'/>"), ""},
        {"<M><Version from='2x3' to='4'>" + wall + wall + "</Version></M>",
         "1 first-node: put it on a line of its own"},
        {"<M><Version from='2x3' to='4'><!-- first -->" + wall + "</Version></M>", ""},
        // Names are those of the release where it has a dictionary, else of any.
        {block("<Mapping fromEntity='IfcWal' toEntity='IfcWall'/>"), "2 unknown-entity: did you mean \"IFCWALL\"?"},
        {block("<Deprecation entity='IfcGeographicElement'/>"), "2 unknown-entity: IFC4 has it"},
        {block("<Introduction entity='IfcGeographicElement'/>"), ""},
        {block("<Deprecation entity='IfcGeographicElement'/>", "2x2"), ""},
        {block("<Introduction entity='IfcAlignment2DVerSegLine'/>", "4", "4x2"), ""},
        {block("<Mapping fromEntity='Pset_Old' fromProperty='a' toEntity='Pset_New'/>"), ""},
        {block("<Deprecation entity='IfcWall' property='Nmae'/>"), "2 unknown-property: did you mean \"NAME\"?"},
        {block("<Deprecation entity='IfcWall' property='FireRating'/>"), ""},
        {block("<Mapping fromEntity='IfcRoof' fromProperty='ShapeType' toProperty='PredefindType'/>"),
         "2 unknown-property: did you mean \"PREDEFINEDTYPE\"?"},
        {block("<Introduction entity='IfcWall' property='PredefinedType' propertyValue='SHEER'/>\n"
               "<Introduction entity='IfcDoor' property='PredefinedType' propertyValue='door'/>"),
         "2 unknown-enumerator: did you mean \"SHEAR\"?"},
        // The first entry of a key counts, whatever it says.
        {block(wall + "\n<Deprecation entity='IFCWALL' property='tag'/>"), "3 duplicate-key"},
        {block("<Mapping fromEntity='IfcWall' fromProperty='P74686'/>\n"
               "<Deprecation entity='IfcWall' property='P122330'/>"),
         "3 key-collision"},
        {block("<Deprecation entity='IfcDoorStyle'/>\n"
               "<Deprecation entity='IfcDoor' property='Style'/>"),
         "3 key-collision"},
        {block("<Mapping fromEntity='IfcWall' toEntity='IfcSlab'/>\n"
               "<Mapping fromEntity='IfcWall' toEntity='IfcDoor'/>"),
         "3 duplicate-key"},
        {block(wall) + "<!-- -->", ""},
        {"<M>" + block(wall) + block(wall, "4", "2x3") + block(wall) + "</M>", "3 duplicate-block"},
        {block(wall, "IFC4", "4x2"), "1 unknown-release: did you mean \"4\"?"},
        {block(wall, "2x3", "5"), "1 unknown-release"},
        {block("<Mapping fromEntity='IfcWall'/>\n<Mapping fromEntity='IfcDoor' toProperty='a'/>\n"
               "<Introduction entity='IfcSlab' propertyValue='a'/>"),
         "2 no-effect, 3 no-effect, 4 no-effect"},
        {block("<Mapping toEntity='IfcWall'/>\n<Maping/>\n<Deprecation entty='IfcWall'/>"),
         "2 missing-value, 3 unknown-element: did you mean \"Mapping\"?, 4 unknown-attribute: did you mean "
         "\"entity\"?, 4 missing-value"},
        {"<M xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:type='a' xml:lang='en'><Group>\n" + block(wall) +
             "\n<Verson/>\n</Group><Mapping fromEntity='IfcWall'/></M>",
         "4 unknown-element: did you mean \"Version\"?, 5 misplaced-element"}};
    EXPECT_EQ(QORUnicodeString("IFCWALLP74686").ComputeHashKey(), QORUnicodeString("IFCWALLP122330").ComputeHashKey());
    for (const Case& expected : cases) expect("version-mapping", expected);
    const std::string path = folder.file("limited.xml", block("<Maping/>\n<Maping/>\n<Maping/>"));
    const json limited = check(path, Findings, {path, "--limit", "4"});
    EXPECT_EQ(limited["files"][0]["findings"].size(), 3U);
    EXPECT_EQ(limited["files"][1]["findings"].size(), 1U);
    EXPECT_EQ(limited["warnings"], 6) << "those beyond the limit of all files count";
    EXPECT_THAT(runHost({"resources", "check", path, "--limit", "2"}).out,
                HasSubstr(" 0 errors, 3 warnings\nthe first 2 of 3 findings are listed (--limit shows more)\n"));
    EXPECT_THAT(text(block(wall + "\n\n" + wall)),
                AllOf(HasSubstr("document.xml:4: warning: \"IfcWall\" \"Tag\" has an entry in line 2 already, which "
                                "counts [duplicate-key]\n"),
                      HasSubstr("\nIFC version mapping: 1 file, 2 entries, 0 errors, 1 warning\n")));
}

TEST_F(ResourcesCheckTest, CustomMappings) {
    const auto mapping = [](const char* tag, const char* from, const char* to, const char* scope) {
        return '<' + std::string(tag) + ' ' + from + ' ' + to + " scope='" + scope + "'/>\n";
    };
    const auto document = [](const std::string& content, const char* root = "IfcMapping") {
        return '<' + std::string(root) + ">\n" + content + "</IfcMapping>";
    };
    const char* from = "fromEntity='IfcWall' fromProperty='Name'";
    const char* to = "toEntity='Acme_Wall' toProperty='Title'";
    const char* other = "toEntity='Acme_Wall' toProperty='Label'";
    const std::string plain = mapping("StandardMapping", from, to, "Wall;Slab");
    const std::string both = mapping("CustomMapping", from, to, "Wall;Slab");
    const Case cases[] = {
        {document(plain), ""},
        // Custom mappings are read last, wherever they stand, and of two alike the later counts.
        {document(both + plain), "3 duplicate-key"},
        {document(plain + mapping("StandardMapping", from, other, "slab;Door")), "2 duplicate-key"},
        {document(plain + mapping("StandardMapping", from, other, "Door")), ""},
        {document(both + mapping("CustomMapping", "fromEntity='IfcWall'", to, "Wall")), "2 duplicate-key"},
        {document(plain + mapping("StandardMapping", "fromEntity='IfcWallN' fromProperty='ame'", to, "Wall")),
         "2 key-collision, 3 unknown-entity: did you mean \"IFCWALL\"?"},
        {document(mapping("CustomMapping", "fromEntity='IfcWall' fromProperty='Namee'", to, "Wall; Slab;Door_Export")),
         "2 unknown-property: did you mean \"NAME\"?, 2 bad-scope: write \"Slab\", 2 bad-scope: write \"Door\""},
        {document(mapping("CustomMapping", from, "", ";")), "2 missing-value, 2 missing-value"},
        {document("<Group>" + plain + "</Group>"), "2 unknown-element"},
        {document(plain, "IfcMapping xmlns='urn:x'"), "1 namespace: remove the declaration of \"urn:x\""},
        {document(""), "1 no-entries"}};
    for (const Case& expected : cases) expect("custom-mapping", expected);
    EXPECT_THAT(text(document(both + plain)),
                HasSubstr("\"IfcWall\" \"Name\" on import of Wall and 1 more: CustomMapping "
                          "in line 2 is read later, which counts [duplicate-key]\n"));
}

TEST_F(ResourcesCheckTest, PLMAttributes) {
    const auto group = [](const std::string& id, const std::string& content) {
        return "<PLMAttrIncluded id='" + id + "'>\n" + content + "</PLMAttrIncluded>\n";
    };
    const auto type = [](const std::string& content) {
        return "<IfcPLMMapping Name='T'>\n" + content + "</IfcPLMMapping>\n";
    };
    const auto include = [](const std::string& id) { return "<PLMAttrInclude IncludedId='" + id + "'/>\n"; };
    const Case cases[] = {
        {plm(group("A", line("a", "P")) + type(include("a") + line("b", "P"))), ""},
        {plm(type(line("a", "P") + line("A", "Q"))), "4 duplicate-key"},
        {plm(type(line("a", "P", "propExpose='both'") + line("b", "P", "propExpose='Import_Only'"))),
         "3 line-dropped: did you mean \"Both\"?, 4 line-dropped"},
        {plm(group("Walls", line("a", "P")) + type(include("Wals") + include("Walls"))),
         "6 unresolved-include: did you mean \"Walls\"?"},
        {plm(group("A", "") + type(include("A") + line("a", "P"))), "2 empty-group, 5 unresolved-include"},
        {plm(group("A", line("a", "P")) + type(line("a", "P"))), "2 unused-group"},
        {plm(group("A", line("a", "P")) + group("a", line("b", "P")) + type(include("A"))), "5 duplicate-key"},
        // The same line twice is harmless, another property is not.
        {plm(group("A", line("a", "P")) + type(line("a", "P") + include("A"))), ""},
        {plm(group("A", line("a", "P")) + type(line("a", "Q") + include("A"))), "7 duplicate-key"},
        {plm(group("A", line("a", "P")) + group("B", include("A") + line("b", "P")) + type(include("B"))), ""},
        {plm(group("A", line("a", "P")) + group("B", line("b", "P")) + group("C", include("B")) + type(include("C"))),
         "9 include-takes-more"},
        {plm(group("A", include("B")) + group("B", include("C") + line("b", "P")) + group("C", line("c", "P")) +
             type(include("A") + include("C"))),
         "3 include-incomplete: move it above, 6 include-takes-more"},
        {plm(group("A", include("A") + line("a", "P")) + type(include("A"))), "3 include-incomplete"},
        {plm(group("A", line("a", "P"))), "1 no-entries"},
        {plm(line("a", "P") + type("<fromAttributes plmProp='a' ifcprop='b'/>\n")),
         "2 misplaced-element, 4 unknown-attribute: did you mean \"ifcProp\"?, 4 missing-value, 4 missing-value"}};
    for (const Case& expected : cases) expect("plm-attributes", expected);
}

TEST_F(ResourcesCheckTest, Correspondences) {
    const auto entry = [](const std::string& name, const std::string& sides) {
        return "<NeutralID Name='" + name + "'>\n" + sides + "</NeutralID>\n";
    };
    const auto ifc = [](const std::string& more = "", const std::string& condition = "") {
        return "<IFC Name='IfcWall' " + more + '>' + (condition.empty() ? "" : "<Condition " + condition + "/>") +
               "</IFC>";
    };
    const auto document = [](const std::string& content) { return "<AEC>\n" + content + "</AEC>"; };
    const std::string shear = "Attribute='PredefinedType' Value='SHEAR'", mine = "Attribute='Mine' Value='1'";
    const Case cases[] = {
        {document(entry("W", ifc() + "<NORVEL Name='Wall'/>") + entry("S", ifc("Priority='1'", shear))), ""},
        {document(entry("W", ifc()) + entry("S", ifc("", shear))), "5 unreachable"},
        {document(entry("S", ifc("", shear)) + entry("W", ifc())), ""},
        {document(entry("S", ifc("Priority='2'", shear)) + entry("W", ifc("Priority='3'"))), "3 unreachable"},
        {document(entry("A", ifc("", mine)) + entry("B", ifc("", "Attribute='MINE' Value='1'")) + entry("C", ifc())),
         "5 unreachable"},
        {document(entry("A", "<NORVEL Name='Wall'/>") + entry("B", "<NORVEL Name='wall'/>")), "5 unreachable"},
        {document(entry("W", ifc("Priority='1.5'"))), "3 bad-priority"},
        {document("<NeutralID Name='W'>" + ifc() + "<NORVEL Name='Wall'><Valuate Attribute='a'/></NORVEL></NeutralID>"),
         "2 first-node: put it on a line of its own, 2 first-node: put it on a line of its own"},
        {document(entry("W", ifc("", "Value='SHEAR'")) +
                  entry("V", "<IFC Name='IfcDoor'>\n<Condition " + mine + "/>\n<Condition " + mine + "/></IFC>")),
         "3 condition-ignored, 7 condition-ignored"},
        {document(entry("W", ifc("", "Attribute='PredefinedType' Value='SHEER'"))),
         "3 unknown-enumerator: did you mean \"SHEAR\"?"},
        {document(entry("W", ifc("", "Attribute='predefinedtype' Value='Shear'"))),
         "3 unknown-enumerator: write \"SHEAR\", letter case counts"},
        {document(entry("W", ifc("", "Attribute='PredefindType'"))),
         "3 missing-value, 3 unknown-property: did you mean \"PREDEFINEDTYPE\"?"},
        {document(entry("W", "<IFC Name='IfcWaal'/>\n<IFC Name='IfcDoor'/>") + entry("w", "<NORVL Name='Wall'/>")),
         "3 unknown-entity: did you mean \"IFCWALL\"?, 4 duplicate-side, 5 duplicate-key, 6 unknown-element: did you "
         "mean \"NORVEL\"?"},
        {document(entry("W", ifc()) + ifc()), "4 misplaced-element, 4 unreachable"}};
    for (const Case& expected : cases) expect("aec", expected);
}

TEST_F(ResourcesCheckTest, AttributeLists) {
    const auto level = [](const std::string& id, const std::string& content) {
        return "<Level ID='" + id + "'>\n" + content + "</Level>\n";
    };
    const auto entry = [](const std::string& name, const std::string& entity, const std::string& value = "Tag") {
        return "<AttributeID Name='" + name + "' Entity='" + entity + "' Value='" + value + "'/>\n";
    };
    const std::string mark = entry("Mark", "IfcWall");
    const Case cases[] = {
        {"<L>" + level("2X3", mark) + level("4andabove", mark + entry("mark", "IfcWall")) + level("General", mark) +
             "</L>",
         ""},
        {"<L>" + level("2X3", mark + mark) + "</L>", "3 duplicate-key"},
        {"<L>" + level("4ABOVE", mark) + level("2X4", mark) + "</L>",
         "1 unknown-level, 4 unknown-level, 5 duplicate-key"},
        {"<L>" + level("2X3", mark + level("4ANDABOVE", mark)) + "</L>", "3 nested-level"},
        {"<L>" + level("2X3", "<Group>" + mark + "</Group>") + mark + "</L>", "2 unknown-element, 4 misplaced-element"},
        {"<L>" +
             level("2X3",
                   entry("a", "IfcGeographicElement") + entry("b", "IfcWall", "Tagg") + entry("c", "IfcWall", "")) +
             level("4ANDABOVE", entry("a", "IfcDoorStyle") + entry("b", "Ifc2DCompositeCurve")) + "</L>",
         "2 unknown-entity: IFC4 has it, 3 unknown-property: did you mean \"TAG\"?, 4 missing-value, 8 unknown-entity: "
         "IFC2X3 has it"}};
    for (const Case& expected : cases) expect("attribute-list", expected);
}

TEST_F(ResourcesCheckTest, Definitions) {
    const auto set = [](const std::string& content, const std::string& name = "document",
                        const std::string& release = "") {
        return "<PropertySetDef ifdguid='1' new=''>" +
               (release.empty() ? release : "<IfcVersion version='" + release + "'/>") + "\n<Name>" + name +
               "</Name>\n" + content + "</PropertySetDef>";
    };
    const auto ofClass = [](const std::string& text) {
        return "<ApplicableClasses><ClassName>" + text + "</ClassName></ApplicableClasses>\n";
    };
    const auto property = [](const std::string& type, const char* name = "Tag") {
        return "<PropertyDefs><PropertyDef><Name>" + std::string(name) + "</Name>\n<PropertyType>" + type +
               "</PropertyType></PropertyDef></PropertyDefs>\n";
    };
    const auto single = [&](const std::string& type, const std::string& unit = "LENGTHUNIT") {
        return property("<TypePropertySingleValue><DataType type='" + type + "'/><UnitType type='" + unit +
                        "'/></TypePropertySingleValue>");
    };
    const std::string wall = ofClass("IfcWall"), tag = single("IfcLengthMeasure");
    const Case cases[] = {
        {set(wall + tag), ""},
        {set(ofClass("IfcWall/SHEAR") + tag, "document", "IFC4"), ""},
        {set(wall + tag + "<Whatever/>\n<PropertDef/>"), "7 unknown-element: did you mean \"PropertyDef\"?"},
        {set(wall), "1 no-entries"},
        {set(wall + tag, "Pset_Wall"), "2 file-name"},
        {set(tag), "1 no-classes, 1 class-missing"},
        {set("<ApplicableClasses>\n<ClassName/>\n<ClassName>IfcWal/SHEAR</ClassName>\n<ClassName>/IfcWall</ClassName>"
             "</ApplicableClasses>\n" +
             tag + "<Name/>"),
         "4 missing-value, 5 unknown-entity: did you mean \"IFCWALL\"?, 6 unknown-entity: did you mean \"IFCWALL\"?, "
         "6 class-with-schema, 9 missing-value"},
        // What models are judged by, against the release that the definition is for.
        {set(ofClass("IfcWall/SHEER") + tag, "document", "IFC4"), "3 predefined-type-unknown: did you mean \"SHEAR\"?"},
        {set(ofClass("IfcWall/Garden wall") + tag, "document", "IFC4"), ""},
        {set(ofClass("IfcFan/CENTRIFUGAL") + tag, "document", "IFC4"), "3 predefined-type-unknown"},
        {set(ofClass("IfcPump") + tag, "document", "2x3 TC1"), ""},
        {set(ofClass("IfcGeographicElement") + tag, "document", "IFC2X3"),
         "1 class-missing, 3 unknown-entity: IFC4 has it"},
        {set(ofClass("IfcGeographicElement") + tag, "document", "IFC2X3, IFC4x3"), ""},
        // A draft has no definitions of its own.
        {set(ofClass("IfcFacilityPartCommon") + tag, "document", "IFC4X3_RC1"), ""},
        {set(wall + tag, "document", "IFC5"), "1 unknown-release"},
        {set(wall + single("IfcLenghtMeasure")), "4 type-unknown: did you mean \"IFCLENGTHMEASURE\"?"},
        // For no release in particular, what none of them has is told.
        {set(wall + single("IfcLabl") + property("<TypePropertyReferenceValue reftype='IfcCalendarDate'/>", "Day")),
         "4 type-unknown: did you mean \"IFCLABEL\"?"},
        {set(wall + property("<TypePropertyReferenceValue reftype='IfcCalendarDate'/>"), "document", "IFC4"),
         "4 type-unknown"},
        {set(wall + single("IfcLengthMeasure", "LENGHTUNIT")), "4 unit-unknown: did you mean \"LENGTHUNIT\"?"},
        {set(wall + single("IfcLengthMeasure", "AREAUNIT")), "4 unit-mismatch"},
        {set(wall + single("IfcLengthMeasure", "IFCLENGTHMEASURE")), "4 unit-is-measure"},
        {set(wall + single("IfcSoundPowerLevelMeasure", ""), "document", "IFC2X3"), "4 type-unknown, 5 unit-missing"},
        {set(wall + single("IfcSoundPowerLevelMeasure", "")), "5 unit-missing"},
        {set(wall + property("<TypeComplexProperty name='Use'>\n<PropertyDef><Name>Part</Name><PropertyType>"
                             "<TypePropertySingleValue><DataType type='IfcLabl'/></TypePropertySingleValue>"
                             "</PropertyType></PropertyDef></TypeComplexProperty>")),
         "4 type-unknown: did you mean \"IFCLABEL\"?"},
        {set(wall + property("<TypePropertyReferenceValue reftype='IfcWall'/>")), "4 type-unknown"},
        {set(wall + property("<TypePropertyReferenceValue reftype='IfcMaterial'/>")), ""},
        {set(wall + property("<TypePropertyEnumeratedValue><EnumList name='E'>\n<EnumItem>A</EnumItem>\n"
                             "<EnumItem>A</EnumItem></EnumList></TypePropertyEnumeratedValue>")),
         "4 enumerator-repeated"},
        {set(wall + property("<TypePropertyEnumeratedValue><EnumList name='E'>\n<EnumItem>A</EnumItem></EnumList>\n"
                             "<ConstantList><ConstantDef><Name>A</Name></ConstantDef>\n"
                             "<ConstantDef><Name>B</Name></ConstantDef></ConstantList></TypePropertyEnumeratedValue>")),
         "4 enumerators-differ, 7 constant-names: list them as EnumItem alone"},
        {"<PropertySetDef templatetype='PSET_TYPEDRIVEN'>\n<Name>document</Name>" + wall + tag + "</PropertySetDef>",
         "1 template-unknown"},
        {set(ofClass("IFCSHAREDBLDGELEMENTS/IfcBeam") + tag), "3 unknown-entity, 3 class-with-schema"}};
    for (const Case& expected : cases) expect("definition", expected);

    // Any root will do for the services, but not for models.
    const std::string path = folder.file("document.xml", "<Set><Name>document</Name>\n" + wall + tag + "</Set>");
    EXPECT_EQ(findingsOf(check(path, Findings, {"--kind", "definition"})["files"][0]), "1 definition-unreadable");
    EXPECT_THAT(text(set(wall + single("IfcLabell"))),
                HasSubstr("document.xml:4: error: type \"IfcLabell\" of property \"Tag\": any will do; did you mean "
                          "\"IFCLABEL\"? [type-unknown]\n"));
}

TEST_F(ResourcesCheckTest, TablesOfDefinitions) {
    const std::string source = "  source a.xml " + std::string(64, '0') + "\n";
    const auto table = [&](const std::string& facts, const std::string& release = "IFC4") {
        return "# made\nrelease " + release + "\n\nproperty-set Pset_A\n" + source +
               "  class IfcWall\n\nproperty-set Pset_B\n" + source + facts;
    };
    const std::string right = "  class IfcWall SHEAR\n  single Tag IfcLengthMeasure unit LENGTHUNIT\n";
    const Case cases[] = {
        {table(right), ""},
        {table(right, "IFC4X4"), "2 unknown-release"},
        {table(right + "  fault 3 blanks \"odd\"\n"), ""},
        {table(right + "  fault 3 oddity \"odd\"\n"), "8 unknown-fault"},
        {table(right + "  single TAG IfcLabel\n"), "8 duplicate-key"},
        {table("  class IfcWal\n  single Tag IfcLabl\n"),
         "8 class-unknown, 8 class-missing, 8 type-unknown: did you mean \"IFCLABEL\"?"},
        // Told by the table already.
        {table("  class IfcWall SHEER\n"), "8 predefined-type-unknown: did you mean \"SHEAR\"?"},
        {table("  fault 0 predefined-type-unknown \"predefined type \\\"SHEER\\\" of class \\\"IfcWall\\\": objects "
               "whose object type is that are meant\"\n  class IfcWall SHEER\n"),
         ""},
        {table("  odd\n"), "10 table-unreadable"},
        {"release IFC4 now\n", "1 table-unreadable"}};
    for (const Case& expected : cases) expect("definition-table", expected);
    EXPECT_THAT(text(table(right)), EndsWith("Definition table: 1 file, 2 entries, no findings\n"));
}

TEST_F(ResourcesCheckTest, JudgesTheFilesThatAreUsed) {
    const std::string type = "<IfcPLMMapping Name='T'>" + line("a", "P") + "</IfcPLMMapping>\n";
    const std::string first = folder.file("site/IfcPLMAttributesMapping/a.xml", plm(type));
    const std::string second = folder.file("base/IfcPLMAttributesMapping/b.xml", plm(type));
    folder.file("base/IfcPLMAttributesMapping/a.xml", "hidden");
    folder.file("site/xcad/aec.xml", plm(type)); // a file of another kind in the place
    json configuration{{"collection_standard", {"site"}},
                       {"default_collection_standard", {"base"}},
                       {"runtime_view", json::array()},
                       {"setup_data", {{"QORAECDataExchangeResources|IFCPLMAttributesMapping", {first}}}}};
    const std::string path = folder.file("velkor.json", configuration.dump());
    const std::vector<std::string> words{"resources", "check", "--config", path};
    const Outcome page = runHost(words);
    EXPECT_EQ(page.status, Findings);
    EXPECT_THAT(page.err, IsEmpty());
    EXPECT_THAT(page.out,
                AllOf(HasSubstr("b.xml:2: warning: \"a\" of \"T\" has a line in line 2 of " + first + " already, "),
                      HasSubstr("aec.xml:2: warning: IfcPLMMapping is no element that is read [unknown-element]\n"),
                      HasSubstr("\nIFC custom mapping: no file that can be read; "),
                      HasSubstr("\nPLM attributes mapping: 2 files, 2 entries, 0 errors, 1 warning\n")));
    // Each by itself has no fault.
    EXPECT_EQ(runHost({"resources", "check", first, second}).status, Done);

    configuration["setup_data"]["IFCDataExchangeResources|IFCDataExchange"] = "gone.xml";
    folder.file("velkor.json", configuration.dump());
    const Outcome gone = runHost(words);
    EXPECT_EQ(gone.status, Unreadable);
    EXPECT_EQ(gone.err, "velkor: " + (folder / "gone.xml") + ": cannot be read: No such file or directory\n");
    EXPECT_THAT(gone.out, HasSubstr("[duplicate-key]"));

    // Nothing to judge is no success.
    folder.file("velkor.json", R"({"runtime_view": []})");
    EXPECT_EQ(runHost(words).status, Unreadable);
    folder.file("velkor.json", "{");
    const Outcome wrong = runHost(words);
    EXPECT_EQ(wrong.status, Unreadable);
    EXPECT_EQ(std::ranges::count(wrong.err, '\n'), 1) << "told once: " << wrong.err;
    EXPECT_THAT(wrong.out, IsEmpty());
}

TEST_F(ResourcesCheckTest, FilesThatAreNone) {
    json file = check(folder.file("broken.xml", "<IfcMapping>\n<a></b>"), Findings)["files"][0];
    EXPECT_EQ(file["kind"], nullptr);
    EXPECT_EQ(file["findings"][0]["code"], "not-well-formed");
    EXPECT_EQ(file["findings"][0]["line"], 2);
    EXPECT_THAT(file["findings"][0]["message"], HasSubstr("mismatch"));
    file = check(folder.file("page.xml", "<html/>"), Findings)["files"][0];
    EXPECT_EQ(findingsOf(file), "1 kind-unknown: name it with --kind");
    file = check(folder / "page.xml", Findings, {"--kind", "custom-mapping"})["files"][0];
    EXPECT_EQ(findingsOf(file), "1 unknown-element");
    EXPECT_EQ(runHost({"resources", "check", folder / "gone.xml"}).status, Unreadable);
    // A pipe is not waited for, and a file that breaks off is no XML with a fault.
    const std::string pipe = folder / "pipe.xml";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const auto& [path, reason] : {std::pair{folder.path, "is a folder, expected a file"},
                                       {pipe, "is no regular file"},
                                       {std::string("/proc/self/mem"), "Input/output error"}}) {
        for (const auto& words :
             {std::vector<std::string>{"resources", "check", path}, {"options", "--config", path}}) {
            const Outcome outcome = runHost(words);
            EXPECT_EQ(outcome.err, "velkor: " + path + ": cannot be read: " + reason + "\n");
            EXPECT_EQ(outcome.status, Unreadable);
        }
    }
    const Outcome piped = runHost({"resources", "check", "-"}, false, {}, "<IfcMapping>\n<a></b>");
    EXPECT_EQ(piped.status, Findings);
    EXPECT_THAT(piped.out, StartsWith("-:2: error: "));
    EXPECT_THAT(runHost({"options", "--config", "-"}, false, {}, "\n{").err, StartsWith("velkor: -:2:"));
    EXPECT_EQ(runHost({"resources", "check", "--kind", "aec"}).status, BadUsage);
    EXPECT_EQ(runHost({"resources", "check", "a.xml", "--kind", "house"}).status, BadUsage);
}

TEST_F(ResourcesCheckTest, FindsNothingInWhatIsShipped) {
    const Outcome outcome = runHost({"resources", "check", "--format", "json"}, false, shippedResources);
    EXPECT_EQ(outcome.status, Done) << outcome.out;
    const json answered = json::parse(outcome.out, nullptr, false);
    std::set<std::string> judged, shipped;
    for (const json& file : answered["files"]) {
        EXPECT_GT(file["entries"], 0) << file["path"];
        judged.insert(file["path"]);
    }
    // Some of it is linked there.
    constexpr auto followed = std::filesystem::directory_options::follow_directory_symlink;
    for (const auto& file : std::filesystem::recursive_directory_iterator(shippedResources, followed)) {
        if (file.path().extension() == ".xml") shipped.insert(file.path());
    }
    EXPECT_EQ(judged, shipped);
    EXPECT_GE(shipped.size(), 2000U) << "of every release";
    std::size_t tables = 0;
    for (const auto& table : std::filesystem::directory_iterator(VELKOR_SOURCE_DIR "/resources/propertysets")) {
        const json judgedTable = check(table.path(), Done)["files"][0];
        EXPECT_EQ(judgedTable["kind"], "definition-table");
        EXPECT_GT(judgedTable["entries"], 300) << table.path();
        ++tables;
    }
    EXPECT_EQ(tables, 5U);
}

} // namespace velkor::host
