// Holds the examples of docs/property-sets.md to what the command says of them.

#include "Matchers.h"
#include "TestSupport.h"
#include "velkor/propertysets/PropertySetCheck.h"
#include "velkor/text/Wording.h"

namespace velkor::host {

namespace {

std::string page() {
    std::ifstream file(VELKOR_SOURCE_DIR "/docs/property-sets.md");
    return {std::istreambuf_iterator<char>(file), {}};
}

/// What stands between two texts, from the first on.
std::string between(const std::string& text, const std::string& begin, const std::string& end) {
    const std::size_t from = text.find(begin);
    if (from == text.npos) return {};
    const std::size_t start = from + begin.size();
    return text.substr(start, text.find(end, start) - start);
}

/// What the command says of a model, up to its summary and by the name that the page has for it.
std::string findings(const std::string& text) {
    const TemporaryFile model(text);
    std::string out = runHost({"validate", model.path()}, false, shippedResources).out;
    for (std::size_t at; (at = out.find(model.path())) != out.npos;) out.replace(at, model.path().size(), "sets.ifc");
    return out.substr(0, out.find("\n\n") + 1);
}

std::string replaced(std::string text, const std::string& before, const std::string& after) {
    const std::size_t at = text.find(before);
    EXPECT_NE(at, text.npos) << before;
    return at == text.npos ? text : text.replace(at, before.size(), after);
}

} // namespace

TEST(PropertySetPage, EachKindOfFindingHasAnExampleThatGivesItAndOneThatDoesNot) {
    const std::string text = page(), model = between(text, "```ifc sets.ifc\n", "```");
    ASSERT_THAT(model, testing::Not(IsEmpty()));
    EXPECT_THAT(findings(model), testing::Not(HasSubstr("sets.ifc:")));
    for (const SetCode& code : setCodes()) {
        const std::string name(code.code);
        SCOPED_TRACE(name);
        std::vector<std::string_view> agreements{code.agreement, code.quantityAgreement};
        std::erase(agreements, std::string_view());
        const std::string row = "\n| `" + name + "` | " + std::string(code.meaning) + " | " +
                                (agreements.empty() ? "none" : text::joined(agreements)) + " |\n";
        EXPECT_NE(text.find(row), text.npos) << row;
        const std::string example = between(text, "\n### `" + name + "`\n", "\n#") + '\n';
        const std::string right = between(example, "    right: ", "\n"), wrong = between(example, "    wrong: ", "\n");
        const std::string expected = between(example, wrong + "\n    ", "\n") + '\n';
        EXPECT_EQ(findings(replaced(model, right, wrong)), expected);
        EXPECT_THAT(expected, HasSubstr(" [" + name + "]\n"));
    }
}

} // namespace velkor::host
