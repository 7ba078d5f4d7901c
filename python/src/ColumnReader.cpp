#include "ColumnReader.h"

#include "Failure.h"
#include "PropertyValues.h"
#include "Values.h"

#include <optional>
#include <unordered_map>

namespace velkor::python {

namespace {

// Instances between two looks at the clock.
constexpr std::size_t progressStep = 4096;

class ColumnReader {
public:
    ColumnReader(const sdai::Model& model, const sdai::EntityDefinition& entity, const std::vector<std::string>& names)
        : _model(model), _entity(entity), _numbers(model.numbersOf(entity.name())) {
        for (const std::string& name : names) addSource(name);
        for (const std::uint32_t number : _numbers) see(model.entityAt(number));
        see(&entity);
        for (const Source& source : _sources) _columns.push_back(makeColumn(source));
    }

    Columns read(const Progress& progress) {
        const PropertyValues properties(_model, _properties);
        for (std::size_t i = 0; i < _numbers.size(); ++i) {
            if (i % progressStep == 0 && !goesOn(progress, {"Reading the columns", i, _numbers.size()})) break;
            addRow(*_model.instanceAt(_numbers[i]), properties);
        }
        for (const auto& column : _columns) column->finish();
        return std::move(_columns);
    }

private:
    struct Source {
        enum class Kind { Attribute, Property, Id, Entity } kind;
        std::string name;
        // Among the properties.
        std::size_t place = 0;
        // As the first entity that has it declares it.
        const sdai::Type* type = nullptr;
    };
    using Indices = std::vector<int>;

    void addSource(const std::string& name) {
        using Kind = Source::Kind;
        const auto dot = name.find('.');
        if (name == "#id")
            _sources.push_back({Kind::Id, name});
        else if (name == "#entity")
            _sources.push_back({Kind::Entity, name});
        else if (dot == std::string::npos)
            _sources.push_back({Kind::Attribute, name});
        else {
            _sources.push_back({Kind::Property, name, _properties.size()});
            _properties.emplace_back(name.substr(0, dot), name.substr(dot + 1));
        }
    }

    // Where an entity has the attributes.
    void see(const sdai::EntityDefinition* entity) {
        if (entity == nullptr) return;
        const auto [place, isNew] = _indices.try_emplace(entity);
        if (!isNew) return;
        for (Source& source : _sources) {
            const int index = source.kind == Source::Kind::Attribute ? entity->attributeIndex(source.name) : -1;
            place->second.push_back(index);
            if (index >= 0 && source.type == nullptr)
                source.type = &entity->attributes()[static_cast<std::size_t>(index)].attribute->type();
        }
    }

    std::unique_ptr<Column> makeColumn(const Source& source) const {
        bool isList = false;
        if (source.kind == Source::Kind::Attribute) {
            if (source.type == nullptr)
                throw Failure("unknown-attribute",
                              std::string(_entity.name()) + " has no attribute '" + source.name + "'");
            const sdai::AggregateType* aggregate = source.type->resolved().asAggregate();
            isList = aggregate != nullptr;
            if (isList && aggregate->element().resolved().isAggregate())
                throw Failure("unsupported", source.name + " is a list of lists, of which no column is made");
        }
        auto column = std::make_unique<Column>(isList);
        column->reserve(_numbers.size());
        return column;
    }

    void addRow(const DXSdaiAppInstance& instance, const PropertyValues& properties) {
        const auto known = instance.entity() == nullptr ? _indices.end() : _indices.find(instance.entity());
        for (std::size_t i = 0; i < _sources.size(); ++i) {
            const Source& source = _sources[i];
            switch (source.kind) {
            case Source::Kind::Id:
                _columns[i]->addReference(instance.id());
                break;
            case Source::Kind::Entity:
                _columns[i]->addText(entityName(instance));
                break;
            case Source::Kind::Property:
                _columns[i]->addRow(properties.of(instance, source.place));
                break;
            case Source::Kind::Attribute:
                if (known == _indices.end())
                    _columns[i]->addRow(instance.GetAttr(upperCase(source.name)));
                else if (const int index = known->second[i]; index >= 0)
                    _columns[i]->addRow(instance.attribute(static_cast<std::size_t>(index)));
                else
                    _columns[i]->addRow({});
            }
        }
    }

    const sdai::Model& _model;
    const sdai::EntityDefinition& _entity;
    std::vector<std::uint32_t> _numbers;
    std::vector<Source> _sources;
    std::vector<PropertyValues::Name> _properties;
    std::unordered_map<const sdai::EntityDefinition*, Indices> _indices;
    Columns _columns;
};

} // namespace

Columns readColumns(const sdai::Model& model, const sdai::EntityDefinition& entity,
                    const std::vector<std::string>& names, const Progress& progress) {
    return ColumnReader(model, entity, names).read(progress);
}

} // namespace velkor::python
