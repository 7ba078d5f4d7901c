/// The commands, each of which adds itself to the program.
#pragma once

#include "CommandContext.h"

namespace velkor::host {

void addReportCommand(CLI::App& app, CommandContext& context);
void addCheckCommand(CLI::App& app, CommandContext& context);
void addGuidCommand(CLI::App& app, CommandContext& context);
void addValidateCommand(CLI::App& app, CommandContext& context);
void addUnitsCommand(CLI::App& app, CommandContext& context);
void addDictionaryCommand(CLI::App& app, CommandContext& context);
void addOptionsCommand(CLI::App& app, CommandContext& context);
void addResourcesCommand(CLI::App& app, CommandContext& context);
/// A subcommand of the one above.
void addResourcesCheckCommand(CLI::App& resources, CommandContext& context);
void addMapCommand(CLI::App& app, CommandContext& context);
void addClassifyCommand(CLI::App& app, CommandContext& context);

} // namespace velkor::host
