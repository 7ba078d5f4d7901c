// Writes the man pages and completions into a folder that is laid out as "share" of an installation is, or the tables
// of options to standard output.

#include "usage/UsageFiles.h"
#include "commandline/Program.h"
#include "commands/Program.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

void write(const std::filesystem::path& path, const std::string& text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file) throw std::runtime_error(path.string() + " cannot be written");
}

} // namespace

int main(int argc, char** argv) {
    using namespace velkor::host;
    if (argc != 2) {
        std::cerr << "usage: velkor-usage FOLDER | --tables\n";
        return 2;
    }
    try {
        const std::filesystem::path folder = argv[1];
        const CommandDescription program = describeProgram();
        if (folder == "--tables") {
            std::cout << optionTables(program);
            return std::cout.flush() ? 0 : 3;
        }
        forEachCommand(program, [&](const CommandDescription& command) {
            write(folder / "man/man1" / manPageName(command), manPage(command, program, programVersion));
        });
        write(folder / "bash-completion/completions/velkor", bashCompletion(program));
        write(folder / "zsh/site-functions/_velkor", zshCompletion(program));
        write(folder / "fish/vendor_completions.d/velkor.fish", fishCompletion(program));
    } catch (const std::exception& error) {
        std::cerr << "velkor-usage: " << error.what() << '\n';
        return 3;
    }
    return 0;
}
