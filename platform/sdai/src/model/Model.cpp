#include "velkor/sdai/Model.h"

#include "ComplexInstance.h"
#include "velkor/sdai/ProblemCode.h"
#include "velkor/text/Printable.h"
#include "velkor/text/Wording.h"

#include <algorithm>

namespace velkor::sdai {

namespace {

// Of what a message shows of the file, in bytes.
constexpr std::size_t longestExcerpt = 200;

/// The schemas that a file names, in its header and for single sections.
std::vector<std::string> schemaNames(const Part21File& file) {
    std::vector<std::string> names = file.header().schemas;
    for (const Part21File::DataSection& section : file.dataSections()) {
        names.insert(names.end(), section.schemas.begin(), section.schemas.end());
    }
    return names;
}

/// The first registered schema that one of the names stands for; empty when none does.
std::string registeredSchema(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        std::string registered = DXSdaiDictionaryRepo::TheOne().match(name);
        if (!registered.empty()) return registered;
    }
    return {};
}

/// The keyword of an instance that is not complex.
std::string_view keywordText(const Part21File& file, std::uint32_t number) {
    const Token token = Part21Lexer(file.instanceText(number)).next();
    return token.kind == TokenKind::Keyword ? token.text : std::string_view();
}

} // namespace

Model::Model(std::unique_ptr<Part21File> file, DXSdaiDictionaryRepo::SchemaPointer schema)
    : _file(std::move(file)), _schema(std::move(schema)) {
    for (const std::string& keyword : _file->keywords()) _entities.push_back(_schema->entity(keyword));
}

Model::~Model() = default;

tl::expected<std::unique_ptr<Model>, files::OpenError> Model::open(const std::string& path, Part21File::Access access) {
    return Part21File::open(path, ScanPath::Automatic, access).and_then(over);
}

tl::expected<std::unique_ptr<Model>, files::OpenError> Model::fromDescriptor(int descriptor, std::string name,
                                                                             Part21File::Access access) {
    return Part21File::fromDescriptor(descriptor, std::move(name), ScanPath::Automatic, access).and_then(over);
}

tl::expected<std::unique_ptr<Model>, files::OpenError> Model::fromText(std::string_view text, std::string name) {
    return Part21File::fromText(text, std::move(name)).and_then(over);
}

tl::expected<std::unique_ptr<Model>, files::OpenError> Model::over(std::unique_ptr<Part21File> file) {
    const std::string registered = registeredSchema(schemaNames(*file));
    if (registered.empty()) {
        const Problem problem = *schemaProblem(*file);
        return tl::unexpected(files::OpenError{files::OpenError::Code::UnknownSchema,
                                               text::printable(file->name()) + ":" + std::to_string(problem.line) +
                                                   ": " + problem.message});
    }
    auto schema = DXSdaiDictionaryRepo::TheOne().schema(registered);
    if (!schema) {
        return tl::unexpected(
            files::OpenError{schema.error().code, text::printable(file->name()) + ": " + schema.error().message});
    }
    return std::unique_ptr<Model>(new Model(std::move(file), std::move(*schema)));
}

std::optional<Problem> Model::schemaProblem(const Part21File& file) {
    const std::vector<std::string> written = schemaNames(file);
    if (!registeredSchema(written).empty()) return std::nullopt;
    const std::uint64_t headerEnd = file.instanceCount() > 0 ? file.offset(0) : file.text().size();
    const std::size_t found = file.text().substr(0, headerEnd).find("FILE_SCHEMA");
    Problem problem;
    problem.offset = found == std::string_view::npos ? 0 : found;
    problem.line = file.line(problem.offset);
    problem.code = ProblemCode("schema-unknown").text();
    problem.message =
        "expected a supported schema in FILE_SCHEMA, found " +
        (written.empty() ? "none" : text::quoted(text::excerpt(text::joined(written, "\", \""), longestExcerpt))) +
        "; supported: " + text::joined(DXSdaiDictionaryRepo::TheOne().names());
    return problem;
}

