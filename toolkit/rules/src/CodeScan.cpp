#include "CodeScan.h"

#include <algorithm>

namespace velkor::rules {

namespace {

/// Calls `take(operation, operands)` for each operation of a piece of code, which ends with the first RETURN that no
/// jump leads beyond.
template <class Take>
void forEachOperation(std::span<const std::uint16_t> code, std::uint32_t begin, Take take) {
    std::size_t furthest = 0;
    for (std::size_t at = begin + std::size_t{1}; at < code.size();) {
        const auto operation = static_cast<Operation>(code[at]);
        const std::uint16_t* operands = code.data() + at + 1;
        take(operation, operands);
        if (operation >= Operation::Jump && operation <= Operation::JumpIfTrue)
            furthest = std::max<std::size_t>(furthest, begin + operands[0]);
        if (operation == Operation::QueryBegin) furthest = std::max<std::size_t>(furthest, begin + operands[2]);
        at += 1 + operandCount(operation, operands);
        if (operation == Operation::Return && at > furthest) return;
    }
}

class Scan {
public:
    explicit Scan(const RuleStore& store) : _store(store) { _needs.attributes.resize(store.textPlaces.size()); }

    void piece(std::uint32_t code) {
        TextId text = noText;
        forEachOperation(_store.code, code, [&](Operation operation, const std::uint16_t* operands) {
            if (operation == Operation::Attribute || operation == Operation::SelfAttribute)
                _needs.attributes[operands[0]] = true;
            const bool asksUsers =
                operation == Operation::Builtin && operands[0] == static_cast<std::uint16_t>(BuiltinFunction::UsedIn);
            if (asksUsers && text != noText) _needs.roles.push_back(text);
            text = operation == Operation::String ? operands[0] : noText;
        });
    }

    CodeNeeds needs() {
        std::ranges::sort(_needs.roles);
        _needs.roles.erase(std::unique(_needs.roles.begin(), _needs.roles.end()), _needs.roles.end());
        return std::move(_needs);
    }

private:
    const RuleStore& _store;
    CodeNeeds _needs;
};

} // namespace

std::size_t operandCount(Operation operation, const std::uint16_t* at) noexcept {
    switch (operation) {
    case Operation::Integer:
    case Operation::WideInteger:
    case Operation::Real:
    case Operation::String:
    case Operation::Binary:
    case Operation::TypeName:
    case Operation::Population:
    case Operation::Load:
    case Operation::Store:
    case Operation::Attribute:
    case Operation::SelfAttribute:
    case Operation::Group:
    case Operation::AsType:
    case Operation::IsOfType:
    case Operation::Jump:
    case Operation::JumpUnlessTrue:
    case Operation::JumpIfFalse:
    case Operation::JumpIfTrue:
    case Operation::Builtin:
        return 1;
    case Operation::Enumerator:
    case Operation::Call:
    case Operation::Construct:
        return 2;
    case Operation::QueryBegin:
    case Operation::QueryNext:
        return 3;
    case Operation::StorePart:
        return std::size_t{2} + at[1];
    default:
        return 0;
    }
}

CodeNeeds codeNeeds(const RuleStore& store, const RuleTables& tables) {
    Scan scan(store);
    for (const auto rules : {tables.entityRules, tables.typeRules, tables.globalRules}) {
        for (const WhereRule& rule : rules) scan.piece(rule.code);
    }
    for (const DerivedAttribute& attribute : tables.derivedAttributes) scan.piece(attribute.code);
    for (const Function& function : tables.functions) scan.piece(function.code);
    return scan.needs();
}

} // namespace velkor::rules
