#include "QORIFCDXDataSetupServices.h"

#include "foundation/Results.h"
#include "QORIFCDXFileServices.h"
#include "ResourceKey.h"
#include "velkor/files/QORISetupDataFinder.h"

using namespace velkor::library;

namespace {

constexpr const char* resourceExtension = "xml";
constexpr int allItems = -1;

} // namespace

HRESULT QORIFCDXDataSetupServices::GetResourcePath(const QORUnicodeString& resourceSet,
                                                   const QORUnicodeString& category, const QORUnicodeString& subFolder,
                                                   QORUnicodeString& path) {
    const QORISetupDataFinder_var finder = QORSetupDataGlobalFunctions::GetSetupDataFinder();
    if (!finder.IsNull() && SUCCEEDED(finder->GetResourcePath(resourceKey(resourceSet, category), path)) &&
        !path.IsEmpty()) {
        return S_OK;
    }
    if (subFolder.IsEmpty()) return S_OK;

    QORListValQORUnicodeString files;
    RETURN_IF_FAILED(reported(QORIFCDXFileServices::FindResourceFiles(subFolder, resourceExtension, files)));
    // Nothing says which of several is meant.
    if (files.Size() != 1) return reported(E_UNEXPECTED);
    path = files[1];
    return S_OK;
}

HRESULT QORIFCDXDataSetupServices::GetResourcePaths(const QORUnicodeString& resourceSet,
                                                    const QORUnicodeString& category, const QORUnicodeString& subFolder,
                                                    QORListValQORUnicodeString& paths) {
    paths.RemoveAll();
    const QORISetupDataFinder_var finder = QORSetupDataGlobalFunctions::GetSetupDataFinder();
    if (finder.IsNull()) return reported(E_UNEXPECTED);
    QORListValQORIKweAppResourceSubItem_var items;
    if (SUCCEEDED(finder->GetResourceSubItems(resourceKey(resourceSet, category), items, allItems))) {
        for (const QORIKweAppResourceSubItem_var& item : items) {
            QORUnicodeString path;
            if (item.IsNull()) {
                VELKOR_ASSERTION_FAILED();
            } else if (SUCCEEDED(item->GetPath(path))) {
                paths.Append(path);
            }
        }
    }
    if (subFolder.IsEmpty()) return S_OK;

    QORListValQORUnicodeString files;
    RETURN_IF_FAILED(reported(QORIFCDXFileServices::FindResourceFiles(subFolder, resourceExtension, files)));
    paths.Append(files);
    return S_OK;
}
