#include "QORIFCPSetQtoValidationService.h"

#include "foundation/ExitCallbacks.h"
#include "QORIFCPSetQtoDefinition.h"
#include "ResourceKinds.h"
#include "velkor/files/Paths.h"
#include "velkor/files/QORSysRTVWalker.h"
#include "velkor/text/QORToken.h"

#include <utility>

namespace {

// Every unit that deals with resource paths has its own pair; this one reads the second alone.
[[maybe_unused]] const QORUnicodeString pathListSeparator = ";";
const QORUnicodeString folderSeparator = "\\";

} // namespace

QORIFCPSetQtoValidationService* QORIFCPSetQtoValidationService::_pinstance = nullptr;

QORIFCPSetQtoValidationService* QORIFCPSetQtoValidationService::getInstance() {
    if (_pinstance == nullptr) {
        _pinstance = new QORIFCPSetQtoValidationService;
        velkor::library::callAtUnload(OnExit, 3);
    }
    return _pinstance;
}

HRESULT QORIFCPSetQtoValidationService::Initialize(const QORUnicodeString& setName) {
    HRESULT result = E_FAIL;
    const bool isKnown = definition(setName) != nullptr;
    if (_fileNames.Size() == 0) result = GetFilePath();
    if (isKnown) return result;

    auto made = std::make_unique<QORIFCPSetQtoDefinition>();
    const QORUnicodeString fileName = setName + velkor::propertySetResource.nameText;
    if (_fileNames.Locate(fileName) > 0) result = made->read(_directory + folderSeparator + fileName);
    if (SUCCEEDED(result)) _definitions.emplace(setName, std::move(made));
    return result;
}

bool QORIFCPSetQtoValidationService::IsClassSupported(const QORUnicodeString& setName,
                                                      const QORUnicodeString& className, DXSdaiAppInstance*& instance) {
    const QORIFCPSetQtoDefinition* set = definition(setName);
    return set != nullptr && set->appliesTo(className, instance);
}

bool QORIFCPSetQtoValidationService::IsPropertySupported(const QORUnicodeString& setName,
                                                         const QORUnicodeString& propertyName) {
    const QORIFCPSetQtoDefinition* set = definition(setName);
    return set != nullptr && set->hasProperty(propertyName);
}

HRESULT QORIFCPSetQtoValidationService::InitializeCustomPSetQtoList(const QORUnicodeString& setName) {
    _customPSetQtoList.Append(setName);
    return S_OK;
}

bool QORIFCPSetQtoValidationService::IsCustomPsetQto(const QORUnicodeString& setName) {
    QORUnicodeString name = setName;
    name.ToUpper();
    return _customPSetQtoList.Locate(name) > 0;
}

HRESULT QORIFCPSetQtoValidationService::GetIfcPsetQtoValidation(unsigned char& value) {
    value = _ifcPsetQtoValidation;
    return S_OK;
}

HRESULT QORIFCPSetQtoValidationService::SetIfcPsetQtoValidation(unsigned char& value) {
    _ifcPsetQtoValidation = value;
    return S_OK;
}

QORIFCPSetQtoValidationService::QORIFCPSetQtoValidationService() = default;
QORIFCPSetQtoValidationService::~QORIFCPSetQtoValidationService() = default;

int QORIFCPSetQtoValidationService::OnExit(int) {
    delete _pinstance;
    _pinstance = nullptr;
    return 0;
}

HRESULT QORIFCPSetQtoValidationService::GetFilePath() {
    QORSysRTVWalker walker;
    QORToken folders(velkor::propertySetResource.subFolder);
    for (QORUnicodeString folder = folders.GetNextToken("/"); !folder.IsEmpty(); folder = folders.GetNextToken("/"))
        walker.AppendRTVSubDir(folder);
    walker.SetPattern(velkor::propertySetResource.nameText);
    QORListValQORUnicodeString names;
    QORUnicodeString directory;
    for (QORUnicodeString path, folder, name; SUCCEEDED(walker.GetNext(path));) {
        if (FAILED(QORSplitPath(path, folder, name))) continue;
        directory = folder;
        names.Append(name);
    }
    // All at once: a list that is there is taken for the whole.
    if (names.Size() > 0) _directory = std::move(directory);
    _fileNames = std::move(names);
    return S_OK;
}

const QORIFCPSetQtoDefinition* QORIFCPSetQtoValidationService::definition(const QORUnicodeString& setName) const {
    const auto found = _definitions.find(setName);
    return found != _definitions.end() ? found->second.get() : nullptr;
}
