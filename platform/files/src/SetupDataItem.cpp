#include "SetupDataItem.h"

namespace velkor::files {

VELKOR_IMPLEMENT_CLASS(SetupDataItem, QORIKweAppResourceSubItem, nullptr, "SetupData")

HRESULT SetupDataItem::GetPath(QORUnicodeString& path) {
    path = _path;
    return S_OK;
}

} // namespace velkor::files
