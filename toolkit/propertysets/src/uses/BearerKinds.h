/// The objects that sets are attached to, by what a set may ask of them. What goes for one goes for all that are alike.
#pragma once

#include "records/Record.h"
#include "uses/SetUses.h"
#include "velkor/propertysets/SetApplicability.h"

#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velkor {

/// All that a set may ask of an object.
struct BearerDetail {
    ObjectKind kind;
    /// Of the object and of its type.
    std::string_view predefinedType, typePredefinedType;
    std::string objectType, typeObjectType;

    /// What might tell its kind is unset: a material without a category.
    bool isOpen = false;

    /// Reads the instances of the object and its type.
    BearerDetail(Record& record, const SetUses& uses, ObjectIndex object);
    SetBearer bearer() const noexcept;
    bool operator==(const BearerDetail&) const = default;
};

struct BearerDetailHash {
    std::size_t operator()(const BearerDetail& detail) const noexcept;
};

/// Groups of several objects are looked at once; what is given out holds until the next question.
class BearerKinds {
public:
    template <class Kind>
    struct Alike {
        Kind kind;
        SetUse use;
    };

    BearerKinds(const sdai::Model& model, const SetUses& uses) : _record(model), _uses(uses) {}

    const SetUses& uses() const noexcept { return _uses; }
    /// The objects of a group by their entities, in the order in which the first of each stands.
    std::span<const Alike<ObjectKind>> kindsOf(std::uint32_t group);
    /// The same by all that a set may ask of them.
    std::span<const Alike<BearerDetail>> detailsOf(std::uint32_t group);

private:
    template <class Kind>
    struct Groups {
        std::unordered_map<std::uint32_t, std::vector<Alike<Kind>>> several;
        // Of the one object of the group that was asked for last.
        std::vector<Alike<Kind>> single;
    };

    Record _record;
    const SetUses& _uses;
    Groups<ObjectKind> _kinds;
    Groups<BearerDetail> _details;
};

} // namespace velkor
