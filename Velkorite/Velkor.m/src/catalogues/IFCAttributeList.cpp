#include "IFCAttributeList.h"

#include "CatalogueDocument.h"
#include "foundation/ExitCallbacks.h"
#include "IFCAttributeTables.h"
#include "QORIFCDXFileServices.h"
#include "ResourceKinds.h"
#include "ResourceNames.h"
#include "velkor/files/QORDirectory.h"
#include "xml/XmlNodes.h"

#include <memory>

namespace {

using namespace velkor::library;
namespace names = velkor::names::attributelist;

// Every unit that deals with resource paths has its own pair; the list of folders is split by the file services.
[[maybe_unused]] const QORUnicodeString pathListSeparator = ";";
const QORUnicodeString folderSeparator = "\\";

HRESULT readAttributeFile(const QORUnicodeString& path, IFCAttributeTables& tables) {
    QORIDOMDocument_var document;
    const HRESULT result = readCatalogue(path, document);
    if (FAILED(result) || document.IsNull()) return result;

    for (const QORIDOMElement_var& levelElement : ElementRange(elementsTagged(names::level, document))) {
        const IfcLevel level = IFCAttributeList::GetLevel(attribute(levelElement, names::id));
        for (const QORIDOMElement_var& entry : ElementRange(elementsTagged(names::entry, levelElement))) {
            tables.insert({{},
                           attribute(entry, names::propertySet),
                           attribute(entry, names::entity),
                           attribute(entry, names::name),
                           attribute(entry, names::value)},
                          level);
        }
    }
    return result;
}

} // namespace

IFCAttributeList* IFCAttributeList::_pInstance = nullptr;

IfcLevel IFCAttributeList::GetLevel(const QORUnicodeString& iID) {
    for (const velkor::AttributeLevel& known : velkor::attributeLevels)
        if (iID.Compare(known.id) != 0) return known.level;
    return IfcLevelGeneral;
}

IFCAttributeList* IFCAttributeList::GetInstance() {
    if (_pInstance == nullptr) {
        _pInstance = new IFCAttributeList;
        callAtUnload(DeleteInst, 1);
    }
    return _pInstance;
}

HRESULT IFCAttributeList::GetAttributeValue(const QORUnicodeString& iName, const QORUnicodeString& iEntity,
                                            const QORUnicodeString& iPropertySet, IfcLevel iLevel,
                                            QORUnicodeString& oValue) {
    if (_tables == nullptr) return E_FAIL;
    // Before the output is written, which may be one of the inputs.
    IFCAttributeRecord pattern{{}, iPropertySet, iEntity, iName, {}};
    const IFCAttributeRecord* found = _tables->locate(pattern, iLevel);
    oValue = found != nullptr ? found->Value : QORUnicodeString();
    return oValue.IsEmpty() ? E_FAIL : S_OK;
}

IFCAttributeList::IFCAttributeList() {
    auto tables = std::make_unique<IFCAttributeTables>();
    QORListValQORUnicodeString files;
    ListFileFromRTV(files);
    if (files.Size() > 0) readAttributeFile(files[1], *tables);
    _tables = tables.release();
}

IFCAttributeList::~IFCAttributeList() {
    delete _tables;
}

int IFCAttributeList::DeleteInst(int) {
    delete _pInstance;
    _pInstance = nullptr;
    return 0;
}

HRESULT IFCAttributeList::ListFileFromRTV(QORListValQORUnicodeString& oFiles) {
    oFiles.RemoveAll();
    for (const auto& folder : QORIFCDXFileServices::SearchFolders(velkor::attributeListResource.subFolder,
                                                                  velkor::attributeListResource.nameText)) {
        for (const QORUnicodeString& name : folder.names) oFiles.Append(folder.path + folderSeparator + name);
    }
    return S_OK;
}

HRESULT IFCAttributeList::GiveFilesInDirectory(const char* iDirectory, const char* iPattern,
                                               QORListValQORUnicodeString& oFiles) {
    QORDirectory* directory = nullptr;
    if (FAILED(QOROpenDirectory(iDirectory, directory))) return S_FALSE;
    QORUnicodeString name;
    while (QORReadDirectory(directory, name) == S_OK) {
        if (name.SearchSubString(iPattern) >= 0) oFiles.Append(name);
    }
    QORCloseDirectory(directory);
    return S_OK;
}
