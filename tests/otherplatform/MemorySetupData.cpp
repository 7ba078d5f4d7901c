#include "velkor/files/QORISetupDataFinder.h"

namespace {

constexpr IID subItemId = {0x7E0D1C25, 0x6A41, 0x4C0F, {0x8B, 0x11, 0x5D, 0x90, 0x3E, 0x27, 0xC4, 0x6A}};
constexpr IID finderId = {0x2F9B6D83, 0x90E7, 0x4D52, {0xB6, 0x3C, 0x18, 0x74, 0xA5, 0x0F, 0xE2, 0x91}};

class Item final : public QORIKweAppResourceSubItem {
    VELKOR_DECLARE_CLASS

public:
    explicit Item(const QORUnicodeString& path) : _path(path) {}

    HRESULT GetPath(QORUnicodeString& path) override {
        path = _path;
        return S_OK;
    }

private:
    QORUnicodeString _path;
};

QORISetupDataFinder_var& currentFinder() {
    static auto& instance = *new QORISetupDataFinder_var;
    return instance;
}

} // namespace

VELKOR_IMPLEMENT_INTERFACE(QORIKweAppResourceSubItem, QORBaseUnknown, subItemId, "MemorySetupData")
VELKOR_IMPLEMENT_INTERFACE(QORISetupDataFinder, QORBaseUnknown, finderId, "MemorySetupData")
VELKOR_IMPLEMENT_CLASS(Item, QORIKweAppResourceSubItem, nullptr, "MemorySetupData")

QORISetupDataFinder_var QORSetupDataGlobalFunctions::GetSetupDataFinder() {
    return currentFinder();
}

namespace velkor::files {

VELKOR_IMPLEMENT_CLASS(SetupData, QORISetupDataFinder, nullptr, "MemorySetupData")

void setSetupDataFinder(const QORISetupDataFinder_var& finder) {
    currentFinder() = finder;
}

void SetupData::set(const QORUnicodeString& key, const QORListValQORUnicodeString& paths) {
    _resources[key] = paths;
}

HRESULT SetupData::GetResourcePath(const QORUnicodeString& key, QORUnicodeString& path) {
    const auto found = _resources.find(key);
    if (found == _resources.end() || found->second.Size() != 1) return E_FAIL;
    path = found->second[1];
    return S_OK;
}

HRESULT SetupData::GetResourceSubItems(const QORUnicodeString& key, QORListValQORIKweAppResourceSubItem_var& items,
                                       int limit) {
    const auto found = _resources.find(key);
    if (found == _resources.end() || found->second.Size() == 0) return E_FAIL;
    for (const QORUnicodeString& path : found->second) {
        if (limit-- == 0) break;
        items.Append(QORIKweAppResourceSubItem_var::adopt(objectmodeler::newComponent<Item>(path)));
    }
    return S_OK;
}

} // namespace velkor::files
