#include "ModelResults.h"

#include "output/Csv.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>

namespace velkor::host {

namespace {

constexpr std::size_t chunkSize = 1 << 16;
constexpr std::size_t longestReason = 4000;
constexpr std::string_view messageLead = "velkor: ";
// Of a model within the object of all.
constexpr std::string_view itemIndent = "    ";
constexpr std::string_view memberIndent = "  ";

std::string jsonText(const Json& json, JsonLayout layout = JsonLayout::Indented) {
    std::ostringstream text;
    writeJson(text, json, layout);
    std::string result = text.str();
    result.pop_back();
    return result;
}

/// Copies lines in pieces of any size and puts something in front of each.
class LineCopier {
public:
    LineCopier(TextSink out, std::string lead) : _out(out), _lead(std::move(lead)) {}

    /// The first line has something else in front, or is left out.
    void beginWith(std::string lead) { _firstLead = std::move(lead), _hasFirstLead = true; }
    void leaveFirstOut() { _isSkipping = true; }

    void copy(std::string_view piece) {
        while (!piece.empty()) {
            const std::size_t end = std::min(piece.find('\n'), piece.size() - 1) + 1;
            const bool isWhole = piece[end - 1] == '\n';
            if (!_isSkipping) copyPart(piece.substr(0, end));
            _isAtStart = isWhole;
            if (isWhole) _isSkipping = false;
            piece.remove_prefix(end);
        }
    }

private:
    void copyPart(std::string_view part) {
        if (_isAtStart) _out << (_hasFirstLead ? _firstLead : _lead);
        _hasFirstLead = false;
        _out.printed(part);
    }

