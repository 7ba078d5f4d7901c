#include "velkor/files/OpenError.h"

#include <cerrno>
#include <cstring>

namespace velkor::files {

OpenError systemError(int number) {
    using Code = OpenError::Code;
    Code code = Code::Failed;
    if (number == ENOENT || number == ENOTDIR) code = Code::Missing;
    if (number == EACCES || number == EPERM || number == EROFS) code = Code::Denied;
    if (number == EISDIR) code = Code::Folder;
    return {code, std::strerror(number)};
}

} // namespace velkor::files
