/// An EXPRESS schema as it stands in its source. Names are as spelled there.
#pragma once

#include "Expression.h"

#include <memory>
#include <string>
#include <vector>

namespace velkor::express {

/// A type where it is used or defined.
struct ExpressType {
    /// Bag, Aggregate and Generic stand in functions only.
    enum class Kind { Simple, Named, List, Set, Array, Enumeration, Select, Bag, Aggregate, Generic };
    Kind kind = Kind::Simple;
    int line = 0;
    /// Of a simple type the word of the dictionary's lists, "RealType(8)"; of a named type its name.
    std::string text;
    /// NUMBER, which the lists state as REAL.
    bool isNumber = false;
    /// Values of an enumeration, items of a select.
    std::vector<std::string> names;

    // Of an aggregate.
    std::shared_ptr<const ExpressType> element;
    int lower = 0;
    /// -1 for "?". A bound that is no literal is 0 and stands below.
    int upper = -1;
    ExpressionPointer lowerExpression;
    ExpressionPointer upperExpression;
    bool isUnique = false;
    bool isOptional = false;

    bool isAggregate() const { return kind == Kind::List || kind == Kind::Set || kind == Kind::Array; }
};

struct ExpressWhereRule {
    /// Empty when it has none.
    std::string label;
    int line = 0;
    ExpressionPointer expression;
    /// The expression as it stands in the source, on one line and without remarks.
    std::string text;
};

struct ExpressDefinedType {
    std::string name;
    ExpressType underlying;
    std::vector<ExpressWhereRule> whereRules = {};
};

struct ExpressAttribute {
    std::string name;
    bool isOptional = false;
    ExpressType type;
    int line = 0;
    /// Of a derived attribute.
    ExpressionPointer expression = nullptr;
    /// SELF\Supertype.Name: an inherited attribute, declared anew.
    bool isRedeclared = false;
};

struct ExpressInverseAttribute {
    std::string name;
    int line = 0;
    /// Who refers, and by which attribute.
    std::string user;
    std::string attribute;
    bool isAggregate = false;
    bool isBag = false;
    int lower = 1;
    /// -1 for "?".
    int upper = 1;
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
    std::vector<ExpressInverseAttribute> inverseAttributes = {};
    std::vector<ExpressUniquenessRule> uniquenessRules;
    std::vector<ExpressWhereRule> whereRules = {};
};

struct ExpressVariable {
    std::string name;
    ExpressType type;
    int line = 0;
    /// Its value at the beginning; null for none.
    ExpressionPointer value = nullptr;
    /// A parameter whose changes the caller sees.
    bool isVar = false;
};

/// A FUNCTION, or a PROCEDURE, which has no result.
struct ExpressFunction {
    std::string name;
    int line = 0;
    bool isProcedure = false;
    std::vector<ExpressVariable> parameters;
    ExpressType result;
    std::vector<ExpressVariable> constants;
    std::vector<ExpressVariable> locals;
    std::vector<StatementPointer> body;
};

/// A RULE, which judges whole populations.
struct ExpressGlobalRule {
    std::string name;
    int line = 0;
    std::vector<std::string> entities;
    std::vector<ExpressVariable> constants;
    std::vector<ExpressVariable> locals;
    std::vector<StatementPointer> body;
    std::vector<ExpressWhereRule> whereRules;
};

struct ExpressSchema {
    /// Empty when the source is declarations alone.
    std::string name;
    std::vector<ExpressDefinedType> types;
    std::vector<ExpressEntity> entities;
    std::vector<ExpressVariable> constants = {};
    std::vector<ExpressFunction> functions = {};
    std::vector<ExpressGlobalRule> globalRules = {};
};

} // namespace velkor::express
