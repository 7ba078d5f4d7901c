#include "ConfigurationTestSupport.h"
#include "Matchers.h"

#include <algorithm>
#include <iterator>

namespace velkor::host {

using nlohmann::json;
using testing::UnorderedElementsAreArray;

namespace {

std::string document(const std::string& name) {
    std::ifstream file(VELKOR_SOURCE_DIR "/docs/" + name);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> keysOf(const json& object) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : object.items()) keys.push_back(key);
    return keys;
}

} // namespace

class ConfigurationTest : public ConfiguredTest {};

TEST_F(ConfigurationTest, NoCommandRunsWithAWrongConfiguration) {
    const TemporaryFile wrong("{\"colour\": 1, \"runtime_view\": 2}"), right("{}"), large(std::string(1 << 21, ' '));
    const std::string house = example("house-ifc2x3.ifc");
    const std::vector<std::vector<std::string>> commands = {
        {"report", house}, {"check", house}, {"units", house},    {"dictionary", "list"},  {"dictionary", "show", "4"},
        {"options"},       {"resources"},    {"validate", house}, {"guid", "check", house}};
    for (std::vector<std::string> words : commands) {
        words.insert(words.end(), {"--config", wrong.path()});
        const Outcome outcome = runHost(words);
        // Bad usage, here for want of a list, comes before a wrong configuration.
        EXPECT_EQ(outcome.status, words.front() == "dictionary" && words[1] == "show" ? BadUsage : Unreadable);
        EXPECT_THAT(outcome.out, IsEmpty());
        EXPECT_THAT(outcome.err, StartsWith("velkor: "));
    }
    const auto faults = [](const std::string& path) { return runHost({"dictionary", "list", "--config", path}).err; };
    EXPECT_EQ(faults(wrong.path()),
              "velkor: " + wrong.path() +
                  ":1: \"colour\": unknown key; expected one of \"settings\", \"conversion_options\", \"setup_data\", "
                  "\"collection_standard\", \"default_collection_standard\", \"runtime_view\", "
                  "\"definitions_release\", \"custom_property_sets\", \"knowledge_types\"\n"
                  "velkor: " +
                  wrong.path() + ":1: \"runtime_view\": expected a list of texts, found the number 2\n");
    EXPECT_EQ(faults("/no/such"), "velkor: /no/such: cannot be read: No such file or directory\n");
    EXPECT_THAT(faults(large.path()), HasSubstr("cannot be read: it is larger than 1 MiB\n"));

    set(configurationVariable, wrong.path());
    EXPECT_THAT(runHost({"units", house}).err, HasSubstr("velkor: VELKOR_CONFIG names that configuration\n"));
    EXPECT_EQ(runHost({"units", house, "--config", right.path()}).status, Done) << "the option is stronger";
    set(configurationVariable, "");
    EXPECT_EQ(runHost({"units", house}).status, Done);
}

TEST_F(ConfigurationTest, DocumentsAreThoseOfTheTable) {
    const std::string page = document("configuration.md");
    const auto isThere = [&](const ConfigurationItem& item) {
        const std::string row = std::string("| `") + item.name + "` | " + name(item.place) + " | " + item.kind + " | " +
                                item.meaning + " |";
        EXPECT_THAT(page, HasSubstr('\n' + row + '\n'));
    };
    std::ranges::for_each(programVariables, isThere);
    std::ranges::for_each(configurationItems, isThere);
    const json schema = json::parse(document("configuration.schema.json"));
    const auto knows = [](const json& object, ConfigurationPlace place) {
        EXPECT_THAT(keysOf(object["properties"]), UnorderedElementsAreArray(namesAt(place)));
        EXPECT_EQ(object["additionalProperties"], false);
    };
    knows(schema, ConfigurationPlace::Key);
    knows(schema["properties"]["knowledge_types"]["items"], ConfigurationPlace::KnowledgeTypeKey);
    EXPECT_EQ(schema["$schema"], "https://json-schema.org/draft/2020-12/schema");

    const std::string path = VELKOR_SOURCE_DIR "/docs/configuration-example.json";
    EXPECT_EQ(answer({"options", "--config", path})["configuration"], path);
    EXPECT_THAT(keysOf(json::parse(document("configuration-example.json"), nullptr, true, true)),
                UnorderedElementsAreArray(namesAt(ConfigurationPlace::Key)))
        << "the example shows every section";
}

} // namespace velkor::host
