// Edits over any bytes as an exchange structure: without edits it is written as it is, and what is written after edits
// of a sound one has their records when it is read again.

#include "velkor/sdai/Part21Edit.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

namespace {

using namespace velkor::sdai;

void require(bool condition, const char* reason) {
    if (condition) return;
    std::fprintf(stderr, "%s\n", reason);
    std::abort();
}

std::string written(const Part21Edit& edit) {
    const int descriptor = memfd_create("written", 0);
    auto output = velkor::files::OutputFile::onto(descriptor);
    edit.write(output);
    require(output.commit().has_value(), "nothing could be written");
    std::string text(static_cast<std::size_t>(lseek(descriptor, 0, SEEK_END)), '\0');
    require(pread(descriptor, text.data(), text.size(), 0) == static_cast<ssize_t>(text.size()), "nothing can be read");
    close(descriptor);
    return text;
}

/// What instances are after edits of every kind, which take turns; nothing for those that were dropped.
std::map<std::uint64_t, std::string> edited(const Part21File& file, Part21Edit& edit) {
    std::map<std::uint64_t, std::string> records;
    for (std::uint32_t i = 0; i < file.instanceCount(); ++i) {
        const std::uint64_t id = file.id(i);
        switch (i % 4) {
        case 0:
            if (edit.setParameter(id, i % 3, "('it''s',#1)")) records[id] = *edit.record(id);
            break;
        case 1:
            if (edit.replace(id, "IFCLABEL((*,$,1.5,.T.))")) records[id] = *edit.record(id);
            break;
        case 2:
            if (edit.drop(id)) records[id].clear();
            break;
        default:
            if (const auto added = edit.add("A()")) records[*added] = "A()";
        }
    }
    return records;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto file = Part21File::fromText(text, "input");
    if (!file) return 0;
    Part21Edit edit(**file);
    require(written(edit) == text, "what was not touched is not written as it is");

    const auto records = edited(**file, edit);
    const std::string result = written(edit);
    // How reading goes on behind damage depends on what stands around it.
    if ((*file)->problemCount() > 0) return 0;
    const auto again = Part21File::fromText(result, "result");
    require(again.has_value(), "what was written cannot be read");
    const Part21Edit view(**again);
    for (const auto& [id, record] : records) {
        // Another instance may have the id of one that was dropped.
        if (record.empty()) continue;
        const auto found = view.record(id);
        require(found && *found == record, "an edit is not what was written");
    }
    return 0;
}
