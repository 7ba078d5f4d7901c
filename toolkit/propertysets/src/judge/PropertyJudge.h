/// One property or quantity held to what its definition says of it.
#pragma once

#include "judge/JudgedProperty.h"
#include "judge/PropertySlots.h"
#include "judge/SetCodes.h"
#include "judge/UnitFits.h"
#include "velkor/model/CodeFilter.h"
#include "velkor/sdai/Model.h"

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace velkor {

/// What is wrong with a property. As people are told: what has it, `before`, the name of the property, `after`.
struct Verdict {
    Code code;
    /// With the names of the complex properties that it is within: "Weather.Temperature".
    std::string property = {};
    std::string before = {};
    std::string after = {};
    std::string nearest = {};
};

struct PropertyOutcome {
    /// It has a value.
    bool isFilled = false;
    std::vector<Verdict> verdicts = {};
    /// Of a complex property beyond measure: verdicts that are only counted.
    std::uint64_t more = 0;
    /// How far within others it was judged, and whether that was too far to judge all of its members.
    int depth = 0;
    bool isCut = false;
};

/// What is shared by many sets and has a long text is judged once: time is in proportion to the text of the model.
class PropertyJudge {
public:
    PropertyJudge(const sdai::Model& model, const CodeFilter& codes);

    /// Where a property has what counts; null for what is neither property nor quantity.
    const PropertySlots* slotsOf(const Record& property) const noexcept { return _slots.of(property.entity()); }
    /// Findings that count.
    bool takes(Code code) const noexcept { return _isTaken[static_cast<std::size_t>(code)]; }

    /// Without a definition, kinds and types are not judged. Of findings that are not `described`, the code alone is
    /// told. The answer holds until the next question.
    const PropertyOutcome& judge(const Record& property, const PropertySlots& slots, JudgedProperty* wanted,
                                 bool isDescribed);

    /// A property that the definition does not have.
    Verdict unknown(PropertyNames& names, PropertyNames::Entry* entry, std::string_view name, bool isQuantity) const;
    /// A name that two properties have, by their numbers.
    Verdict repeated(std::uint32_t first, std::uint32_t second, std::string_view name) const;

private:
    struct Asked {
        const Record& property;
        const PropertySlots& slots;
        JudgedProperty* wanted;
    };
    using Key = std::pair<std::uint32_t, const JudgedProperty*>;
    struct KeyHash {
        std::size_t operator()(const Key& key) const noexcept;
    };

    const PropertyOutcome& remembered(const Asked& asked, int depth);
    void judgeOne(const Asked& asked, PropertyOutcome& outcome);
    void judgeMembers(const Asked& asked, PropertyOutcome& outcome, int depth);
    void judgeMember(const Asked& member, const Asked& whole, PropertyOutcome& outcome, int depth);
    static void addWithin(const Asked& whole, PropertyOutcome& outcome, Verdict verdict);
    bool judgeKind(const Asked& asked, PropertyOutcome& outcome);
    void judgeTypes(const Asked& asked, PropertyOutcome& outcome);
    void judgeReference(const Asked& asked, PropertyOutcome& outcome);
    void judgeEnumerators(const Asked& asked, PropertyOutcome& outcome);
    void judgeUnits(const Asked& asked, PropertyOutcome& outcome);
    const std::string* strangers(std::uint32_t enumeration, const JudgedProperty& wanted);
    const sdai::DefinedType* typeOf(std::string_view value, const PropertySlots::Value& slot) const;
    Verdict* add(Code code, const Asked& asked, PropertyOutcome& outcome) const;
    std::string instanceText(std::uint32_t number) const;

    const sdai::Model& _model;
    std::array<bool, codeCount> _isTaken = {};
    PropertySlotTable _slots;
    UnitFits _units;
    bool _isDescribed = true;
    // Of the property that was asked for last.
    PropertyOutcome _outcome;
    std::unordered_map<Key, PropertyOutcome, KeyHash> _remembered;
    // What an enumeration of the model has beside the members of a definition, as people are told; empty for nothing.
    std::unordered_map<Key, std::string, KeyHash> _strangers;
};

} // namespace velkor
