/// How the program ends, the same for every command.
#pragma once

namespace velkor::host {

enum ExitStatus : int {
    Done = 0,
    Findings = 1, ///< the answer is "no" or findings exist
    BadUsage = 2,
    Unreadable = 3, ///< input could not be read, or the results not be written
};

} // namespace velkor::host
