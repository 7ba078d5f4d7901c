#include "ConfigurationTestSupport.h"
#include "Matchers.h"

namespace velkor::host {

using nlohmann::json;

namespace {

constexpr const char* profileVariable = QORIFCOptions::_envvar_exchange_profile;
constexpr const char* exposureVariable = QORIFCOptions::_envvar_structure_exposure;
constexpr const char* geometryVariable = QORIFCOptions::_envvar_geometry_mode;
constexpr const char* attributesVariable = QORIFCOptions::_envvar_no_attributes;

using Variables = std::map<std::string, std::string>;

json options(const std::string& configuration) {
    return answer({"options", "--config", configuration});
}

json option(const json& answered, const std::string& name) {
    for (const json& candidate : answered["options"]) {
        if (candidate["name"] == name) return candidate;
    }
    ADD_FAILURE() << "no option " << name;
    return {};
}

std::string withSettings(const json& settings, const json& conversionOptions = json::object()) {
    return json{{"settings", {{"IFC", settings}}}, {"conversion_options", conversionOptions}}.dump();
}

// "name value meaning, origin", then in the order of the members whatever there is.
std::string inOneLine(const json& option) {
    std::string line = option["name"].get<std::string>() + ' ' + option["value"].dump() + ' ' +
                       option["meaning"].get<std::string>() + ", " + option["origin"].get<std::string>();
    for (const std::string source : option["sources"]) line += ' ' + source;
    if (option["derived"]) line += " derived";
    if (option["forced"]) line += " forced";
    for (const std::string remark : option["remarks"]) line += "; " + remark;
    return line;
}

} // namespace

class OptionsCommandTest : public ConfiguredTest {
protected:
    void setAll(const Variables& given) {
        clear();
        for (const auto& [name, value] : given) set(name, value);
    }
};

TEST_F(OptionsCommandTest, TellsValueAndOrigin) {
    struct Case {
        Variables variables;
        std::string configuration;
        std::string line;
    };
    const std::string none = "{}";
    const std::string feature = withSettings(json::object(), {{"TRANSFERALLINTOONEREP", "transferasfeaturerep"}});
    const std::string off = withSettings(json::object(), {{QORIFCOptionsFromXCAD::DisableVersionMappingOption, "YES"}});
    const std::string both = withSettings({{"ImportProfileMode", 2}},
                                          {{QORIFCOptionsFromXCAD::TransferAllOption, "AllToOneTessellatedRep"}});
    const std::string settings =
        withSettings({{"ImportProfileMode", 2}, {"FullyExposed", 1}, {"ImportRepPreferedMode", 0}});
    const Variables profile0{{profileVariable, "0"}}, profile1{{profileVariable, "1"}},
        profile2{{profileVariable, "2"}};
    const Variables oldPair{{exposureVariable, "0"}, {geometryVariable, "5"}};
    const Case cases[] = {
        {{}, none, "exchange_profile 0 tessellated, fallback"},
        {{}, none, "geometry_mode 1 tessellated, fallback"},
        {{}, none, "structure_exposure 0 not exposed, fallback"},
        {{}, settings, "exchange_profile 2 feature, setting ImportProfileMode"},
        {{}, settings, "geometry_mode 0 other, setting ImportRepPreferedMode"},
        {{}, settings, "structure_exposure 1 fully exposed, setting FullyExposed"},
        {{}, feature, "exchange_profile 2 feature, run_time TRANSFERALLINTOONEREP"},
        {{}, feature, "geometry_mode 1 tessellated, fallback"},
        {{}, both, "exchange_profile 0 tessellated, run_time TransferAllIntoOneRep"},
        {profile2, none, "exchange_profile 2 feature, environment ProfilePrefered_FORCETST forced"},
        {profile2, settings, "geometry_mode 2 feature, environment ProfilePrefered_FORCETST derived"},
        {profile1, settings, "geometry_mode 0 other, setting ImportRepPreferedMode"},
        {profile0, settings, "structure_exposure 0 not exposed, environment ProfilePrefered_FORCETST derived"},
        {{{profileVariable, "7"}},
         none,
         "exchange_profile 0 tessellated, environment ProfilePrefered_FORCETST forced; "
         "ProfilePrefered_FORCETST is 7, expected 0 to 2; 0 is used"},
        {{{geometryVariable, "-1"}},
         none,
         "geometry_mode 1 tessellated, environment IfcGeometryMode_FORCETST forced; "
         "IfcGeometryMode_FORCETST is -1, expected 0 to 2; 1 is used"},
        {{{profileVariable, "two"}},
         feature,
         "exchange_profile 2 feature, run_time TRANSFERALLINTOONEREP; "
         "ProfilePrefered_FORCETST holds no number and is ignored"},
        {{},
         withSettings({{"FullyExposed", 2}}),
         "structure_exposure 0 not exposed, fallback; "
         "the setting FullyExposed is 2, expected 0 to 1; 0 is used"},
        // The older variables.
        {{{exposureVariable, "1"}, {geometryVariable, "2"}},
         none,
         "exchange_profile 1 fully exposed, environment IfcFullyExposed_FORCETST forced"},
        {oldPair, feature,
         "exchange_profile 2 feature, environment IfcFullyExposed_FORCETST IfcGeometryMode_FORCETST forced"},
        {{{exposureVariable, "0"}}, settings, "exchange_profile 2 feature, setting ImportProfileMode"},
        {{{attributesVariable, ""}}, none, "attributes 0 not exchanged, environment IfcDONOTImportAttributes"},
        {{}, none, "attributes 1 exchanged, fallback"},
        {{}, none, "custom_property_sets 1 required, fallback"},
        {{}, none, "version_mapping 1 on, fallback"},
        {{}, off, "version_mapping 0 off, run_time IFC_Disable_Version_Mapping"},
    };
    for (const Case& expected : cases) {
        setAll(expected.variables);
        const TemporaryFile configuration(expected.configuration);
        const std::string name = expected.line.substr(0, expected.line.find(' '));
        EXPECT_EQ(inOneLine(option(options(configuration.path()), name)), expected.line)
            << json(expected.variables) << expected.configuration;
        EXPECT_EQ(variables(), expected.variables) << "the environment is as it was";
    }
}

// Whatever is set: with nothing but the sources that are named, the value is the same.
TEST_F(OptionsCommandTest, TheNamedSourcesExplainTheValue) {
    const json settings{{"ImportProfileMode", 2}, {"FullyExposed", 1}, {"ImportRepPreferedMode", 9}};
    const json feature{{QORIFCOptionsFromXCAD::TransferAllOption, "TransferAsFeatureRep"}};
    const auto only = [](const json& all, const json& names) {
        json kept = json::object();
        for (const auto& [name, value] : all.items()) {
            if (std::ranges::find(names, json(name)) != names.end()) kept[name] = value;
        }
        return kept;
    };
    constexpr const char* values[] = {nullptr, "0", "1", "2", "7", "x"};
    // Most of what remains of them is the same.
    std::map<std::string, json> known;
    const auto ask = [&](const json& given, const std::string& configuration) {
        json& all = known[given.dump() + configuration];
        if (!all.is_null()) return all;
        setAll(given.get<Variables>());
        return all = options(TemporaryFile(configuration).path());
    };
    std::size_t checked = 0;
    for (std::size_t i = 0; i < std::size(values) * std::size(values) * std::size(values); ++i) {
        json given = json::object();
        std::size_t digits = i;
        for (const char* variable : {profileVariable, exposureVariable, geometryVariable}) {
            if (const char* value = values[digits % std::size(values)]) given[variable] = value;
            digits /= std::size(values);
        }
        const json conversion = given.size() % 2 == 0 ? feature : json::object();
        const json all = ask(given, withSettings(settings, conversion));
        for (const json& full : all["options"]) {
            const json& sources = full["sources"];
            const json alone =
                option(ask(only(given, sources), withSettings(only(settings, sources), only(conversion, sources))),
                       full["name"]);
            EXPECT_EQ(alone["value"], full["value"]) << given << full;
            EXPECT_EQ(alone["forced"], full["forced"]) << given << full;
            EXPECT_EQ(sources.empty(), full["origin"] == "fallback") << given << full;
            ++checked;
        }
    }
    EXPECT_EQ(checked, 6U * 6U * 6U * 6U);
}

TEST_F(OptionsCommandTest, TellsWhatBecameOfConversionOptions) {
    const TemporaryFile configuration(
        R"({"conversion_options": {"WriteXCADOptions": "yes", "ifc_disable_version_mapping": "yes",
            "TransferAllIntoOneRep": "TransferAsFeatureRep", "Colour": "red", "TransferAllIntoONEREP": "Solid"}})");
    const auto outcomes = [&] {
        std::vector<std::string> result;
        const json all = options(configuration.path());
        for (const json& given : all["conversion_options"])
            result.push_back(given["name"].get<std::string>() + ": " + given["outcome"].get<std::string>());
        return result;
    };
    std::vector<std::string> expected = {"WriteXCADOptions: left_out", "ifc_disable_version_mapping: kept",
                                         "TransferAllIntoOneRep: acted_upon", "Colour: kept",
                                         "TransferAllIntoONEREP: kept"};
    EXPECT_EQ(outcomes(), expected);
    set(profileVariable, "1");
    expected[2] = "TransferAllIntoOneRep: overruled";
    EXPECT_EQ(outcomes(), expected);
}

