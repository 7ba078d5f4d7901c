/// The commands, each of which adds itself to the program.
#pragma once

#include "CommandContext.h"

namespace velkor::host {

void addReportCommand(const Command& app, CommandContext& context);
void addCheckCommand(const Command& app, CommandContext& context);
void addGuidCommand(const Command& app, CommandContext& context);
void addValidateCommand(const Command& app, CommandContext& context);
void addPropertySetsCommand(const Command& app, CommandContext& context);
void addUnitsCommand(const Command& app, CommandContext& context);
void addDictionaryCommand(const Command& app, CommandContext& context);
void addOptionsCommand(const Command& app, CommandContext& context);
void addResourcesCommand(const Command& app, CommandContext& context);
/// A subcommand of the one above.
void addResourcesCheckCommand(const Command& resources, CommandContext& context);
void addMapCommand(const Command& app, CommandContext& context);
void addClassifyCommand(const Command& app, CommandContext& context);
void addConvertCommand(const Command& app, CommandContext& context);
/// "--guids from-plm ATTRIBUTE" of `convert` as one word that the parser takes; anything else stays as it is.
std::vector<std::string> withJoinedGuidWords(std::vector<std::string> words);

} // namespace velkor::host
