// Edits over any bytes as an exchange structure: without edits it is written as it is, and what is written after edits
// of a sound one has their records when it is read again. A rewriter that says every record in other words leaves what
// they say, and values that were set by name are those that the dictionary allows.

#include "velkor/sdai/ModelEdit.h"

#include <algorithm>
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

template <class Write>
std::string written(Write write) {
    const int descriptor = memfd_create("written", 0);
    auto output = velkor::files::OutputFile::onto(descriptor);
    write(output);
    require(output.commit().has_value(), "nothing could be written");
    std::string text(static_cast<std::size_t>(lseek(descriptor, 0, SEEK_END)), '\0');
    require(pread(descriptor, text.data(), text.size(), 0) == static_cast<ssize_t>(text.size()), "nothing can be read");
    close(descriptor);
    return text;
}

std::string written(const Part21Edit& edit) {
    return written([&](velkor::files::OutputFile& output) { edit.write(output); });
}

/// Puts records down by their parameters alone, and more behind them.
class Respelling : public RecordRewriter {
public:
    bool wants(std::uint16_t) const override { return true; }
    Outcome rewrite(const RecordView& record, RecordOutput& output) override {
        output.record += record.keyword;
        char separator = '(';
        for (const std::string_view parameter : record.parameters)
            (output.record += separator) += parameter, separator = ',';
        output.record += record.parameters.empty() ? "()" : ")";
        if (record.number % 3 == 0) output.add("ADDED()");
        return Outcome::Replace;
    }
};

void rewriteAll(const Part21File& file) {
    const Part21Edit edit(file);
    Respelling respelling;
    const std::string result = written([&](velkor::files::OutputFile& output) { edit.write(output, respelling); });
    if (file.problemCount() > 0) return;
    const auto again = Part21File::fromText(result, "result");
    require(again.has_value(), "what was rewritten cannot be read");
    RecordReader before;
    RecordReader after;
    for (std::uint32_t i = 0; i < file.instanceCount(); ++i) {
        const RecordView* was = before.read(file, i);
        if (was == nullptr || file.find(file.id(i)) != i) continue;
        const auto number = (*again)->find(file.id(i));
        const RecordView* is = number ? after.read(**again, *number) : nullptr;
        require(is != nullptr && is->keyword == was->keyword &&
                    std::equal(is->parameters.begin(), is->parameters.end(), was->parameters.begin(),
                               was->parameters.end()),
                "a record says something else in other words");
    }
}

void setByName(std::string_view text) {
    const auto model = Model::fromText(text, "input");
    if (!model) return;
    ModelEdit edit(**model);
    constexpr std::string_view values[] = {"'a'", "$", "1.5", "(#1)", "#2", ".T.", "IFCLABEL('x')", "*"};
    std::size_t turn = text.size();
    for (const std::uint64_t id : {1U, 2U, 3U, 7U, 100U}) {
        const EntityDefinition* entity = edit.entity(id);
        if (entity == nullptr) continue;
        for (const AttributeSlot& slot : entity->attributes()) {
            const std::string_view value = values[turn++ % std::size(values)];
            const bool isSet = edit.set(id, slot.attribute->name(), value).has_value();
            const auto found = edit.value(id, slot.attribute->name());
            require(!isSet || (found && *found == value), "a value is not what was set");
        }
        for (const std::uint64_t used : edit.references(id)) {
            const auto users = edit.users(used);
            require(std::find(users.begin(), users.end(), id) != users.end(), "a user is not known");
        }
    }
    if ((*model)->file().problemCount() > 0) return;
    const std::string result = written([&](velkor::files::OutputFile& output) { edit.write(output); });
    require(Model::fromText(result, "result").has_value(), "what was set by name cannot be read");
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
    rewriteAll(**file);
    setByName(text);

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
