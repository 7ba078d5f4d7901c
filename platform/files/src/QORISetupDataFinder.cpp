#include "velkor/files/QORISetupDataFinder.h"

namespace {

constexpr IID subItemId = {0x316C8220, 0x588A, 0x4131, {0x9A, 0x22, 0xAB, 0x8E, 0xD3, 0x5C, 0x5D, 0xE6}};
constexpr IID finderId = {0x31B073DD, 0x1260, 0x4B43, {0x96, 0x69, 0x2B, 0xAB, 0x1A, 0xD1, 0x5F, 0x91}};

// Never destroyed: at the end of the process the library that implements the finder may be gone.
QORISetupDataFinder_var& currentFinder() {
    static QORISetupDataFinder_var& instance = *new QORISetupDataFinder_var;
    return instance;
}

} // namespace

VELKOR_IMPLEMENT_INTERFACE(QORIKweAppResourceSubItem, QORBaseUnknown, subItemId, "SetupData")
VELKOR_IMPLEMENT_INTERFACE(QORISetupDataFinder, QORBaseUnknown, finderId, "SetupData")

QORISetupDataFinder_var QORSetupDataGlobalFunctions::GetSetupDataFinder() {
    return currentFinder();
}

void velkor::files::setSetupDataFinder(const QORISetupDataFinder_var& finder) {
    currentFinder() = finder;
}
