#include "ChangeList.h"
#include "IdentifierPlan.h"
#include "IdentifierRules.h"
#include "ResultHeader.h"
#include "velkor/exchange/Conversion.h"

namespace velkor {

using namespace exchange;

namespace {

/// Puts identifiers in the place of those in the file; the rest of each record stays as it stands.
class IdentifierWriter : public sdai::RecordRewriter {
public:
    explicit IdentifierWriter(const RootList& roots) : _roots(roots), _isWritten(roots.size()) {
        for (const auto& [place, identifier] : roots.replacements()) _wanted[keyword(place)] = true;
    }

    bool wants(std::uint16_t keyword) const override { return _wanted[keyword]; }

    Outcome rewrite(const sdai::RecordView& record, sdai::RecordOutput& output) override {
        const std::uint32_t place = _roots.place(record.number);
        const Identifier* identifier = place == RootList::none ? nullptr : _roots.replacement(place);
        if (identifier == nullptr || record.parameters.empty()) return Outcome::Keep;
        const std::string_view old = record.parameters.front();
        const std::string_view last = record.parameters.back();
        const char* behind = last.data() + last.size();
        const std::string_view statement = _roots.model().file().instanceText(record.number);
        sdai::Part21Lexer lexer(statement.substr(static_cast<std::size_t>(behind - statement.data())));
        lexer.next();
        output.record.append(record.keyword.data(), old.data()) += '\'';
        output.record.append(identifier->begin(), identifier->end()) += '\'';
        output.record.append(old.data() + old.size(), lexer.position());
        _isWritten[place] = true;
        return Outcome::Replace;
    }

    bool isWritten(std::uint32_t place) const { return _isWritten[place]; }

private:
    std::uint16_t keyword(std::uint32_t place) const { return _roots.model().file().keyword(_roots.number(place)); }

    const RootList& _roots;
    std::vector<bool> _wanted = std::vector<bool>(sdai::Part21File::unlistedKeyword + 1U);
    std::vector<bool> _isWritten;
};

void takeDown(IdentifierPlan& plan, RootList& roots, const IdentifierWriter& writer, IdentifierReport& report,
              ChangeList& changes) {
    std::uint32_t last = RootList::none;
    for (const IdentifierPlan::Step& step : plan.steps()) {
        const std::uint32_t number = roots.number(step.place);
        const bool isReplaced = roots.replacement(step.place) != nullptr;
        const bool isFirst = std::exchange(last, step.place) != step.place;
        if (isReplaced && !writer.isWritten(step.place)) {
            if (isFirst) changes.note(identifierUnreadable, number, [] { return std::string(); });
            continue;
        }
        changes.note(*step.rule, number, [&] { return plan.detail(step); });
        if (!isReplaced || !isFirst) continue;
        ++report.converted;
        report.identifiers.push_back({roots.model().file().id(number), std::string(roots.before(step.place)),
                                      std::string(roots.current(step.place))});
    }
}

} // namespace

Converted<IdentifierReport> convertIdentifiers(const sdai::Model& model, const IdentifierOptions& options,
                                               files::OutputFile& output) {
    RootList roots(model);
    IdentifierPlan plan(roots, options.progress);
    const bool isComplete =
        (options.plmAttribute.empty() || plan.takeFromPlm(options.plmAttribute)) && (!options.repair || plan.repair());
    if (!isComplete) return tl::unexpected<std::string>("the conversion was ended before its end");
    ChangeList changes(model.file(), options.limit);
    sdai::Part21Edit edit(model.file());
    if (!roots.replacements().empty()) {
        if (auto set = setResultHeader(edit, model.file(), {}, changes); !set) return tl::unexpected(set.error());
    }
    IdentifierWriter writer(roots);
    edit.write(output, writer);
    IdentifierReport report;
    report.step = "identifiers";
    takeDown(plan, roots, writer, report, changes);
    report.kept = model.file().instanceCount() - report.converted;
    report.uses = changes.uses(identifierRules());
    return report;
}

} // namespace velkor
