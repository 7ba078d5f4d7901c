#include "ResultFile.h"

#include "velkor/files/OutputFile.h"

namespace velkor::host {

bool writeResultFile(CommandContext& context, const std::string& path, std::string_view text) {
    auto output = files::OutputFile::create(QORUnicodeString(std::string_view(path)));
    if (output) {
        output->write(text);
        const auto done = output->commit();
        if (done) return true;
        context.reportUnreadable(path + ": cannot be written: " + done.error().message);
    } else {
        context.reportUnreadable(path + ": cannot be written: " + output.error().message);
    }
    return false;
}

} // namespace velkor::host