DXSdaiAppInstance* Model::instance(std::uint64_t id) const {
    const auto number = _file->find(id);
    return number ? instanceAt(*number) : nullptr;
}

DXSdaiAppInstance* Model::instanceAt(std::uint32_t number) const {
    if (!_pages) _pages = std::make_unique<Page[]>(_file->instanceCount() / pageSize + 1);
    Page& page = _pages[number / pageSize];
    if (!page) page = makePage(number - number % pageSize);
    return &page[number % pageSize];
}

Model::Page Model::makePage(std::uint32_t first) const {
    const std::uint32_t count = std::min(pageSize, _file->instanceCount() - first);
    Page page(new DXSdaiAppInstance[count]);
    for (std::uint32_t i = 0; i < count; ++i) {
        page[i]._model = this;
        page[i]._entity = entityAt(first + i);
        page[i]._number = first + i;
    }
    return page;
}

const EntityDefinition* Model::entityAt(std::uint32_t number) const {
    const std::uint16_t keyword = _file->keyword(number);
    if (keyword < _entities.size()) return _entities[keyword];
    return keyword == Part21File::unlistedKeyword ? _schema->entity(keywordText(*_file, number)) : nullptr;
}

std::vector<std::uint32_t> Model::numbersOf(std::string_view entityName) const {
    std::vector<std::uint32_t> numbers;
    const EntityDefinition* wanted = _schema->entity(entityName);
    if (wanted == nullptr) return numbers;

    std::vector<char> isWanted;
    for (const EntityDefinition* entity : _entities) {
        isWanted.push_back(entity != nullptr && entity->isKindOf(*wanted) ? 1 : 0);
    }
    const auto keywords = _file->keywordNumbers();
    for (std::uint32_t number = 0; number < keywords.size(); ++number) {
        const std::uint16_t keyword = keywords[number];
        if (keyword < isWanted.size() ? isWanted[keyword] != 0 : instanceAt(number)->IsKindOf(entityName)) {
            numbers.push_back(number);
        }
    }
    return numbers;
}

std::vector<DXSdaiAppInstance*> Model::instancesOf(std::string_view entityName) const {
    std::vector<DXSdaiAppInstance*> instances;
    for (const std::uint32_t number : numbersOf(entityName)) instances.push_back(instanceAt(number));
    return instances;
}

std::vector<Model::KeywordCount> Model::keywordCounts() const {
    std::vector<KeywordCount> counts;
    for (std::size_t i = 0; i < _entities.size(); ++i) counts.push_back({_file->keywords()[i], _entities[i], 0});
    KeywordCount complex{"(…)", nullptr, 0};
    KeywordCount unlisted{"(other keywords)", nullptr, 0};
    for (const std::uint16_t keyword : _file->keywordNumbers()) {
        if (keyword < counts.size())
            ++counts[keyword].count;
        else
            ++(keyword == Part21File::complexKeyword ? complex : unlisted).count;
    }
    counts.push_back(std::move(complex));
    counts.push_back(std::move(unlisted));
    std::erase_if(counts, [](const KeywordCount& count) { return count.count == 0; });
    std::ranges::stable_sort(counts, std::greater(), &KeywordCount::count);
    return counts;
}

std::size_t Model::memoryUse() const noexcept {
    std::size_t bytes = sizeof(Model) + _file->memoryUse() + _entities.capacity() * sizeof(_entities[0]);
    if (!_pages) return bytes;
    const std::uint32_t pages = _file->instanceCount() / pageSize + 1;
    bytes += pages * sizeof(Page);
    for (std::uint32_t i = 0; i < pages; ++i) {
        if (!_pages[i]) continue;
        const std::uint32_t count = std::min(pageSize, _file->instanceCount() - i * pageSize);
        for (std::uint32_t k = 0; k < count; ++k) bytes += _pages[i][k].memoryUse();
    }
    return bytes;
}

} // namespace velkor::sdai
