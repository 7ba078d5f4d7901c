/// Which types of the source have values that a type of the target takes as they are written.
#pragma once

#include "release/ReleasePlan.h"

#include <map>
#include <string_view>
#include <utility>

namespace velkor::exchange {

class TypeFit {
public:
    explicit TypeFit(const ReleasePlan& plan) : _plan(plan) {}

    /// Whether no value of the source's type has to be looked at.
    bool isRaw(const sdai::Type& from, const sdai::Type& to);
    /// With it, no type that may refer to instances is.
    void lookAtReferences(bool isOn);

private:
    bool findRaw(const sdai::Type& from, const sdai::Type& to);
    bool isRawSelect(const sdai::SelectType& from, const sdai::Type& to);

    const ReleasePlan& _plan;
    bool _looksAtReferences = false;
    std::map<std::pair<const sdai::Type*, const sdai::Type*>, bool> _known;
};

} // namespace velkor::exchange
