#include "velkor/files/QORISetupDataFinder.h"

#include "SetupDataItem.h"

#include <algorithm>

namespace velkor::files {

VELKOR_IMPLEMENT_CLASS(SetupData, QORISetupDataFinder, nullptr, "SetupData")

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
    const QORListValQORUnicodeString& paths = found->second;
    const int count = limit < 0 ? paths.Size() : std::min(limit, paths.Size());
    for (int i = 1; i <= count; ++i)
        items.Append(QORIKweAppResourceSubItem_var::adopt(objectmodeler::newComponent<SetupDataItem>(paths[i])));
    return S_OK;
}

} // namespace velkor::files
