#include "ConfigurationTestSupport.h"
#include "Matchers.h"

#include <sys/wait.h>

namespace velkor::host {

using nlohmann::json;

namespace {

constexpr const char* definitions = "/resources/standard/IFCPsetQset/";

Outcome validate(const std::string& path, std::vector<std::string> more = {}) {
    more.insert(more.begin(), {"validate", path});
    return runHost(more, false, shippedResources);
}

json validation(const std::string& path, std::vector<std::string> more = {}) {
    more.insert(more.end(), {"--format", "json"});
    return json::parse(validate(path, more).out, nullptr, false);
}

// By the program itself, in a process of its own: the service keeps the definitions that it sees first.
Outcome validateApart(const std::string& path, const std::string& configuration) {
    const TemporaryFolder folder;
    const std::string command = VELKOR_BIN_DIR "/velkor validate '" + path + "' --config '" + configuration + "' > '" +
                                (folder / "out") + "' 2> '" + (folder / "err") + '\'';
    const int status = std::system(command.c_str());
    EXPECT_TRUE(WIFEXITED(status)) << command;
    const auto text = [&](const char* name) {
        std::ifstream file(folder / name);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    return {WEXITSTATUS(status), text("out"), text("err")};
}

// Instances of a model by what stands behind "=", with ids from 1.
std::string instances(const std::vector<std::string>& texts) {
    std::string data;
    for (std::size_t i = 0; i < texts.size(); ++i) data += '#' + std::to_string(i + 1) + '=' + texts[i] + ";\n";
    return data;
}

std::string propertySet(const std::string& name, const std::string& properties) {
    return "IFCPROPERTYSET('',$," + name + ",$,(" + properties + "))";
}

std::string object(const std::string& keyword, int moreAttributes, const std::string& name = "$") {
    std::string text = keyword + "('',$," + name;
    for (int i = 0; i < moreAttributes; ++i) text += ",$";
    return text + ')';
}

constexpr const char* reference = "IFCPROPERTYSINGLEVALUE('Reference',$,$,$)";

std::string defines(const std::string& objects, const std::string& sets) {
    return "IFCRELDEFINESBYPROPERTIES('',$,$,$,(" + objects + ")," + sets + ')';
}

class ValidateCommandTest : public ConfiguredTest {};

} // namespace

TEST_F(ValidateCommandTest, FindsWhatIsWrongWithItsPlaceAndAHint) {
    const TemporaryModel model(
        "IFC4",
        instances({object("IFCWALL", 6, "'South \\X\\FC'"), object("IFCWALLSTANDARDCASE", 6),
                   "IFCPROPERTYSINGLEVALUE('FireRatng',$,$,$)", "IFCPROPERTYSINGLEVALUE('ISEXTERNAL',$,$,$)",
                   "IFCCOMPLEXPROPERTY('Weather',$,'',(#4,#4))", propertySet("'Pset_WallCommon'", "#3,#4,#5"),
                   defines("#1,#2", "#6"), propertySet("'Pset_DoorCommon'", "#4"), defines("#2,#1", "#8"),
                   propertySet("'Pset_walCommon'", "#3"), defines("#1", "#10"), "IFCQUANTITYLENGTH('Hight',$,$,1.,$)",
                   "IFCELEMENTQUANTITY('',$,'Qto_WallBaseQuantities',$,$,(#12))",
                   propertySet("'Acme \\X\\1B[2J'", "#3"), propertySet("'Acme'", "#3,#4"), propertySet("$", "#3")}));
    const std::string wall = "IFCWALL #1 \"South \u00FC\"";
    const std::pair<std::string, std::string> lines[] = {
        {":13: error: #6: ", "\"Pset_WallCommon\" of " + wall +
                                 " and 1 other object has no property \"FireRatng\"; did you mean \"FireRating\"? "
                                 "[property-unknown]"},
        {":13: error: #6: ",
         "\"Pset_WallCommon\" of " + wall + " and 1 other object has no property \"Weather\" [property-unknown]"},
        {":15: error: #8: ", "\"Pset_DoorCommon\" does not apply to IFCWALLSTANDARDCASE #2 and 1 other object; "
                             "expected IfcDoor [set-not-applicable]"},
        {":17: error: #10: ", "expected a standard set, found \"Pset_walCommon\" of " + wall +
                                  "; did you mean \"Pset_WallCommon\"? [set-unknown]"},
        {":20: error: #13: ",
         "\"Qto_WallBaseQuantities\" has no quantity \"Hight\"; did you mean \"Height\"? [property-unknown]"},
        {": ", "5 findings; 3 of 7 sets and 5 of 10 properties and quantities checked"},
        {": ", "no definition for sets without a name, Acme, Acme \\u001b[2J"}};
    const Outcome outcome = validate(model.path());
    EXPECT_EQ(outcome.status, Findings);
    const std::size_t table = outcome.out.find("\n\n") + 1, end = outcome.out.find("\n\n", table) + 2;
    std::string text;
    for (const auto& [place, message] : lines) text += model.path() + place + message + '\n';
    EXPECT_EQ(outcome.out.substr(0, table) + outcome.out.substr(end), text);
    EXPECT_THAT(outcome.err, IsEmpty());

    const json answered = validation(model.path());
    EXPECT_EQ(answered["release"], "IFC4");
    EXPECT_EQ(answered["sets"], json({{"total", 7}, {"checked", 3}, {"custom", 0}, {"not_checked", 3}}));
    EXPECT_EQ(answered["properties"], json({{"total", 10}, {"checked", 5}}));
    EXPECT_EQ(answered["without_definition"][0], json({{"set", ""}, {"count", 1}}));
    EXPECT_EQ(answered["total"], 5);
    json first = answered["findings"][0];
    first.erase("message");
    first.erase("offset");
    EXPECT_EQ(first, json({{"severity", "error"},
                           {"line", 13},
                           {"instance", 6},
                           {"code", "property-unknown"},
                           {"set", "Pset_WallCommon"},
                           {"object", {{"instance", 1}, {"entity", "IFCWALL"}, {"name", "South \u00FC"}}},
                           {"others", 1},
                           {"property", "FireRatng"},
                           {"nearest", "FireRating"}}));
    EXPECT_EQ(answered["findings"][4]["object"], nullptr) << "a set that nothing has";
    EXPECT_EQ(answered["findings"][1]["nearest"], nullptr);

    const Outcome few = validate(model.path(), {"--limit", "2"});
    EXPECT_EQ(few.status, Findings);
    EXPECT_THAT(few.out, HasSubstr(": 5 findings, the first 2 are listed (--limit shows more); 3 of 7 sets"));
    EXPECT_EQ(std::ranges::count(few.out.substr(0, few.out.find("\n\n") + 1), '\n'), 2);
    EXPECT_EQ(validation(model.path(), {"--limit", "0"})["total"], 5);
}

TEST_F(ValidateCommandTest, TellsWhatSetsComeToAndALinePerFinding) {
    const TemporaryModel model(
        "IFC4",
        instances({object("IFCWALL", 6, "'=A, \"B\"'"), object("IFCWALL", 6), "IFCPROPERTYSINGLEVALUE('-x',$,$,$)",
                   "IFCPROPERTYSINGLEVALUE('FireRating',$,IFCTEXT('F 90'),$)",
                   "IFCPROPERTYSINGLEVALUE('Reference',$,$,$)", propertySet("'Pset_WallCommon'", "#3,#4,#5"),
                   defines("#1,#2", "#6"), propertySet("'Pset_WallCommon'", "#4"), propertySet("'Acme'", "#4,#5")}));
    // Of eleven properties each set has one with a value, of the wrong type.
    const std::string summary = "set              sets  objects  filled  missing  wrong\n"
                                "Acme                1        0       1        -      0\n"
                                "Pset_WallCommon     2        2       2       20      2\n";
    EXPECT_THAT(validate(model.path()).out,
                HasSubstr(" [value-type]\n\n" + summary + '\n' + model.path() + ": 3 findings; "));
    EXPECT_THAT(validate(model.path(), {"--ignore", "property-unknown,value-type"}).out,
                AllOf(StartsWith("set "), HasSubstr(": no findings; ")));
    const json answered = validation(model.path());
    EXPECT_EQ(answered["defined_by"], "IFC4");
    EXPECT_EQ(answered["summaries"],
              json::parse(R"([{"set": "Acme", "defined": false, "sets": 1, "objects": 0, "filled": 1, "missing": null,
                               "wrong": 0},
                              {"set": "Pset_WallCommon", "defined": true, "sets": 2, "objects": 2, "filled": 2,
                               "missing": 20, "wrong": 2}])"));

