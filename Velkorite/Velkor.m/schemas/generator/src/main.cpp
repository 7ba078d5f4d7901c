// velkor-dictgen: writes the dictionary units from EXPRESS sources, or compares them.

#include "Generator.h"

#include <CLI/CLI.hpp>
#include <iostream>

namespace {

constexpr int badUsage = 2;
constexpr int unreadable = 3;

int fail(const std::string& message) {
    std::cerr << "velkor-dictgen: " << message << '\n';
    return unreadable;
}

int run(int argc, char** argv) {
    using namespace velkor::dictgen;
    std::string sources, folder = VELKOR_UNITS, profilesPath = VELKOR_PROFILES;
    bool check = false;
    CLI::App app("Writes the source units of the schema dictionaries.", "velkor-dictgen");
    app.add_option("DIR", sources, "Folder with the EXPRESS source SCHEMA.exp of each release")->required();
    app.add_flag("--check", check, "Write nothing; compare, and tell where the units differ (status 1)");
    app.add_option("--out", folder, "Folder of the units")->option_text("FOLDER");
    app.add_option("--profiles", profilesPath, "What each release carries of its schema")->option_text("FILE");
    app.footer("Example:\n  velkor-dictgen express --check");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : badUsage;
    }

    const auto profiles = readProfiles(profilesPath);
    if (!profiles) return fail(profiles.error());
    const auto units = generate(*profiles, sources);
    if (!units) return fail(units.error());
    return velkor::express::finish("velkor-dictgen", *units, folder, check);
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        return fail(error.what());
    }
}
