/// The pass over the instances of a model.
#pragma once

#include "ProblemList.h"
#include "velkor/sdai/Part21Lexer.h"
#include "velkor/sdai/PopulationCheck.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velkor::sdai::model {

class PopulationChecker {
public:
    PopulationChecker(const Model& model, const PopulationCheckOptions& options);

    void check();
    /// What is wrong with a value for an attribute of an entity, in one line; nothing when it may stand there. `find`
    /// says which entity an instance is of, null for one that there is not.
    std::optional<std::string> judge(const EntityDefinition& entity, std::size_t slot, std::string_view value,
                                     std::function<const EntityDefinition*(std::uint64_t id)> find);
    /// Whether instances of an entity have "*" at a place, by the dictionary or what was told besides.
    bool derives(const EntityDefinition& entity, std::size_t slot) const;
    part21::ProblemList& problems() noexcept { return _problems; }

private:
    void checkInstance(std::uint32_t number);
    void checkComplex(std::string_view text);
    const EntityDefinition* checkEntity(std::string_view keyword, bool isPart);
    void checkAttributes(const EntityDefinition& entity);
    void checkAttribute(const AttributeSlot& slot);
    void takeDerived(const DerivedSlot& derived);
    bool isDerived(const AttributeSlot& slot) const;

    bool isNumber(const Type& declared) const;
    void checkValue(const Type& type);
    void checkSimple(const SimpleType& type, const Type& declared, const Token& token);
    void checkText(const SimpleType& type, const Type& declared, const Token& token);
    void checkEnumeration(const EnumerationType& type, const Token& token);
    void checkReference(const EntityDefinition& type, const Token& token);
    void checkSelect(const SelectType& type, const Type& declared, const Token& token);
    void checkAggregate(const AggregateType& type, const Type& declared, const Token& token);
    const EntityDefinition* referred(const Token& token);

    void unexpected(const Type& declared, const Token& token);
    void report(Severity severity, const char* at, ProblemCode code, const std::string& message);

    const Model& _model;
    const PopulationCheckOptions& _options;
    part21::ProblemList _problems;
    // Places whose derivation the dictionary does not carry, by position of the entity; sorted.
    std::vector<std::pair<std::uint32_t, std::size_t>> _derivedElsewhere;
    Part21Lexer _lexer{std::string_view()};
    std::uint64_t _instance = 0;
    // In place of the model's own instances.
    std::function<const EntityDefinition*(std::uint64_t id)> _find;
    // What is being checked, for messages.
    const EntityDefinition* _entity = nullptr;
    const Attribute* _attribute = nullptr;
};

} // namespace velkor::sdai::model
