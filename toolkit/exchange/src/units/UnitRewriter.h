/// Writes the values of a model in other units.
#pragma once

#include "ChangeList.h"
#include "units/ParameterSpaces.h"
#include "units/UnitPlans.h"
#include "velkor/model/Progress.h"
#include "velkor/sdai/Part21Edit.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace velkor::exchange {

class UnitRewriter final : public sdai::RecordRewriter {
public:
    UnitRewriter(const sdai::Model& model, MeasureRatios& ratios, const sdai::Part21Edit& edit, ChangeList& changes,
                 const Progress& progress);

    bool wants(std::uint16_t keyword) const override;
    Outcome rewrite(const sdai::RecordView& record, sdai::RecordOutput& output) override;

    /// After the last record.
    void finish() { noteUnseen(_model.file().instanceCount()); }

    std::uint64_t converted() const noexcept { return _converted; }
    bool isEnded() const noexcept { return _isEnded; }

private:
    using Slot = UnitPlan::Slot;

    bool isWanted(std::uint16_t keyword) const;
    void keepOwnUnits();
    void keepCells(std::uint32_t table);
    void noteUnseen(std::uint32_t before);
    bool convertRecord(const sdai::RecordView& record, const sdai::EntityDefinition& entity, std::string& text);
    bool convert(const sdai::RecordView& record, const sdai::EntityDefinition& entity, std::size_t slot,
                 std::string& text);
    bool convertPlain(const Slot& slot, std::string_view value, std::string& text);
    bool numbers(std::string_view value, const Ratio& ratio, std::string& text);
    bool whole(std::string_view integer, const Ratio& ratio, std::string& text);
    bool wholes(std::string_view value, const Ratio& ratio, std::string& text);
    /// But for the cells that are kept, when there are such.
    bool typedValues(std::string_view value, const std::vector<bool>* kept, std::string& text);
    bool inSpace(const sdai::RecordView& record, const Slot& slot, std::string_view attribute,
                 ParameterSpaces::Pair space, std::string_view value, std::string& text);
    bool powers(std::string_view value, std::string& text);
    bool pair(std::string_view value, ParameterSpaces::Pair space, std::string& text);
    bool parameter(const sdai::RecordView& record, const sdai::EntityDefinition& entity, std::string_view attribute,
                   std::string_view value, std::string& text);
    bool number(std::string_view real, const Ratio& ratio, std::string& text);
    bool coordinateOperation(const sdai::RecordView& record, const sdai::EntityDefinition& entity, std::string& text);
    bool hasUnit(std::string_view system, std::string_view attribute) const;
    bool isInUnitOf(std::string_view system, std::string_view attribute) const;
    void note(const ConversionRule& rule, std::string_view detail);

    const sdai::Model& _model;
    MeasureRatios& _ratios;
    const sdai::Part21Edit& _edit;
    ChangeList& _changes;
    const Progress& _progress;
    mutable UnitPlans _plans{_ratios};
    ParameterSpaces _spaces{_model, _ratios};
    // Whose values are in a unit that another instance names.
    std::unordered_set<std::uint32_t> _withOwnUnit;
    // Columns with a unit of their own, of the tables that have such, and the tables of rows.
    std::vector<std::vector<bool>> _keptColumns;
    std::unordered_map<std::uint32_t, std::size_t> _tables;
    // By keyword number.
    std::vector<char> _isWanted;
    std::uint32_t _number = 0;
    // The first number that was not met yet.
    std::uint32_t _next = 0;
    std::uint32_t _nextProgress = 0;
    std::uint64_t _converted = 0;
    bool _isEnded = false;
    std::vector<RatioNumber> _powers;
    // For a map in another unit, and from a system in another unit.
    Ratio _mapScale;
    Ratio _sourceScale;
};

} // namespace velkor::exchange
