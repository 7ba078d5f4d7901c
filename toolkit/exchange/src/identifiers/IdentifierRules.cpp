#include "IdentifierRules.h"

namespace velkor::exchange {

constexpr ConversionRule malformedIdentifier{
    "malformed-identifier", Effect::Converted, "A malformed GlobalId becomes one that is well-formed",
    "IFC wants 22 characters that are a number of 128 bits. The new one is a hash of the old one and of what the "
    "instance is and stands under, so that it is the same on every run"};
constexpr ConversionRule missingIdentifier{
    "missing-identifier", Effect::Converted, "An instance without GlobalId gets one",
    "Every rooted instance has to have one. It is a hash of what the instance is and stands under, so that it is the "
    "same on every run"};
constexpr ConversionRule duplicateIdentifier{
    "duplicate-identifier", Effect::Converted, "A GlobalId that an earlier instance has is replaced",
    "It has to be unique in a file. The first in the file keeps its own, which other files may refer to"};
constexpr ConversionRule plmIdentifier{
    "plm-identifier", Effect::Converted, "The GlobalId is made from the PLM identifier",
    "The service of identifiers makes the same of a PLM identifier at every exchange"};
constexpr ConversionRule plmIdentifierBeyond{
    "plm-identifier-beyond", Effect::Lost, "The GlobalId made from the PLM identifier is beyond 128 bits",
    "The service may begin it with any of 64 characters where IFC allows \"0\" to \"3\". It stands as the service "
    "makes "
    "it, for that is what other exchanges know the object by; repairing identifiers makes it well-formed"};
constexpr ConversionRule plmIdentifierTaken{
    "plm-identifier-taken", Effect::Kept, "The GlobalId stays where that of the PLM identifier is another instance's",
    "It has to be unique in a file. The first in the file with a PLM identifier gets what is made from it"};
constexpr ConversionRule plmIdentifierAbsent{"plm-identifier-absent", Effect::Kept,
                                             "A product without PLM identifier keeps its GlobalId",
                                             "There is nothing to make another one from"};
constexpr ConversionRule identifierUnreadable{"identifier-unreadable", Effect::Kept,
                                              "The GlobalId of a statement that is damaged or complex stays",
                                              "A statement that is not understood is copied as it is"};

std::span<const ConversionRule* const> identifierRules() {
    static constexpr const ConversionRule* rules[] = {&malformedIdentifier, &missingIdentifier,   &duplicateIdentifier,
                                                      &plmIdentifier,       &plmIdentifierBeyond, &plmIdentifierTaken,
                                                      &plmIdentifierAbsent, &identifierUnreadable};
    return rules;
}

} // namespace velkor::exchange