    TextSink _out;
    std::string _lead, _firstLead;
    bool _hasFirstLead = false, _isSkipping = false, _isAtStart = true;
};

/// All but the last `leftOut` bytes.
template <class Take>
void forEachPiece(const MemoryFile& file, std::uint64_t leftOut, Take take) {
    const std::uint64_t size = file.size() - std::min(file.size(), leftOut);
    for (std::uint64_t offset = 0; offset < size;) {
        const std::string piece = file.read(offset, std::min<std::uint64_t>(chunkSize, size - offset));
        if (piece.empty()) return;
        take(piece);
        offset += piece.size();
    }
}

// The messages as one line.
std::string reasonOf(const MemoryFile& err) {
    std::istringstream lines(err.read(0, longestReason));
    std::string reason;
    for (std::string line; std::getline(lines, line);) {
        if (!reason.empty()) reason += "; ";
        reason += line.starts_with(messageLead) ? line.substr(messageLead.size()) : line;
    }
    return reason;
}

} // namespace

ModelResults::ModelResults(CommandContext& context, const ModelWork& work, std::size_t models)
    : _context(context), _work(work), _models(models), _totals(work.totals.size()) {}

void ModelResults::add(const ModelInput& input, const ModelProcess& process) {
    const auto status = process.status();
    // What a process has written that did not come to its end is not whole.
    const bool hasResult = status && process.out().size() > 0;
    if (hasResult) {
        begin(input);
        writeOutput(input, process.out());
    }
    _context.out.flush();
    forEachPiece(process.err(), 0, [&](const std::string& piece) { _context.err.printed(piece); });
    const std::string fault = process.fault();
    if (!fault.empty()) _context.err << "velkor: " << input.name() << ": " << fault << '\n';
    const std::string reason = hasResult ? std::string() : fault.empty() ? reasonOf(process.err()) : fault;
    if (!hasResult) writeError(input, reason);
    const Json facts = Json::parse(process.facts(), nullptr, false);
    count(input, status.value_or(Unreadable), status && facts.is_object() ? facts : Json::object(), reason);
}

void ModelResults::add(const ModelInput& input, const std::string& fault) {
    _context.out.flush();
    _context.err << "velkor: " << fault << '\n';
    writeError(input, fault);
    count(input, Unreadable, Json::object(), fault);
}

void ModelResults::count(const ModelInput& input, int status, const Json& facts, const std::string& reason) {
    ++_added;
    ++_counts.at(static_cast<std::size_t>(std::clamp<int>(status, Done, Unreadable)));
    _context.status = std::max(_context.status, status);
    for (std::size_t i = 0; i < _totals.size(); ++i) _totals[i] += facts.value(_work.totals[i].name, std::uint64_t(0));
    if (_work.take) _work.take(input, facts, reason);
}

void ModelResults::begin(const ModelInput& input) {
    if (_context.json() || _context.csv()) return;
    if (!_isFirst) _context.out << '\n';
    if (_work.isHeaded) _context.out << input.name() << "\n\n";
}

void ModelResults::beginItem() {
    if (_isFirst) _context.out << "{\n  \"models\": [\n";
}

// With the end of its line, so that messages stand between lines.
void ModelResults::endItem() {
    if (_added + 1 < _models) _context.out << ',';
    _context.out << '\n';
}

void ModelResults::writeOutput(const ModelInput& input, const MemoryFile& out) {
    if (_context.csv()) {
        LineCopier copier(_context.out, csvField(input.name()) + ',');
        if (_isFirst)
            copier.beginWith("file,");
        else
            copier.leaveFirstOut();
        forEachPiece(out, 0, [&](const std::string& piece) { copier.copy(piece); });
    } else if (_context.json() && !_context.jsonLines()) {
        LineCopier copier(_context.out, std::string(itemIndent));
        beginItem();
        forEachPiece(out, 1, [&](const std::string& piece) { copier.copy(piece); });
        endItem();
    } else {
        forEachPiece(out, 0, [&](const std::string& piece) { _context.out.printed(piece); });
    }
    _isFirst = false;
}

void ModelResults::writeError(const ModelInput& input, const std::string& reason) {
    if (!_context.json()) return;
    const Json file = _work.isFileObject ? Json{{"path", input.name()}} : Json(input.name());
    const Json json{{"file", file}, {"error", reason}};
    if (_context.jsonLines()) {
        _context.out.printed(jsonText(json, JsonLayout::Line));
        _context.out << '\n';
    } else {
        beginItem();
        LineCopier(_context.out, std::string(itemIndent)).copy(jsonText(json));
        endItem();
    }
    _isFirst = false;
}

std::string ModelResults::summaryText() const {
    std::string text = text::counted(_models, "model", "models");
    std::string_view between = ": ";
    const char* const words[] = {_work.done, _work.findings, "refused", "unreadable"};
    for (std::size_t i = 0; i < _counts.size(); ++i) {
        if (_counts[i] == 0) continue;
        text.append(between).append(text::grouped(_counts[i])).append(" ").append(words[i]);
        between = ", ";
    }
    between = "; ";
    for (std::size_t i = 0; i < _totals.size(); ++i) {
        text.append(between).append(text::counted(_totals[i], _work.totals[i].singular, _work.totals[i].plural));
        between = ", ";
    }
    return text;
}

Json ModelResults::summaryJson() const {
    Json totals = Json::object();
    for (std::size_t i = 0; i < _totals.size(); ++i) totals[_work.totals[i].name] = _totals[i];
    return {{"models", _models},
            {"done", _counts[Done]},
            {"with_findings", _counts[Findings]},
            {"refused", _counts[BadUsage]},
            {"unreadable", _counts[Unreadable]},
            {"totals", std::move(totals)}};
}

void ModelResults::finish(bool isSingle) {
    if (_context.json() && !_context.jsonLines()) {
        if (_isFirst)
            _context.out << "{\n  \"models\": []";
        else
            _context.out << "  ]";
        _context.out << ",\n  \"summary\": ";
        LineCopier copier(_context.out, std::string(memberIndent));
        copier.beginWith({});
        copier.copy(jsonText(summaryJson()));
        _context.out << "\n}\n";
    } else if (!isSingle) {
        // Programs read every line of the other formats.
        const bool isText = !_context.json() && !_context.csv();
        if (isText && !_isFirst) _context.out << '\n';
        if (isText)
            _context.out << summaryText() << '\n';
        else
            _context.err << "velkor: " << summaryText() << '\n';
    }
}

} // namespace velkor::host
