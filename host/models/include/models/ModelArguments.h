/// The words of a command line that say which models a command is about, the same for all commands that take models.
#pragma once

#include "commandline/Command.h"

#include <cstddef>
#include <string>
#include <vector>

namespace velkor::host {

struct ModelArguments {
    /// Adds MODEL, -r and --jobs to a command, to whose parsing this object has to stay where it is.
    void addTo(const Command& command, bool areRequired = true);

    /// True for one word that is no folder: its results stand for themselves, without a summary.
    bool isSingle() const;

    /// Paths of models and folders, and "-" for standard input.
    std::vector<std::string> words = {};
    /// Folders stand for the models in them and below.
    bool areFoldersTaken = false;
    /// Cores to work on, 0 for all.
    std::size_t jobs = 0;
};

} // namespace velkor::host
