// The Part 21 reader on any bytes. Every scan path must read the same, what the index answers must
// be what a plain walk finds, and what the syntax check has nothing against must have been read
// without an error. A text that names the schema SAMPLE is opened as a model, and everything that a
// host can ask of a model is asked.

#include "../platform/sdai/model/ModelSchema.h"
#include "velkor/sdai/Part21Lexer.h"
#include "velkor/sdai/PopulationCheck.h"
#include "velkor/sdai/QORDXSdaiSchemaDecl.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>

namespace {

using namespace velkor::sdai;

constexpr std::size_t longestInput = 1 << 16;
constexpr int deepestValue = 4;

void require(bool condition) {
    if (!condition) std::abort();
}

bool isUtf8(std::string_view text) {
    std::size_t characters = 0;
    std::size_t bytes = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) == 0x80) continue;
        ++characters;
        bytes += byte < 0x80 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
    }
    return bytes == text.size() && velkor::text::characterCount(text) == characters;
}

// The total may be set by what gives the problems.
void requireSound(std::span<const Problem> problems, const std::uint64_t& total, const Part21File& file) {
    require(total >= problems.size());
    std::uint64_t last = 0;
    for (const Problem& problem : problems) {
        require(problem.offset >= last && problem.offset <= file.text().size());
        require(problem.line == file.line(problem.offset) && !problem.code.empty() && !problem.message.empty());
        last = problem.offset;
    }
}

void requireSame(const Part21File& a, const Part21File& b) {
    require(std::ranges::equal(a.keywordNumbers(), b.keywordNumbers()) &&
            std::ranges::equal(a.keywords(), b.keywords()));
    for (std::uint32_t i = 0; i < a.instanceCount(); ++i) {
        require(a.id(i) == b.id(i) && a.offset(i) == b.offset(i));
        require(a.instanceText(i).data() == b.instanceText(i).data());
        require(a.instanceText(i).size() == b.instanceText(i).size());
    }
    require(a.problemCount() == b.problemCount() && a.dataSections().size() == b.dataSections().size());
    require(std::ranges::equal(a.problems(), b.problems(), [](const Problem& left, const Problem& right) {
        return left.offset == right.offset && left.code == right.code && left.message == right.message;
    }));
}

void checkIndex(const Part21File& file) {
    std::map<std::uint64_t, std::uint32_t> first;
    const char* end = file.text().data();
    for (std::uint32_t i = 0; i < file.instanceCount(); ++i) {
        const std::string_view text = file.instanceText(i);
        require(file.text()[file.offset(i)] == '#' && file.text().data() + file.offset(i) >= end);
        require(text.data() > file.text().data() + file.offset(i));
        end = text.data() + text.size();
        require(end <= file.text().data() + file.text().size());
        require(file.keyword(i) < file.keywords().size() || file.keyword(i) >= Part21File::complexKeyword);
        first.emplace(file.id(i), i);
    }
    for (const auto& [id, number] : first) {
        require(file.find(id) == number);
        require(file.find(id + 1).has_value() == first.contains(id + 1));
    }
}

void walkTokens(std::string_view text) {
    Part21Lexer lexer(text);
    const char* behind = text.data();
    for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
        require(token.text.data() >= behind && !token.text.empty());
        behind = token.text.data() + token.text.size();
        require(behind == lexer.position() && behind <= text.data() + text.size());
        std::string error;
        double real = 0.0;
        std::int64_t integer = 0;
        if (token.kind == TokenKind::String) require(isUtf8(decodeString(token.text, &error)));
        if (token.kind == TokenKind::Real) require(decodeReal(token.text, real));
        if (token.kind == TokenKind::Bad) decodeReal(token.text, real);
        // An integer may be too large for one, never for a real.
        if (token.kind == TokenKind::Integer) require(decodeReal(token.text, real));
        if (token.kind == TokenKind::Integer && decodeInteger(token.text, integer)) {
            require(static_cast<double>(integer) == real);
        }
    }
}

void ask(const Primitive& value, int depth) {
    require(isUtf8(value.asString()) && value.encoded().size() <= longestInput);
    const auto integer = value.asInteger();
    const Enumeration enumeration = value.asEnumeration();
    require((enumeration.type == nullptr) == (enumeration.value < 0));
    require(enumeration.type == nullptr || (!enumeration.text().empty() && integer == enumeration.value));
    require(!value.asBoolean() || value.asLogical());
    require(value.asBinary().empty() || value.isSet());
    value.asReal();
    if (const DXSdaiAppInstance* instance = value.asInstance())
        require(instance->model().instance(instance->id()) != nullptr);
    if (depth == deepestValue) return;
    const Select select = value.asSelect();
    require(select.isNull() || value.isSet());
    if (select.chosenType() != nullptr && select.chosenType()->asEntity() == nullptr)
        ask(select.underlyingValue(), depth + 1);
    std::size_t members = 0;
    const Aggregate aggregate = value.asAggregate();
    for (AggregateIterator it(aggregate); it.next(); ++members) ask(it.current(), depth + 1);
    require(members == aggregate.memberCount());
}

void askModel(const Model& model) {
    const auto roots = model.numbersOf("ROOT");
    for (std::uint32_t i = 0; i < model.file().instanceCount(); ++i) {
        const DXSdaiAppInstance& instance = *model.instanceAt(i);
        require(instance.entity() == model.entityAt(i));
        require(instance.IsKindOf("ROOT") == std::ranges::binary_search(roots, i));
        const std::size_t places = instance.entity() != nullptr ? instance.entity()->attributes().size() : 0;
        for (std::size_t place = 0; place <= places; ++place) ask(instance.attribute(place), 0);
        for (const char* name : {"NAME", "LEFT", "PARTS", "GRID"}) ask(instance.GetAttr(name), 0);
    }
    std::uint64_t counted = 0;
    for (const auto& count : model.keywordCounts()) counted += count.count;
    require(counted == model.file().instanceCount());
    std::uint64_t total = 0;
    requireSound(checkPopulation(model, {}, &total), total, model.file());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QORDXSdaiSchemaDecl declaration(
        DXSdaiDictionaryRepo::AddPtr(&test::loadModelSchema, DXSdaiString("SAMPLE", DXSdaiString::ZeroTerminated)));
    if (size > longestInput) return 0;
    const std::string text(reinterpret_cast<const char*>(data), size);
    walkTokens(text);
    auto file = Part21File::fromText(text, "fuzz", ScanPath::Automatic);
    const auto portable = Part21File::fromText(text, "fuzz", ScanPath::Portable);
    require(file.has_value() == portable.has_value());
    if (!file) {
        require(file.error().message == portable.error().message);
        return 0;
    }
    requireSame(**file, **portable);
    checkIndex(**file);
    requireSound((*file)->problems(), (*file)->problemCount(), **file);
    std::uint64_t total = 0;
    requireSound(checkSyntax(**file, 100, &total), total, **file);
    if (total == 0) {
        require(
            std::ranges::all_of((*file)->problems(), [](const Problem& p) { return p.severity == Severity::Warning; }));
    }
    if (const auto model = Model::over(std::move(*file))) askModel(**model);
    return 0;
}
