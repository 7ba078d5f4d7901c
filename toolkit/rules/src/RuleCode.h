/// The code that rules, derived attributes and functions of EXPRESS schemas are compiled to, and that RuleMachine runs.
///
/// A piece of code is a row of 16-bit units in RuleStore::code. Its first unit is the number of local places that it
/// needs; behind it stand operations, each with as many operand units as its line says. An operation takes its values
/// from a stack and leaves its answer there; "a b -> c" means that b lies on top before and c afterwards. Names are
/// positions in the store's texts, so that the code of a rule is the same in every release that states it alike. A
/// target is the position of an operation counted from the first unit of the piece.
#pragma once

#include <cstdint>

namespace velkor::rules {

enum class Operation : std::uint16_t {
    // Values.
    Indeterminate, ///< -> ?
    False,         ///< -> FALSE
    Unknown,       ///< -> UNKNOWN
    True,          ///< -> TRUE
    Integer,       ///< -> operand, a signed 16-bit number
    WideInteger,   ///< -> store.integers[operand]
    Real,          ///< -> store.reals[operand]
    String,        ///< -> store text of the operand; UTF-8
    Binary,        ///< -> store text of the operand: digits 0 and 1
    TypeName,      ///< -> the text 'SCHEMA.NAME' of the type whose name is the operand, as TYPEOF answers it
    Enumerator,    ///< -> an enumerator. Operands: name of its type or noName, the enumerator in upper case
    Self,          ///< -> SELF: the instance, or the value of a defined type, that is judged
    Population,    ///< -> SET of all instances of the entity of the operand, subtypes included

    // Variables. A variable is a local place; its value is ? until it is set.
    Load,  ///< -> value of the local place of the operand
    Store, ///< value -> ; into the local place of the operand
    /// index… value -> ; assigns to a part of a variable: U[2].Ratios[1]. Operands: local place, number of steps n,
    /// then n
    /// steps from the variable to the part: stepIndex takes the next of the indexes on the stack, any other is the name
    /// of
    /// an attribute. An instance of the model is copied first, never changed.
    StorePart,
    Drop,      ///< value ->
    Duplicate, ///< value -> value value

    // Parts of values.
    Attribute,     ///< value -> its attribute of the operand's name, explicit, derived or inverse; ? when it has none
    SelfAttribute, ///< -> the same of SELF
    Group,         ///< value -> the same value when it is of the entity of the operand, else ?
    Index,         ///< aggregate-or-string index -> member; ? beyond the bounds
    Slice,         ///< string-or-binary first last -> part

    // Aggregates.
    EmptyAggregate, ///< -> an aggregate initialiser without members: adapts to the LIST, SET, BAG or ARRAY it meets
    Append,         ///< aggregate value -> aggregate
    AppendRepeated, ///< aggregate value count -> aggregate
    AsList,         ///< value -> value; an aggregate as what a variable is declared to be
    AsSet,          ///< the same; equal members fall together
    AsBag,
    AsArray, ///< value low high -> value
    AsType,  ///< value -> the same value as one of the defined type of the operand, for TYPEOF

    // Operators of ISO 10303-11, clause 12.
    Add, ///< numbers, strings, binaries, aggregates
    Subtract,
    Multiply, ///< numbers, intersection
    Divide,
    IntegerDivide,
    Modulo,
    Power,
    Negate,
    Not,
    And,
    Or,
    Xor,
    Equal,
    NotEqual,
    Less,
    LessOrEqual, ///< of aggregates: subset
    Greater,
    GreaterOrEqual, ///< of aggregates: superset
    InstanceEqual,
    InstanceNotEqual,
    In,
    Like,
    /// value -> LOGICAL; whether the type of the operand is among TYPEOF(value): FALSE of ?
    IsOfType,

    // Control.
    Jump,           ///< target
    JumpUnlessTrue, ///< logical -> ; target
    JumpIfFalse,    ///< logical -> logical; target, taken when FALSE: the rest of an AND is not evaluated
    JumpIfTrue,     ///< logical -> logical; target, taken when TRUE: the rest of an OR is not evaluated
    /// aggregate -> aggregate position result; begins a QUERY. Operands: local place of its variable, 1 when only the
    /// number of members counts (result is an INTEGER then) or 0 (an aggregate of the same kind), target behind the
    /// QUERY.
    /// Sets the variable to the first member. Of ? leaves ?, of an empty aggregate the empty result, and jumps.
    QueryBegin,
    /// aggregate position result logical -> result, or back to the body. Takes the member when TRUE and goes to the
    /// next.
    /// Operands: local place, as above, target of the body.
    QueryNext,
    Call,      ///< arguments -> result. Operands: name of the function, number of arguments
    Return,    ///< value -> ; ends the function or the rule
    Construct, ///< explicit attributes in the order of an instance -> an entity value of the operand's entity; operand
               ///< 2: their number
    Builtin,   ///< arguments -> result; operand: BuiltinFunction
};

/// Built-in functions of ISO 10303-11, clause 15, with the number of their arguments.
enum class BuiltinFunction : std::uint16_t {
    Abs,         ///< 1
    ACos,        ///< 1
    ASin,        ///< 1
    ATan,        ///< 2
    BLength,     ///< 1
    Cos,         ///< 1
    Exists,      ///< 1
    Exp,         ///< 1
    Format,      ///< 2
    HiBound,     ///< 1
    HiIndex,     ///< 1
    Length,      ///< 1
    LoBound,     ///< 1
    Log,         ///< 1
    Log2,        ///< 1
    Log10,       ///< 1
    LoIndex,     ///< 1
    Nvl,         ///< 2
    Odd,         ///< 1
    RolesOf,     ///< 1
    Sin,         ///< 1
    SizeOf,      ///< 1
    Sqrt,        ///< 1
    Tan,         ///< 1
    TypeOf,      ///< 1
    UsedIn,      ///< 2: the role is 'ENTITY.ATTRIBUTE' in upper case, without the schema's name; empty for all roles
    Value,       ///< 1
    ValueIn,     ///< 2
    ValueUnique, ///< 1
    // Built-in procedures, as functions that give the list anew.
    Insert, ///< 3: list, element, position behind which it goes
    Remove, ///< 2: list, position
};

/// In place of a name where there is none.
inline constexpr std::uint16_t noName = 0xFFFF;
/// A step of StorePart that takes an index from the stack.
inline constexpr std::uint16_t stepIndex = 0xFFFF;

} // namespace velkor::rules