TEST_F(OptionsCommandTest, WritesAPageForPeople) {
    const TemporaryFile configuration(
        R"({"settings": {"IFC": {"ImportRepPreferedMode": 3}}, "conversion_options": {"Col\u001bour": "red"}})");
    set(profileVariable, "1");
    const Outcome page = runHost({"options", "--config", configuration.path()});
    EXPECT_EQ(page.status, Done);
    EXPECT_THAT(page.err, IsEmpty());
    EXPECT_THAT(
        page.out,
        AllOf(HasSubstr("configuration " + configuration.path() + "\n"),
              ContainsRegex("\nexchange profile +1  fully exposed +environment: ProfilePrefered_FORCETST +yes\n"),
              HasSubstr("environment: ProfilePrefered_FORCETST (derived from the forced profile)  no\n"),
              HasSubstr("\ngeometry mode: the setting ImportRepPreferedMode is 3, expected 0 to 2; 1 is used\n"),
              ContainsRegex("\nCol.u[0-9a-f]{4}our +red +kept\n")));
    EXPECT_THAT(runHost({"options"}).out, HasSubstr("no configuration\n"));

    const json listed = answer({"options", "--list-variables"})["variables"];
    EXPECT_EQ(listed.size(), std::size(programVariables) + std::size(configurationItems));
    EXPECT_THAT(runHost({"options", "--list-variables"}).out,
                ContainsRegex("\nruntime_view +configuration key +list of folders +the folders "));
}

} // namespace velkor::host
