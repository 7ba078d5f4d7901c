/// Writes the values of a model in other units.
#pragma once

#include "ChangeList.h"
#include "units/ParameterSpaces.h"
#include "units/UnitPlans.h"
#include "velkor/model/Progress.h"
#include "velkor/sdai/Part21Edit.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace velkor::exchange {

class UnitRewriter final : public sdai::RecordRewriter {
public:
    UnitRewriter(const sdai::Model& model, MeasureRatios& ratios, ChangeList& changes, const Progress& progress);

    bool wants(std::uint16_t keyword) const override;
    Outcome rewrite(const sdai::RecordView& record, sdai::RecordOutput& output) override;

    std::uint64_t converted() const noexcept { return _converted; }
    bool isEnded() const noexcept { return _isEnded; }

private:
    using Slot = UnitPlan::Slot;

    void keepOwnUnits();
    bool convert(const sdai::RecordView& record, const sdai::EntityDefinition& entity, std::size_t slot,
                 std::string& text);
    bool convertPlain(const Slot& slot, std::string_view value, std::string& text);
    bool numbers(std::string_view value, const Ratio& ratio, std::string& text);
    bool whole(std::string_view integer, const Ratio& ratio, std::string& text);
    bool wholes(std::string_view value, const Ratio& ratio, std::string& text);
    bool typedValues(std::string_view value, std::string& text);
    bool powers(std::string_view value, std::string& text);
    bool pair(std::string_view value, ParameterSpaces::Pair space, std::string& text);
    bool parameter(const sdai::RecordView& record, const sdai::EntityDefinition& entity, std::string_view attribute,
                   std::string_view value, std::string& text);
    bool number(std::string_view real, const Ratio& ratio, std::string& text);
    bool mapConversion(const sdai::RecordView& record, const sdai::EntityDefinition& entity, std::string& text);
    bool hasMapUnit(std::string_view targetSystem) const;
    void note(const ConversionRule& rule, std::string_view detail);

    const sdai::Model& _model;
    MeasureRatios& _ratios;
    ChangeList& _changes;
    const Progress& _progress;
    mutable UnitPlans _plans{_ratios};
    ParameterSpaces _spaces{_model, _ratios};
    // Whose values are in a unit that another instance names.
    std::unordered_set<std::uint32_t> _withOwnUnit;
    std::uint32_t _number = 0;
    std::uint64_t _converted = 0;
    bool _isEnded = false;
    std::vector<RatioNumber> _powers;
    Ratio _mapScale;
};

} // namespace velkor::exchange
