#include "velkor/identifiers/GuidCheck.h"

#include "velkor/identifiers/GuidText.h"
#include "velkor/sdai/Part21Lexer.h"

#include <unordered_map>

namespace velkor::guid {

namespace {

// Instances between two looks at the clock.
constexpr std::uint64_t progressStep = 1024;

class Checker {
public:
    Checker(const sdai::Model& model, CheckResult& result, const CheckOptions& options)
        : _file(model.file()), _result(result), _options(options) {}

    void check(std::uint32_t number, std::string_view encoded) {
        const bool isText = encoded.starts_with('\'');
        if (!isText) return add(number, "guid-missing", "GLOBALID: expected an identifier of 22 characters");
        // Most are well-formed as they stand.
        const std::string_view inside = encoded.substr(1, encoded.size() - std::min<std::size_t>(encoded.size(), 2));
        if (faultOf(inside)) {
            const std::string text = sdai::decodeString(encoded);
            if (const auto fault = faultOf(text)) add(number, fault->code, "GLOBALID: " + fault->message);
        }
        if (inside.empty()) return;
        const auto [first, isNew] = _first.try_emplace(inside, number);
        if (isNew) return;
        add(number, "guid-duplicate",
            "GLOBALID: expected an identifier of its own, found that of #" + std::to_string(_file.id(first->second)) +
                " in line " + std::to_string(_file.line(_file.offset(first->second))));
    }

    void reserve(std::size_t count) { _first.reserve(count); }

private:
    void add(std::uint32_t number, const char* code, std::string message) {
        if (!_options.codes.takes(code) || ++_result.total > _options.limit) return;
        const std::uint64_t offset = _file.offset(number);
        _result.problems.push_back(
            {sdai::Severity::Error, offset, _file.line(offset), _file.id(number), code, std::move(message)});
    }

    const sdai::Part21File& _file;
    CheckResult& _result;
    const CheckOptions& _options;
    // The instance that has an identifier first, by the identifier as the file writes it.
    std::unordered_map<std::string_view, std::uint32_t> _first;
};

} // namespace

std::string_view encodedIdentifier(const sdai::Model& model, std::uint32_t number) {
    // Of an instance of one entity it is the first parameter, read without an instance object: they would be kept for
    // all the model.
    const sdai::EntityDefinition* entity = model.entityAt(number);
    if (entity == nullptr || entity->attributeIndex("GLOBALID") != 0)
        return model.instanceAt(number)->GetAttr("GLOBALID").encoded();
    sdai::Part21Lexer lexer(model.file().instanceText(number));
    lexer.next();
    if (lexer.next().kind != sdai::TokenKind::Open) return {};
    const sdai::Token token = lexer.next();
    return token.kind == sdai::TokenKind::String ? token.text : std::string_view();
}

GuidCheck checkGuids(const sdai::Model& model, const CheckOptions& options) {
    GuidCheck check;
    const auto numbers = model.numbersOf("IFCROOT");
    Checker checker(model, check.result, options);
    checker.reserve(numbers.size());
    for (std::uint64_t i = 0; i < numbers.size(); ++i) {
        if (i % progressStep == 0 && !goesOn(options.progress, {"Checking the identifiers", i, numbers.size()})) {
            check.result.isComplete = false;
            break;
        }
        checker.check(numbers[i], encodedIdentifier(model, numbers[i]));
        ++check.count;
    }
    return check;
}

} // namespace velkor::guid
