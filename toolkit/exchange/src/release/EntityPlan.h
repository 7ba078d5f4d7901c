/// How the attributes of instances of one entity become those of another.
#pragma once

#include "release/ReleaseNames.h"
#include "release/TypeFit.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velkor::exchange {

struct EntityPlan {
    struct Slot {
        const sdai::Attribute* attribute = nullptr;
        /// Place among the source's attributes; -1 for none.
        int source = -1;
        const sdai::Type* from = nullptr;
        /// Values are taken as they are written.
        bool isRaw = false;
        bool isDerived = false;
        bool isRequired = false;
        /// An aggregate that stays only with all of its members.
        bool isWhole = false;
        /// Why it has another name; null for most.
        const ConversionRule* renamed = nullptr;
        /// Of a required attribute, nearest first.
        std::vector<const DefaultRule*> defaults;
        /// Of the version mapping document; empty for most.
        std::string introduced;
    };
    const sdai::EntityDefinition* source = nullptr;
    const sdai::EntityDefinition* target = nullptr;
    std::vector<Slot> slots;
    /// Places of source attributes that the target lacks.
    std::vector<std::size_t> dropped;
    /// Place among the slots of the text that says what a supertype or USERDEFINED stands for; -1 for none.
    int userText = -1;
    /// Place of PREDEFINEDTYPE, whose own text that is.
    int predefinedType = -1;
    /// Records stay as they are.
    bool isIdentity = false;
    /// Some instance may lack what it needs.
    bool isRisky = false;
};

/// Plans, made when first asked for.
class EntityPlans {
public:
    EntityPlans(const ReleasePlan& plan, TypeFit& fit) : _plan(plan), _fit(fit) {}

    const EntityPlan& plan(const sdai::EntityDefinition& source, const sdai::EntityDefinition& target);
    void forget() { _plans.clear(); }

private:
    std::unique_ptr<EntityPlan> make(const sdai::EntityDefinition& source, const sdai::EntityDefinition& target);

    const ReleasePlan& _plan;
    TypeFit& _fit;
    std::map<std::pair<const sdai::EntityDefinition*, const sdai::EntityDefinition*>, std::unique_ptr<EntityPlan>>
        _plans;
};

} // namespace velkor::exchange
