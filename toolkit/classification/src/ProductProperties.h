/// What the products of a model say about themselves in words: how a host presents them to the services.
#pragma once

#include "velkor/knowledge/KnowledgeObjects.h"
#include "velkor/sdai/Model.h"

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velkor {

/// Time and memory are in proportion to the text of the model's relationships, however many objects and sets one of
/// them brings together.
class ProductProperties {
public:
    /// `names`, in upper case, are the properties to be told; of the others nobody asks.
    ProductProperties(const sdai::Model& model, std::set<std::string> names);

    /// PredefinedType and ObjectType where the product states them, then the single values of its property sets, then
    /// those of its type's. A predefined type that the product leaves open is that of its type. Truth values are
    /// TRUE, FALSE and UNKNOWN, numbers stand as in the file.
    knowledge::Attributes of(const DXSdaiAppInstance& product) const;

    /// The type object of a product; null when it has none.
    const DXSdaiAppInstance* typeOf(const DXSdaiAppInstance& product) const;

private:
    using Attributes = knowledge::Attributes;

    void addTypes(const sdai::Model& model);
    void addRelationship(const DXSdaiAppInstance& relationship);
    const Attributes& valuesOf(const DXSdaiAppInstance* set);
    bool isWanted(const sdai::Primitive& name);
    void append(Attributes& values, const Attributes& more) const;

    std::set<std::string> _names;
    // Whether a property is to be told, by its name as the file writes it.
    std::unordered_map<std::string_view, bool> _isWanted;
    std::unordered_map<const DXSdaiAppInstance*, Attributes> _valuesOfSet;
    // Of relationships that have any; and their positions by product.
    std::vector<Attributes> _valuesOfRelationship;
    std::unordered_map<const DXSdaiAppInstance*, std::vector<std::uint32_t>> _relationships;
    std::unordered_map<const DXSdaiAppInstance*, const DXSdaiAppInstance*> _types;
    std::unordered_map<const DXSdaiAppInstance*, Attributes> _valuesOfType;
};

} // namespace velkor
