#include "DefinitionTableLinter.h"

#include "DefinitionParts.h"
#include "Linter.h"
#include "velkor/configuration/DefinitionReleases.h"
#include "velkor/propertysets/DefinitionTable.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace velkor::lint {

namespace {

/// Where sets begin: lines of tables that are not indented, in the order of the sets.
class SetLines {
public:
    explicit SetLines(std::string_view text) : _rest(text) {}

    int of(std::string_view setName) {
        while (!_rest.empty()) {
            const std::string_view line = _rest.substr(0, _rest.find('\n'));
            _rest.remove_prefix(std::min(line.size() + 1, _rest.size()));
            ++_line;
            if (!line.starts_with(' ') && !line.starts_with('#') && line.find(setName) != std::string_view::npos)
                return _line;
        }
        return _line;
    }

private:
    std::string_view _rest;
    int _line = 0;
};

class TableJudge {
public:
    explicit TableJudge(Dictionaries& dictionaries) : _dictionaries(dictionaries) {}

    Judgement judge(std::string_view text) {
        const auto table = readTable(text);
        if (!table) {
            _line = static_cast<int>(table.error().line);
            add(Severity::Error, "table-unreadable", table.error().message);
            return std::move(_judgement);
        }
        SetLines lines(text);
        _line = lines.of(table->release);
        if (!isDefinitionRelease(table->release))
            add(Severity::Error, "unknown-release",
                "expected " + text::alternatives(definitionReleases, quoted) + ", found " + quoted(table->release));
        for (const DefinitionTable::Entry& entry : table->entries) {
            ++_judgement.entries;
            _line = lines.of(entry.definition.name);
            judgeEntry(entry, table->release);
        }
        return std::move(_judgement);
    }

private:
    void judgeEntry(const DefinitionTable::Entry& entry, const std::string& release) {
        for (PartFault& part : faultsOf(entry.definition, {release}, _dictionaries)) {
            // What it was made from had the same fault, and what was done about it is what stands here.
            const auto isListed = [&](const DefinitionFault& listed) {
                return listed.kind == part.fault.kind && listed.text == part.fault.text;
            };
            if (std::ranges::any_of(entry.faults, isListed)) continue;
            const DefinitionFaultKind* kind = definitionFaultKind(part.fault.kind);
            add(kind != nullptr && kind->isDropped ? Severity::Error : Severity::Warning, part.fault.kind,
                quoted(entry.definition.name) + ": " + part.fault.text, std::move(part.hint));
        }
        judgeNames(entry.definition.name, entry.definition.properties);
        for (const DefinitionFault& fault : entry.faults)
            if (definitionFaultKind(fault.kind) == nullptr)
                add(Severity::Warning, "unknown-fault", quoted(fault.kind) + " is no kind of fault of a definition");
    }

    // The services tell names of properties apart without letter case.
    void judgeNames(const std::string& set, const std::vector<PropertyDefinition>& properties) {
        std::set<std::string> known;
        for (const PropertyDefinition& property : properties)
            if (!known.insert(toUpper(property.name)).second)
                add(Severity::Error, "duplicate-key", quoted(set) + " has two properties " + quoted(property.name));
    }

    void add(Severity severity, std::string code, std::string message, std::string hint = {}) {
        _judgement.findings.push_back({severity, _line, std::move(code), std::move(message), std::move(hint)});
    }

    Dictionaries& _dictionaries;
    Judgement _judgement;
    int _line = 0;
};

} // namespace

Judgement judgeDefinitionTable(std::string_view text, Dictionaries& dictionaries) {
    return TableJudge(dictionaries).judge(text);
}

} // namespace velkor::lint
