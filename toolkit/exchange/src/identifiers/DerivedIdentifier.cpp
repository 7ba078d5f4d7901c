#include "DerivedIdentifier.h"

#include "velkor/identifiers/GuidText.h"
#include "velkor/identifiers/NamedGuid.h"

namespace velkor::exchange {

namespace {

// Drawn at random, once.
constexpr guid::Uuid space{0xdd, 0xda, 0x33, 0x38, 0xaf, 0x56, 0x48, 0x20,
                           0x80, 0xd6, 0x21, 0x3f, 0x4e, 0x2e, 0x1f, 0x3b};

} // namespace

std::string derivedIdentifier(std::string_view text) {
    return guid::compressed(guid::named(space, text)).value();
}

} // namespace velkor::exchange
