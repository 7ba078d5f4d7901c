/// Values of the source in the form that types of the target want.
#pragma once

#include "release/Rebuilding.h"
#include "release/ReleasePlan.h"
#include "release/TypeFit.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::exchange {

/// Takes down what happened to a value; the detail is asked for when it is wanted.
class ValueNotes {
public:
    virtual ~ValueNotes() = default;
    virtual void note(const ConversionRule& rule, const std::function<std::string()>& detail) = 0;
};

class ValueTranslator {
public:
    ValueTranslator(const ReleasePlan& plan, TypeFit& fit, Rebuilding& rebuilding, ValueNotes& notes)
        : _plan(plan), _fit(fit), _rebuilding(rebuilding), _notes(notes) {}

    /// Puts a value behind a text. False, and the text is what it was, when nothing of it can be said. What does not
    /// fit the source's own type is not understood and stays as it is.
    bool translate(std::string_view value, const sdai::Type& from, const sdai::Type& to, std::string& text);

    /// Whether an aggregate that loses a member is lost as a whole, until this is said otherwise.
    void keepWhole(bool isWhole) { _isWhole = isWhole; }

    /// An enumerator that became USERDEFINED since this was asked last; empty for none.
    std::string takeUserDefined();

    /// A text, a number or an enumerator as people write it, in the form of a type of the target; nothing when it
    /// has none.
    std::optional<std::string> encoded(std::string_view plain, const sdai::Type& to) const;

private:
    bool reference(std::string_view value, const sdai::Type& from, const sdai::Type& to, std::string& text);
    bool typedValue(std::string_view value, const sdai::Type& from, const sdai::Type& to, std::string& text);
    static bool enumerationOf(const sdai::SelectType& select, std::string_view value, std::string& text);
    bool enumeration(std::string_view value, const sdai::Type& from, const sdai::Type& to, std::string& text);
    bool aggregate(std::string_view value, const sdai::Type& from, const sdai::Type& to, std::string& text);
    bool members(std::string_view value, const sdai::AggregateType& from, const sdai::AggregateType& to,
                 std::string& text);
    bool simple(std::string_view value, const sdai::Type& from, const sdai::Type& to, std::string& text);
    bool asSimple(std::string_view value, const sdai::SimpleType& from, const sdai::SimpleType& to, std::string& text);
    bool number(std::string_view value, const sdai::SimpleType& to, std::string& text);
    bool shortText(std::string_view value, const sdai::SimpleType& to, std::string& text);

    /// What a value of a defined type can be in a select: the type by name, else one with the same simple type.
    const sdai::DefinedType* choice(const sdai::SelectType& select, const sdai::Type& type) const;
    bool chosen(std::string_view value, const sdai::Type& from, const sdai::SelectType& select, std::string& text);
    bool adapted(std::string_view value, const sdai::Type& from, const sdai::Type& to, std::string& text);
    bool single(std::string_view value, const sdai::Type& from, const sdai::Type& to, std::string& text);

    const ReleasePlan& _plan;
    TypeFit& _fit;
    Rebuilding& _rebuilding;
    ValueNotes& _notes;
    std::string _userDefined;
    // Of a member of an aggregate rules may make several.
    bool _isMember = false;
    bool _isWhole = false;
};

} // namespace velkor::exchange
