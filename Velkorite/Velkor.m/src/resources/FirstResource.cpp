#include "FirstResource.h"

#include "QORIFCDXFileServices.h"
#include "velkor/files/QORISetupDataFinder.h"
#include "velkor/objectmodeler/Assertion.h"

HRESULT velkor::library::findFirstResource(const ResourceKind& kind, QORUnicodeString& path) {
    const QORISetupDataFinder_var finder = QORSetupDataGlobalFunctions::GetSetupDataFinder();
    if (!finder.IsNull()) {
        const QORUnicodeString key = QORUnicodeString(kind.resourceSet) + "|" + kind.category;
        if (SUCCEEDED(finder->GetResourcePath(key, path))) return S_OK;
    } else if (kind.rule == ResourceRule::FirstFileWithFinder) {
        VELKOR_ASSERTION_FAILED();
        return E_UNEXPECTED;
    }
    QORListValQORUnicodeString files;
    const HRESULT result = QORIFCDXFileServices::FindResourceFiles(kind.subFolder, kind.nameText, files);
    if (FAILED(result)) {
        VELKOR_ASSERTION_FAILED();
        return result;
    }
    path = files[1];
    return S_OK;
}
