#include "resources/ResourceDocument.h"

#include "foundation/Results.h"
#include "QORIFCDXDataSetupServices.h"
#include "QORIFCDXFileServices.h"
#include "QORIFCDXXMLServices.h"
#include "ResourceKey.h"
#include "velkor/files/QORISetupDataFinder.h"

namespace velkor::library {

namespace {

/// Path of a resource of which the first file counts: what the setup-data finder has for its key, be it
/// empty; else the first file of the collection standard. E_UNEXPECTED when that has none, and without a
/// finder where the kind's rule asks for one.
HRESULT findFirstResource(const ResourceKind& kind, QORUnicodeString& path) {
    const QORISetupDataFinder_var finder = QORSetupDataGlobalFunctions::GetSetupDataFinder();
    if (!finder.IsNull()) {
        if (SUCCEEDED(finder->GetResourcePath(resourceKey(kind.resourceSet, kind.category), path))) return S_OK;
    } else if (kind.rule == ResourceRule::FirstFileWithFinder) {
        return reported(E_UNEXPECTED);
    }
    QORListValQORUnicodeString files;
    RETURN_IF_FAILED(reported(QORIFCDXFileServices::FindResourceFiles(kind.subFolder, kind.nameText, files)));
    path = files[1];
    return S_OK;
}

} // namespace

HRESULT readResource(const ResourceKind& kind, QORIDOMDocument_var& document) {
    document = {};
    QORUnicodeString path;
    if (kind.rule == ResourceRule::TheOnlyFile) {
        RETURN_IF_FAILED(
            QORIFCDXDataSetupServices::GetResourcePath(kind.resourceSet, kind.category, kind.subFolder, path));
    } else {
        RETURN_IF_FAILED(findFirstResource(kind, path));
    }
    QORIDOMDocument_var read;
    RETURN_IF_FAILED(QORIFCDXXMLServices::GetDOMDocument(path, read));
    document = read;
    return S_OK;
}

} // namespace velkor::library
