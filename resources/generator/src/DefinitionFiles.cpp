// velkor-setfiles: makes the definition files that the services read from the table of a release.

#include "ResourceKinds.h"
#include "velkor/files/FileContents.h"
#include "velkor/propertysets/DefinitionTable.h"

#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

constexpr int badUsage = 2;
constexpr int unreadable = 3;

int fail(const std::string& message) {
    std::cerr << "velkor-setfiles: " << message << '\n';
    return unreadable;
}

int run(const std::string& path, const std::filesystem::path& view) {
    using namespace velkor;
    const auto text = files::readFile(path, SIZE_MAX);
    if (!text) return fail(path + ": " + text.error().message);
    const auto table = readTable(*text);
    if (!table) return fail(path + ':' + std::to_string(table.error().line) + ": " + table.error().message);
    const auto folder = view / propertySetResource.subFolder;
    std::filesystem::create_directories(folder);
    for (const DefinitionTable::Entry& entry : table->entries) {
        const auto file = folder / (entry.definition.name + propertySetResource.nameText);
        std::ofstream output(file, std::ios::binary);
        output << writtenDefinition(entry.definition, table->release);
        if (!output.flush()) return fail(file.string() + ": cannot be written");
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: velkor-setfiles TABLE RUNTIMEVIEW\n";
        return badUsage;
    }
    try {
        return run(argv[1], argv[2]);
    } catch (const std::exception& error) {
        return fail(error.what());
    }
}
