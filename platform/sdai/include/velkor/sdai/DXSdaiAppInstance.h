/// An entity instance of an open model. The model owns its instances; a pointer stays valid
/// until the model is closed, and the same instance always has the same address.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/sdai/Value.h"

#include <cstdint>
#include <memory>
#include <string_view>

class VELKOR_PLATFORM_API DXSdaiAppInstance {
public:
    DXSdaiAppInstance(const DXSdaiAppInstance&) = delete;
    DXSdaiAppInstance& operator=(const DXSdaiAppInstance&) = delete;

    /// Instance name without "#".
    std::uint64_t id() const noexcept;
    /// The entity; null when the schema does not know the file's keyword, and of a complex instance.
    const velkor::sdai::EntityDefinition* entity() const noexcept { return _entity; }
    const velkor::sdai::Model& model() const noexcept { return *_model; } ///< The model that it is of.

    /// True for the entity named (upper case) and its subtypes. Of a complex instance every
    /// partial entity counts.
    bool IsKindOf(std::string_view entityName) const noexcept;
    /// True when its entity is the one of a name or a subtype of it.
    bool IsInstanceOf(std::string_view entityName) const noexcept;

    /// True when the attribute exists and has a value. Names are upper case.
    bool TestAttr(std::string_view attributeName) const;
    /// The value of an attribute; an unset handle when the entity has none of the name.
    velkor::sdai::Primitive GetAttr(std::string_view attributeName) const;
    /// The value by index into entity()->attributes(); an unset handle for any other index.
    velkor::sdai::Primitive attribute(std::size_t index) const;

private:
    friend class velkor::sdai::Model;
    DXSdaiAppInstance() = default;
    VELKOR_PLATFORM_LOCAL std::string_view parameter(std::size_t index) const;
    VELKOR_PLATFORM_LOCAL velkor::sdai::Primitive complexAttribute(std::string_view attributeName) const;
    VELKOR_PLATFORM_LOCAL std::size_t memoryUse() const noexcept;

    const velkor::sdai::Model* _model = nullptr;
    const velkor::sdai::EntityDefinition* _entity = nullptr;
    std::uint32_t _number = 0;
    // Where each parameter begins, and where one behind it would; null for those that are missing. Found at
    // first access.
    mutable std::unique_ptr<const char*[]> _parameters;
};
