/// Expressions and statements of EXPRESS (ISO 10303-11, clauses 12 and 13) as trees. Names are as spelled in the
/// source.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace velkor::express {

struct Expression;
/// Trees are never changed once they are read.
using ExpressionPointer = std::shared_ptr<const Expression>;

enum class Operator : std::uint8_t {
    Plus,  ///< the sign
    Minus, ///< the sign
    Not,
    Power,
    Multiply,
    Divide,
    IntegerDivide,
    Modulo,
    And,
    Combine, ///< "||" of entity constructors
    Add,
    Subtract,
    Or,
    Xor,
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    InstanceEqual,
    InstanceNotEqual,
    In,
    Like,
};

struct Expression {
    enum class Kind : std::uint8_t {
        Integer,       ///< text: digits
        Real,          ///< text: as spelled
        String,        ///< text: the content, quotes undoubled
        Binary,        ///< text: digits 0 and 1
        Indeterminate, ///< ?
        Self,
        Name,      ///< text; also TRUE, FALSE, UNKNOWN, PI, CONST_E, an enumerator, a population in a RULE
        Attribute, ///< operand.text
        Group,     ///< operand\text
        Index,     ///< operand[operand], operand[operand : operand]
        Call,      ///< text(operands): function, built-in one or entity constructor
        Unary,     ///< operation operand
        Infix,     ///< operand operation operand
        Interval,  ///< {operand < operand < operand}
        Query,     ///< QUERY(text <* operand | operand)
        Aggregate, ///< [operands]; repetitions beside them
    };
    Kind kind = Kind::Indeterminate;
    int line = 0;
    /// Of the tree below.
    int depth = 0;
    std::string text = {};
    std::vector<ExpressionPointer> operands = {};
    Operator operation = Operator::Plus;
    /// Of an aggregate: for each operand how often it stands, null for once.
    std::vector<ExpressionPointer> repetitions = {};
    // Of an interval.
    bool isLowInclusive = false;
    bool isHighInclusive = false;
};

struct Statement;
using StatementPointer = std::shared_ptr<const Statement>;

struct Statement {
    enum class Kind : std::uint8_t {
        Null,
        Assignment, ///< first := second
        Call,       ///< first, a Call or the Name of a procedure without arguments
        If,         ///< first; body, otherwise
        Case,       ///< first; branches, otherwise
        Repeat,     ///< text := first TO second BY third, WHILE, UNTIL; body
        Alias,      ///< text FOR first; body
        Compound,   ///< body
        Return,     ///< first, null without a value
        Escape,
        Skip,
    };
    struct Branch {
        std::vector<ExpressionPointer> labels;
        StatementPointer statement;
    };
    Kind kind = Kind::Null;
    int line = 0;
    std::string text = {};
    ExpressionPointer first = nullptr;
    ExpressionPointer second = nullptr;
    ExpressionPointer third = nullptr;
    ExpressionPointer whileTrue = nullptr;
    ExpressionPointer untilTrue = nullptr;
    std::vector<StatementPointer> body = {};
    std::vector<StatementPointer> otherwise = {};
    std::vector<Branch> branches = {};
};

} // namespace velkor::express
