// velkor-setgen: writes the tables of property sets and quantity sets from published definitions, or compares them.

#include "GeneratedUnits.h"
#include "GeneratorProgram.h"
#include "PublishedSets.h"
#include "velkor/propertysets/SetCatalogue.h"

#include <algorithm>
#include <CLI/CLI.hpp>
#include <iostream>

namespace {

constexpr const char* program = "velkor-setgen";

int fail(const std::string& message) {
    return velkor::express::fail(program, message);
}

int run(int argc, char** argv) {
    using namespace velkor;
    std::string sources, folder = VELKOR_SET_TABLES;
    std::vector<std::string> releases(definingReleases().begin(), definingReleases().end());
    bool check = false, faults = false, kinds = false;
    CLI::App app("Writes the tables of the sets that releases define.", program);
    app.add_option("DIR", sources, "Folder with a folder of published definitions for each release, named after it");
    app.add_flag("--check", check, "Write nothing; compare, and tell where the tables differ (status 1)");
    app.add_flag("--faults", faults, "Tell what is odd in the sources as well");
    app.add_flag("--kinds", kinds, "Tell what kinds of faults there are and what each means, and do nothing else");
    app.add_option("--release", releases, "These releases alone")
        ->check(CLI::IsMember(releases))
        ->option_text("RELEASE …");
    app.add_option("--out", folder, "Folder of the tables")->option_text("FOLDER");
    app.footer("Example:\n  velkor-setgen psd --check");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : velkor::express::badUsage;
    }

    if (kinds) {
        for (const DefinitionFaultKind& kind : definitionFaultKinds())
            std::cout << kind.name << ' ' << kind.meaning << '\n';
        return 0;
    }
    if (sources.empty()) {
        fail("expected the folder DIR; --help tells more");
        return velkor::express::badUsage;
    }

    std::vector<express::GeneratedUnit> units;
    for (const std::string& release : releases) {
        const auto table = setgen::tableOf(std::filesystem::path(sources) / release, release);
        if (!table) return fail(table.error());
        units.push_back({release + ".sets", writtenTable(*table)});
        if (!faults) continue;
        const std::string place = release + '/';
        for (const auto& entry : table->entries) {
            for (const auto& [line, kind, text] : entry.faults)
                std::cerr << place << entry.source << ':' << line << ": " << kind << ": " << text << '\n';
        }
        for (const auto& [source, hash, reason] : table->refused)
            std::cerr << place << source << ": refused: " << reason << '\n';
    }
    return express::finish(program, units, folder, check);
}

} // namespace

int main(int argc, char** argv) {
    return velkor::express::guarded(program, [&] { return run(argc, argv); });
}
