/// Writes the instances of a model as the plan of a release says.
#pragma once

#include "ChangeList.h"
#include "release/EntityPlan.h"
#include "release/Rebuilding.h"
#include "release/ReleasePlan.h"
#include "release/TypeFit.h"
#include "release/ValueTranslator.h"
#include "velkor/model/Progress.h"
#include "velkor/sdai/Part21Edit.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velkor::exchange {

class ReleaseRewriter final : public sdai::RecordRewriter, private Rebuilding, private ValueNotes {
public:
    ReleaseRewriter(ReleasePlan& plan, ChangeList& changes, std::string timeStamp, const Progress& progress);

    /// Takes back successors of instances that would lack what they need, and of those that need these, until all that
    /// is left can stand. To be called before anything is written.
    void settle();

    bool wants(std::uint16_t keyword) const override;
    Outcome rewrite(const sdai::RecordView& record, sdai::RecordOutput& output) override;

    /// Counts of what was seen; what was copied unseen is not among it.
    struct Counts {
        std::uint64_t kept = 0;
        std::uint64_t converted = 0;
        std::uint64_t rebuilt = 0;
        std::uint64_t lost = 0;
        std::uint64_t added = 0;
    };
    const Counts& counts() const noexcept { return _counts; }
    bool isEnded() const noexcept { return _isEnded; }

private:
    /// An id that no instance has, for those that would be added.
    static constexpr std::uint64_t nowhere = 0xFFFFFFFFFFFFFFFF;
    /// What stops a record.
    struct Missing {
        const ConversionRule* rule = nullptr;
        std::string_view attribute;
    };

    const sdai::Model& source() const override { return _plan.model(); }
    const Releases& releases() const override { return _plan.releases(); }
    std::uint64_t id() const override { return _plan.model().file().id(_record.number); }
    const sdai::EntityDefinition& entity() const override { return *_outcome->source; }
    DXSdaiAppInstance& instance() const override {
        _isAskedAll = true;
        return *_plan.model().instanceAt(_record.number);
    }
    std::string_view encoded(std::string_view attribute) const override;
    std::optional<std::string> translated(std::string_view encoded, const sdai::Type& from,
                                          const sdai::Type& to) override;
    RecordBuilder carried(const sdai::EntityDefinition& entity) override;
    const sdai::EntityDefinition* successorOf(std::uint64_t id) const override;
    std::uint64_t reserved(std::uint64_t id) const override { return _plan.reserved(id); }
    std::any& remembered(std::uint64_t id) override { return _plan.remembered(id); }
    void become(const RecordBuilder& record) override;
    std::uint64_t add(const RecordBuilder& record) override { return add(record.text()); }
    void add(std::uint64_t id, const RecordBuilder& record) override { add(id, record.text()); }
    std::uint64_t add(std::string_view record) override;
    void add(std::uint64_t id, std::string_view record) override;
    std::uint64_t shared(std::string_view key, std::uint64_t (*make)(Rebuilding& rebuilding)) override {
        return sharedBy(key, [&] { return make(*this); });
    }
    std::uint64_t shared(std::string_view key,
                         std::uint64_t (*make)(Rebuilding& rebuilding, std::string_view key)) override {
        return sharedBy(key, [&] { return make(*this, key); });
    }
    template <class Make>
    std::uint64_t sharedBy(std::string_view key, Make make) {
        if (_isDry) return nowhere;
        const auto [found, isNew] = _shared.try_emplace(std::string(key), 0);
        // What is made may ask for others, and move those that are there.
        return isNew ? _shared[std::string(key)] = make() : found->second;
    }
    std::string_view timeStamp() const override { return _timeStamp; }
    void note(const ConversionRule& rule, std::string detail) override;
    void note(const ConversionRule& rule, const std::function<std::string()>& detail) override;

    /// False when a record has another number of parameters than its entity has attributes.
    bool begin(const sdai::RecordView& record);
    void makeRecord();
    bool isUnchanged() const;
    bool canStand(std::uint32_t number);
    bool loseOrMakePlainer(std::uint32_t number);
    void dropRisky();
    void dropUsers(std::vector<std::uint32_t> gone);
    std::vector<std::uint32_t> dropLeftOvers();
    bool isNeeded(std::uint32_t number, std::size_t lostUsers) const;
    void takeValues(const EntityPlan& plan, std::vector<std::string>& values);
    void takeLater(const EntityPlan& plan, std::vector<std::string>& values);
    bool takeValue(const EntityPlan& plan, const EntityPlan::Slot& slot, std::string& value);
    bool takeDefault(const EntityPlan::Slot& slot, std::string& value);
    std::string* userText(const EntityPlan& plan, std::size_t slot, std::vector<std::string>& values) const;
    void keepTexts(const EntityPlan& plan, std::vector<std::string>& values);
    void noteDropped(const EntityPlan& plan, const std::vector<std::string>& values);
    void keepPredefinedType(const EntityPlan& plan, std::vector<std::string>& values);
    bool isAsked(std::string_view attribute) const;
    bool refersToGone(std::string_view value) const;
    void noteLoss(const EntityPlan::Slot& slot, std::string_view value);
    ReleasePlan& _plan;
    ChangeList& _changes;
    std::string _timeStamp;
    const Progress& _progress;
    TypeFit _fit{_plan};
    // Asked for plans by the questions of the writer too.
    mutable EntityPlans _plans{_plan, _fit};
    ValueTranslator _values{_plan, _fit, *this, *this};
    Counts _counts;
    bool _isEnded = false;

    // The instance at work.
    sdai::RecordReader _reader;
    sdai::RecordView _record;
    const exchange::Outcome* _outcome = nullptr;
    sdai::RecordOutput* _output = nullptr;
    // While it is only asked whether an instance can stand nothing is added and nothing noted.
    bool _isDry = false;
    bool _hasNote = false;
    std::string_view _attribute;
    // Slots with USERDEFINED, and what that stands for.
    std::vector<std::pair<std::size_t, std::string>> _userDefined;
    std::string _become;
    // Kept from record to record for their memory.
    std::vector<std::string> _slotValues;
    // What a rule has asked of the instance: of the rest it says nothing.
    mutable std::vector<std::string_view> _asked;
    mutable bool _isAskedAll = false;
    Missing _missing;
    // What carried() found missing last.
    Missing _missingCarried;
    std::unordered_map<std::string, std::uint64_t> _shared;
};

} // namespace velkor::exchange
