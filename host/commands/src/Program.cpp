// The program itself: its commands, and how it ends when one of them cannot go on.

#include "commands/Program.h"

#include "commandline/Program.h"
#include "Commands.h"
#include "Version.h"

#include <sstream>

namespace velkor::host {

namespace {

void addCommands(const Command& program, CommandContext& context) {
    addReportCommand(program, context);
    addCheckCommand(program, context);
    addValidateCommand(program, context);
    addPropertySetsCommand(program, context);
    addClassifyCommand(program, context);
    addGuidCommand(program, context);
    addUnitsCommand(program, context);
    addDictionaryCommand(program, context);
    addMapCommand(program, context);
    addConvertCommand(program, context);
    addOptionsCommand(program, context);
    addResourcesCommand(program, context);
}

ProgramParts parts(CommandContext& context) {
    return {[&context](const Command& program) { addCommands(program, context); }, versionText};
}

} // namespace

int run(std::vector<std::string> words, CommandContext& context) {
    context.words = words;
    context.guard([&] {
        const auto status = parse(withJoinedGuidWords(std::move(words)), context.out, context.err, parts(context));
        if (status) context.status = *status;
    });
    return context.status;
}

CommandDescription describeProgram() {
    std::ostringstream nowhere;
    CommandContext context{nowhere, nowhere};
    return describeProgram(parts(context));
}

} // namespace velkor::host
