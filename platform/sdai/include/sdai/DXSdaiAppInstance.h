/// An entity instance of an open model. The model owns its instances; a pointer stays valid
/// until the model is closed, and the same instance always has the same address.
#pragma once

#include "sdai/Value.h"

#include <cstdint>
#include <memory>
#include <string_view>

class DXSdaiAppInstance {
public:
    /// Instance name without "#".
    std::uint64_t id() const noexcept;
    /// The entity; null when the schema does not know the file's keyword.
    const velkor::sdai::EntityDefinition* entity() const noexcept { return _entity; }
    const velkor::sdai::Model& model() const noexcept { return *_model; }

    /// True for the entity named (upper case) and its subtypes. Of a complex instance every
    /// partial entity counts.
    bool IsKindOf(std::string_view entityName) const noexcept;
    bool IsInstanceOf(std::string_view entityName) const noexcept;

    /// True when the attribute exists and has a value. Names are upper case.
    bool TestAttr(std::string_view attributeName) const;
    /// The value of an attribute; an unset handle when the entity has none of the name.
    velkor::sdai::Primitive GetAttr(std::string_view attributeName) const;
    /// The value by index into entity()->attributes().
    velkor::sdai::Primitive attribute(std::size_t index) const;

private:
    friend class velkor::sdai::Model;
    DXSdaiAppInstance(const velkor::sdai::Model& model, const velkor::sdai::EntityDefinition* entity,
                      std::uint32_t number) noexcept
        : _model(&model), _entity(entity), _number(number) {}
    const velkor::sdai::Model* _model;
    const velkor::sdai::EntityDefinition* _entity;
    std::uint32_t _number;
    // Where each parameter begins, relative to the instance's text; found at first access.
    mutable std::unique_ptr<std::uint32_t[]> _starts;
};
