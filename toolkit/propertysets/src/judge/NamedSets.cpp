#include "judge/NamedSets.h"

#include "QORIFCPSetQtoValidationService.h"
#include "records/SharedText.h"

namespace velkor {

namespace {

bool isCustom(const std::string& name) {
    return QORIFCPSetQtoValidationService::getInstance()->IsCustomPsetQto(QORUnicodeString(std::string_view(name)));
}

} // namespace

NamedSet::NamedSet(std::string shownName, const SetDefinition* itsDefinition, const sdai::SchemaDefinition& schema)
    : name(std::move(shownName)), definition(itsDefinition),
      properties(itsDefinition == nullptr ? nullptr : &itsDefinition->properties, schema) {
    summary.name = name;
    summary.isDefined = definition != nullptr;
    if (definition != nullptr) fits.emplace(*definition, schema);
}

NamedSets::NamedSets(const sdai::Model& model, const SetLibrary& library)
    : _schema(model.schema()), _catalogue(library.of(model.schema().name())), _unknownNames(library, _catalogue) {}

NamedSet& NamedSets::of(std::string_view name) {
    NamedSet*& known = _byText[name];
    if (known != nullptr) return *known;
    const std::string text = nameShown(name);
    std::unique_ptr<NamedSet>& named = _byName[text];
    if (named == nullptr) named = made(text, isText(name) && !text.empty() && !isTooLong(name));
    known = named.get();
    return *known;
}

std::unique_ptr<NamedSet> NamedSets::made(const std::string& name, bool isName) {
    using State = NamedSet::State;
    auto named = std::make_unique<NamedSet>(name, isName ? _catalogue.find(name) : nullptr, _schema);
    named->isName = isName;
    if (!isName) return named;
    if (named->definition != nullptr) {
        named->state = State::Defined;
    } else if (_catalogue.contains(name)) {
        named->state = State::Unreadable;
    } else if (isCustom(name)) {
        named->state = State::Custom;
    } else if (named->unknown = _unknownNames.judge(name); named->unknown) {
        named->state = State::Misnamed;
    }
    return named;
}

} // namespace velkor
