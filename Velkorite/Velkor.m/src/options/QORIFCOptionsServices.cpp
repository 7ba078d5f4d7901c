#include "QORIFCOptionsServices.h"

#include "foundation/ExitCallbacks.h"
#include "velkor/text/QORUnicodeString.h"

namespace {

// Every unit that deals with resource paths has its own pair; this one does not read its.
[[maybe_unused]] const QORUnicodeString pathListSeparator = ";";
[[maybe_unused]] const QORUnicodeString folderSeparator = "\\";

} // namespace

QORIFCOptionsServices* QORIFCOptionsServices::_pinstance = nullptr;

QORIFCOptionsServices* QORIFCOptionsServices::getInstance() {
    if (_pinstance == nullptr) {
        _pinstance = new QORIFCOptionsServices;
        velkor::library::callAtUnload(OnExit, 3);
    }
    return _pinstance;
}

unsigned char QORIFCOptionsServices::IsCustomPropertySetsRequired() const {
    return _customPropertySetsRequired;
}

HRESULT QORIFCOptionsServices::SetEnableCustomPropertySets(const bool& enable) {
    _customPropertySetsRequired = enable ? 1 : 0;
    return S_OK;
}

void QORIFCOptionsServices::Clear() {
    _customPropertySetsRequired = 1;
}

QORIFCOptionsServices::QORIFCOptionsServices() : _customPropertySetsRequired(1) {}

int QORIFCOptionsServices::OnExit(int) {
    delete _pinstance;
    _pinstance = nullptr;
    return 0;
}
