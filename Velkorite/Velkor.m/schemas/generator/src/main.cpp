// velkor-dictgen: writes the dictionary units from EXPRESS sources, or compares them.

#include "Generator.h"
#include "GeneratorProgram.h"

#include <CLI/CLI.hpp>
#include <iostream>

namespace {

constexpr const char* program = "velkor-dictgen";

int fail(const std::string& message) {
    return velkor::express::fail(program, message);
}

int run(int argc, char** argv) {
    using namespace velkor::dictgen;
    std::string sources, folder = VELKOR_UNITS, profilesPath = VELKOR_PROFILES;
    bool check = false;
    CLI::App app("Writes the source units of the schema dictionaries.", program);
    app.add_option("DIR", sources, "Folder with the EXPRESS source SCHEMA.exp of each release")->required();
    app.add_flag("--check", check, "Write nothing; compare, and tell where the units differ (status 1)");
    app.add_option("--out", folder, "Folder of the units")->option_text("FOLDER");
    app.add_option("--profiles", profilesPath, "What each release carries of its schema")->option_text("FILE");
    app.footer("Example:\n  velkor-dictgen express --check");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : velkor::express::badUsage;
    }

    const auto profiles = readProfiles(profilesPath);
    if (!profiles) return fail(profiles.error());
    const auto units = generate(*profiles, sources);
    if (!units) return fail(units.error());
    return velkor::express::finish(program, *units, folder, check);
}

} // namespace

int main(int argc, char** argv) {
    return velkor::express::guarded(program, [&] { return run(argc, argv); });
}