    const std::string head = "line,instance,severity,code,set,object,entity,object_name,others,property,nearest,"
                             "message\r\n";
    EXPECT_EQ(validate(model.path(), {"--format", "csv", "--only", "property-unknown"}).out,
              head + "13,6,error,property-unknown,Pset_WallCommon,1,IFCWALL,\"'=A, \"\"B\"\"\",1,'-x,,\"\"\"Pset_"
                     "WallCommon\"\" of IFCWALL #1 \"\"=A, \"\"B\"\"\"\" and 1 other object has no property "
                     "\"\"-x\"\"\"\r\n");
    const Outcome none = validate(model.path(), {"--format", "csv", "--limit", "0"});
    EXPECT_EQ(none.out, head);
    EXPECT_EQ(none.err, "velkor: the first 0 of 3 findings are listed (--limit shows more)\n");
    EXPECT_EQ(validate(model.path(), {"--only", "where-rule"}).status, BadUsage);
}

TEST_F(ValidateCommandTest, WhatManySetsShareIsNotRepeatedWithoutMeasure) {
    // One property with a name beyond all measure in 2,000 sets of one such object.
    const std::string longName = '\'' + std::string(100'000, 'x') + '\'';
    std::vector<std::string> texts{"IFCPROPERTYSINGLEVALUE(" + longName + ",$,$,$)", object("IFCDOOR", 10, longName)};
    std::string sets;
    for (int i = 0; i < 2000; ++i) {
        texts.push_back(propertySet("'Pset_WallCommon'", "#1"));
        sets += (sets.empty() ? "#" : ",#") + std::to_string(texts.size());
    }
    texts.push_back(defines("#2", "IFCPROPERTYSETDEFINITIONSET((" + sets + "))"));
    const TemporaryModel model("IFC4", instances(texts));
    const Outcome outcome = validate(model.path());
    EXPECT_THAT(outcome.out, AllOf(HasSubstr("IFCDOOR #2 \"(100,002 bytes)\" has no property \"(100,002 bytes)\" ["),
                                   HasSubstr(": 5,999 findings; ")));
    EXPECT_LT(outcome.out.size(), 2'000'000U);
}

TEST_F(ValidateCommandTest, ExamplesAreWithoutFindings) {
    for (const auto& [name, sets, checked] :
         {std::tuple("house-ifc2x3.ifc", 12, 7), {"pump-room-ifc4.ifc", 9, 9}, {"road-ifc4x3.ifc", 1, 1}}) {
        const Outcome outcome = validate(example(name));
        EXPECT_EQ(outcome.status, Done);
        EXPECT_THAT(outcome.out, HasSubstr('\n' + example(name) + ": no findings; " + std::to_string(checked) + " of " +
                                           std::to_string(sets) + (sets == 1 ? " set and " : " sets and ")));
    }
    EXPECT_EQ(validate("no such file").status, Unreadable);
}

TEST_F(ValidateCommandTest, AcceptsSetsOfTheUsersOwn) {
    const TemporaryModel model("IFC4", instances({reference, propertySet("'Pset_WallCommons'", "#1"),
                                                  propertySet("'acme \\X2\\00E9\\X0\\'", "#1")}));
    EXPECT_EQ(validation(model.path())["total"], 1) << "misspelled, as long as nobody says it is meant";
    const TemporaryFile configuration(R"({"custom_property_sets": ["PSET_WALLCOMMONS", "Acme É", "Acme É"]})");
    const json answered = validation(model.path(), {"--config", configuration.path()});
    EXPECT_EQ(answered["total"], 0);
    EXPECT_EQ(answered["sets"], json({{"total", 2}, {"checked", 0}, {"custom", 2}, {"not_checked", 0}}));
    EXPECT_THAT(validate(model.path(), {"--config", configuration.path()}).out, HasSubstr(": 2 sets of your own\n"));
}

TEST_F(ValidateCommandTest, ChecksByTheDefinitionsThatAreConfigured) {
    const TemporaryFolder folder;
    const std::string place = "rtv" + std::string(definitions);
    // As published: with constants, classes with a predefined type, and names in other languages.
    folder.file(place + "Pset_Flooring.xml", R"(<?xml version="1.0"?>
<PropertySetDef xmlns="http://example.org/psd"><Name>Pset_Flooring</Name>
  <ApplicableClasses><ClassName>IfcCovering/FLOORING</ClassName><ClassName /></ApplicableClasses>
  <PropertyDefs><PropertyDef><Name>HasNonSkidSurface</Name><PropertyType><ConstantList><ConstantDef><Name>NEW</Name>
    <NameAliases><NameAlias lang="de">Neu</NameAlias></NameAliases></ConstantDef></ConstantList></PropertyType>
  </PropertyDef></PropertyDefs></PropertySetDef>)");
    folder.file(place + "Pset_Broken.xml", "<PropertySetDef><Name>Pset_Broken</Name>");
    const std::string configuration = folder.file("velkor.json", R"({"runtime_view": ["rtv"]})");
    const TemporaryModel model(
        "IFC4", instances({reference, "IFCPROPERTYSINGLEVALUE('HasNonskidSurface',$,$,$)",
                           propertySet("'Pset_Flooring'", "#2"), object("IFCCOVERING", 6), defines("#4", "#3"),
                           propertySet("'Pset_Flooring'", "#1"), object("IFCWALL", 6), defines("#7", "#6"),
                           propertySet("'Pset_Broken'", "#1"), propertySet("'Pset_WallCommon'", "#1")}));
    const Outcome outcome = validateApart(model.path(), configuration);
    EXPECT_EQ(outcome.status, Unreadable) << "because of the broken definition";
    std::string text;
    for (const char* found :
         {":10: error: #3: \"Pset_Flooring\" does not apply to IFCCOVERING #4 by its predefined type; expected "
          "IfcCovering/FLOORING [set-not-applicable]\n",
          ":13: error: #6: \"Pset_Flooring\" does not apply to IFCWALL #7; expected IfcCovering/FLOORING "
          "[set-not-applicable]\n",
          ":13: error: #6: \"Pset_Flooring\" of IFCWALL #7 has no property \"Reference\" [property-unknown]\n",
          ":17: error: #10: expected a standard set, found \"Pset_WallCommon\" [set-unknown]\n"})
        text += model.path() + found;
    EXPECT_THAT(outcome.out, AllOf(StartsWith(text + "\nset "), HasSubstr(": 4 findings; 2 of 4 sets and 2 of 4 "),
                                   HasSubstr(": no definition for Pset_Broken\n")));
    EXPECT_THAT(outcome.err, HasSubstr("velkor: the definition of Pset_Broken cannot be read: " + folder.path));

    // Without any definition, nothing could be found, and that is said.
    const Outcome none = validateApart(model.path(), folder.file("none.json", R"({"runtime_view": []})"));
    EXPECT_EQ(none.status, Unreadable);
    EXPECT_THAT(none.out, IsEmpty());
    EXPECT_THAT(none.err, HasSubstr("there are no definitions of property sets to check by"));
}

} // namespace velkor::host
