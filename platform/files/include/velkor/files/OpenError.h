/// Why something cannot be opened, read or written.
///
///     if (!model && model.error().code == files::OpenError::Code::Missing) askAgain();
#pragma once

#include "velkor/PlatformExport.h"

#include <cstdint>
#include <string>

namespace velkor::files {

struct OpenError {
    /// Kinds of failure, for those who tell them apart.
    enum class Code : std::uint8_t {
        /// There is nothing of the name.
        Missing,
        /// The system does not allow it.
        Denied,
        Folder,
        /// A pipe or a device, which may have no end.
        NotRegular,
        /// The system failed in another way; the message has its words.
        Failed,
        /// It holds more than can be taken.
        TooLarge,
        Empty,
        NoExchangeStructure,
        /// No registered schema is meant.
        UnknownSchema,
        /// The schema is registered, but its dictionary cannot be restored.
        DamagedSchema,
        /// The processor lacks the instructions that were asked for.
        Unsupported,
    };

    Code code = Code::Failed;
    /// One line. Whether it names the file, the operation says.
    std::string message;
};

/// What an error number of the system means.
VELKOR_PLATFORM_API OpenError systemError(int number);

} // namespace velkor::files
