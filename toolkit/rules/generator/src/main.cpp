// velkor-rulegen: writes the units of the rules from EXPRESS sources, or compares them.

#include "GeneratorProgram.h"
#include "RuleUnits.h"
#include "SourceFile.h"

#include <array>
#include <CLI/CLI.hpp>
#include <iostream>

namespace {

constexpr const char* program = "velkor-rulegen";

struct Release {
    const char* schema;
    /// The source of IFC4X4 is the data structure alone.
    bool hasFunctions = true;
};
constexpr std::array<Release, 8> releases{
    {{"IFC2X3"}, {"IFC4"}, {"IFC4X1"}, {"IFC4X2"}, {"IFC4X3_ADD2"}, {"IFC4X3_RC1"}, {"IFC4X3_RC3"}, {"IFC4X4", false}}};

int fail(const std::string& message) {
    return velkor::express::fail(program, message);
}

int run(int argc, char** argv) {
    using namespace velkor;
    std::string sources, folder = VELKOR_RULE_TABLES;
    bool check = false, notes = false;
    CLI::App app("Compiles the rules of the schemas into source units.", program);
    app.add_option("DIR", sources, "Folder with the EXPRESS source SCHEMA.exp of each release")->required();
    app.add_flag("--check", check, "Write nothing; compare, and tell where the units differ (status 1)");
    app.add_flag("--notes", notes, "Tell what is odd in the sources as well");
    app.add_option("--out", folder, "Folder of the units")->option_text("FOLDER");
    app.footer("Example:\n  velkor-rulegen express --check");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : velkor::express::badUsage;
    }

    std::vector<rulegen::RuleSource> schemas;
    std::vector<std::string> inputs;
    for (const Release& release : releases) {
        const auto path = std::filesystem::path(sources) / (std::string(release.schema) + ".exp");
        rulegen::RuleSource source{path.string(), {}, release.hasFunctions};
        inputs.emplace_back();
        if (auto read = express::readSource(path, source.schema, inputs.back()); !read) return fail(read.error());
        source.schema.name = release.schema;
        schemas.push_back(std::move(source));
    }
    rulegen::RuleCompiler compiler(std::move(schemas));
    if (notes) {
        for (const std::string& note : compiler.notes()) std::cerr << note << '\n';
    }
    for (const std::string& error : compiler.errors()) std::cerr << error << '\n';
    if (!compiler.errors().empty()) return velkor::express::unreadable;
    const auto units = rulegen::ruleUnits(compiler, inputs);
    return express::finish(program, units, folder, check);
}

} // namespace

int main(int argc, char** argv) {
    return velkor::express::guarded(program, [&] { return run(argc, argv); });
}
