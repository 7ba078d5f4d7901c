/// What a command does with its models, however many there are.
///
///     void runUnits(CommandContext& context, const ModelInput& input);
///     ...
///     workOnModels(context, arguments, {.run = [](auto& context, const auto& input, Json&) { runUnits(context, input);
///     }});
///
/// A single model is worked on in this process. Of several each has a process of its own, as many at once as there are
/// cores to work on, and what they write is put together in the order of the models: text one behind the other, JSON as
/// one object, lines of JSON, CSV with a first column for the file; and a summary. The status is the worst.
#pragma once

#include "CommandContext.h"
#include "models/ModelArguments.h"
#include "models/ModelInput.h"
#include "output/Json.h"

#include <functional>
#include <string>
#include <vector>

namespace velkor::host {

struct ModelWork {
    /// Something that a summary adds up, and how people count it.
    struct Total {
        const char* name;
        const char* singular;
        const char* plural;
    };

    /// Works on one model, with a context that holds for it alone. What is put into `facts`, an object, is known to the
    /// summary: a number for each of the totals, and what `conclude` asks for.
    std::function<void(CommandContext&, const ModelInput&, Json& facts)> run;
    /// What people are told of models with the status Done, and of those with Findings.
    const char* done = "without findings";
    const char* findings = "with findings";
    std::vector<Total> totals = {};
    /// True when the text of a model does not begin with its name.
    bool isHeaded = false;
    /// True when the JSON of a model has an object in "file", whose "path" is its name.
    bool isFileObject = false;
    /// Says what cannot be done with the models, before any work; may be left out.
    std::function<std::string(const std::vector<ModelInput>&)> fault = {};
    /// Called with the facts of each model in their order, and in place of a result of its own what standard error says
    /// of it; may be left out.
    std::function<void(const ModelInput&, const Json& facts, const std::string& reason)> take = {};
};

void workOnModels(CommandContext& context, const ModelArguments& arguments, const ModelWork& work);

/// Writes the JSON of one model in the layout that the format asks for.
void writeModelJson(const CommandContext& context, const Json& json);

} // namespace velkor::host
