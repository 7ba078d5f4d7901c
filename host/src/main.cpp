#include "CommandContext.h"

#include <cstdlib>
#include <iostream>
#include <unistd.h>

int main(int argc, char** argv) {
    using namespace velkor::host;
    const bool noColor = [] {
        const char* value = std::getenv("NO_COLOR");
        return value != nullptr && *value != '\0';
    }();
    CommandContext context{std::cout, std::cerr, isatty(STDERR_FILENO) != 0, isatty(STDOUT_FILENO) != 0 && !noColor};

    CLI::App app("Services for building models in IFC (ISO 16739).", "velkor");
    addCommands(app, context);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? Done : BadUsage;
    }
    return context.status;
}
