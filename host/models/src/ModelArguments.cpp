#include "models/ModelArguments.h"

#include <filesystem>

namespace velkor::host {

namespace {

constexpr std::size_t mostJobs = 1024;

} // namespace

void ModelArguments::addTo(const Command& command, bool areRequired) {
    const Option model = command.addOption("MODEL", words, "IFC files; - for standard input, and folders with -r");
    if (areRequired) model.required();
    command.addFlag("-r,--recursive", areFoldersTaken, "Take the models in folders and below them");
    command.addOption("--jobs", jobs, "Work on N cores; on all of them unless told")
        .valueName("N")
        .wholeNumber(1, mostJobs);
}

bool ModelArguments::isSingle() const {
    std::error_code none;
    return words.size() == 1 && !std::filesystem::is_directory(words.front(), none);
}

} // namespace velkor::host
