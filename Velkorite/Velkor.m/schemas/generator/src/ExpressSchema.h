/// The part of an EXPRESS schema that a dictionary carries. Names are as spelled in the source.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace velkor::dictgen {

/// A type where it is used or defined.
struct ExpressType {
    enum class Kind { Simple, Named, List, Set, Array, Enumeration, Select };
    Kind kind = Kind::Simple;
    int line = 0;
    /// Of a simple type the word of the lists, "RealType(8)"; of a named type its name.
    std::string text;
    /// Values of an enumeration, items of a select.
    std::vector<std::string> names;

    // Of an aggregate.
    std::shared_ptr<const ExpressType> element;
    int lower = 0;
    /// -1 for "?". A bound that is no literal is 0.
    int upper = -1;
    bool isUnique = false;
    bool isOptional = false;

    bool isAggregate() const { return kind == Kind::List || kind == Kind::Set || kind == Kind::Array; }
};

struct ExpressDefinedType {
    std::string name;
    ExpressType underlying;
};

struct ExpressAttribute {
    std::string name;
    bool isOptional = false;
    ExpressType type;
};

struct ExpressUniquenessRule {
    std::string label;
    int line = 0;
    std::vector<std::string> attributes;
};

struct ExpressEntity {
    std::string name;
    int line = 0;
    bool isAbstract = false;
    /// Empty for a root entity.
    std::string supertype;
    std::vector<ExpressAttribute> explicitAttributes;
    std::vector<ExpressAttribute> derivedAttributes;
    std::vector<ExpressUniquenessRule> uniquenessRules;
};

struct ExpressSchema {
    std::vector<ExpressDefinedType> types;
    std::vector<ExpressEntity> entities;
};

} // namespace velkor::dictgen
