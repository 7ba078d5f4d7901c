#include "velkor/sdai/DXSdaiAppInstance.h"

#include "ComplexInstance.h"
#include "velkor/sdai/Model.h"

using namespace velkor::sdai;

namespace {

/// Where the parameters of a list begin, up to `count` of them; the text begins behind the "(". One place
/// more is set: behind the "," or ")" that ends the last.
void findParameters(std::string_view text, std::size_t count, const char** begins) {
    Part21Lexer lexer(text);
    if (lexer.peek().kind == TokenKind::Close) return;
    begins[0] = lexer.position();
    for (std::size_t i = 0; i < count; ++i) {
        const bool isWhole = lexer.skipParameter();
        begins[i + 1] = lexer.position() + 1;
        if (!isWhole || lexer.next().kind != TokenKind::Comma) return;
    }
}

std::string_view between(const char* begin, const char* behindNext) {
    return {begin, static_cast<std::size_t>(behindNext - 1 - begin)};
}

bool isComplex(const Part21File& file, std::uint32_t number) {
    return file.keyword(number) == Part21File::complexKeyword;
}

} // namespace

std::uint64_t DXSdaiAppInstance::id() const noexcept {
    return _model->file().id(_number);
}

bool DXSdaiAppInstance::IsKindOf(std::string_view entityName) const noexcept {
    const EntityDefinition* wanted = _model->schema().entity(entityName);
    if (wanted == nullptr) return false;
    if (_entity != nullptr) return _entity->isKindOf(*wanted);
    return isComplex(_model->file(), _number) &&
           model::anyPartialEntity(_model->file().instanceText(_number), [&](std::string_view keyword, auto) {
               const EntityDefinition* entity = _model->schema().entity(keyword);
               return entity != nullptr && entity->isKindOf(*wanted);
           });
}

bool DXSdaiAppInstance::IsInstanceOf(std::string_view entityName) const noexcept {
    return _entity != nullptr && _entity == _model->schema().entity(entityName);
}

bool DXSdaiAppInstance::TestAttr(std::string_view attributeName) const {
    return GetAttr(attributeName).isSet();
}

Primitive DXSdaiAppInstance::GetAttr(std::string_view attributeName) const {
    if (_entity == nullptr) return complexAttribute(attributeName);
    const int index = _entity->attributeIndex(attributeName);
    return index < 0 ? Primitive() : attribute(static_cast<std::size_t>(index));
}

Primitive DXSdaiAppInstance::attribute(std::size_t index) const {
    if (_entity == nullptr || index >= _entity->attributes().size()) return {};
    return {_model, &_entity->attributes()[index].attribute->type(), parameter(index)};
}

std::string_view DXSdaiAppInstance::parameter(std::size_t index) const {
    if (!_parameters) {
        const std::size_t count = _entity->attributes().size();
        _parameters = std::make_unique<const char*[]>(count + 1);
        const std::string_view text = _model->file().instanceText(_number);
        Part21Lexer lexer(text);
        // Letters of the keyword in lower case make it a bad token; the index has read it all the same.
        lexer.next();
        if (lexer.next().kind == TokenKind::Open) {
            findParameters(text.substr(static_cast<std::size_t>(lexer.position() - text.data())), count,
                           _parameters.get());
        }
    }
    const char* next = _parameters[index + 1];
    return next != nullptr ? between(_parameters[index], next) : std::string_view();
}

// Each partial entity holds the attributes that it declares itself.
Primitive DXSdaiAppInstance::complexAttribute(std::string_view attributeName) const {
    Primitive result;
    if (!isComplex(_model->file(), _number)) return result;
    const auto find = [&](std::string_view keyword, std::string_view parameters) {
        const EntityDefinition* entity = _model->schema().entity(keyword);
        const Attribute* wanted = entity != nullptr ? entity->attribute(attributeName) : nullptr;
        if (wanted == nullptr || &wanted->owner() != entity || wanted->isDerived()) return false;
        const auto index = static_cast<std::size_t>(wanted - entity->ownAttributes().data());
        const auto begins = std::make_unique<const char*[]>(index + 2);
        findParameters(parameters, index + 1, begins.get());
        const char* next = begins[index + 1];
        result = {_model, &wanted->type(), next != nullptr ? between(begins[index], next) : std::string_view()};
        return true;
    };
    model::anyPartialEntity(_model->file().instanceText(_number), find);
    return result;
}

std::size_t DXSdaiAppInstance::memoryUse() const noexcept {
    const std::size_t places = _parameters ? _entity->attributes().size() + 1 : 0;
    return sizeof *this + places * sizeof _parameters[0];
}
