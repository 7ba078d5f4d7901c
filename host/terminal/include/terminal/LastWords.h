/// How the program ends when it cannot go on: one line on standard error and the status Unreadable.
#pragma once

namespace velkor::host {

/// Says that memory ran out and ends the program. A new-handler from the first allocation on: it needs no memory
/// and nothing that has to be set up, and no code between the allocation and the user can mistake it for an answer.
[[noreturn]] void endOutOfMemory();

/// From now on a file that is mapped and cannot be looked at any more, because somebody has made it shorter or its
/// disk fails, ends the program in place of the signal SIGBUS.
void endWithUnreadableMappings();

} // namespace velkor::host
