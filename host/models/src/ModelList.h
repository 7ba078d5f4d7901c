/// The models that the words of a command line stand for.
#pragma once

#include "CommandContext.h"
#include "models/ModelArguments.h"
#include "models/ModelInput.h"

#include <optional>
#include <vector>

namespace velkor::host {

/// Models in the order of the words, those of a folder by path; each file once. A folder that cannot be read, or holds
/// no model, stands in the list itself. Nothing after saying which word makes no sense.
std::optional<std::vector<ModelInput>> listModels(CommandContext& context, const ModelArguments& arguments);

} // namespace velkor::host
