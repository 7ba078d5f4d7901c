#include "QORIFCHTableOfMapProperty.h"

#include "foundation/TableEntries.h"
#include "QORIFCMapProperty.h"

#include <memory>

QORSysSimpleHashTable* QORIFCHTableOfMapProperty::_pHListOfMapProperty = nullptr;

HRESULT QORIFCHTableOfMapProperty::Initialize() {
    if (_pHListOfMapProperty == nullptr)
        _pHListOfMapProperty = velkor::library::makeTable(QORIFCMapProperty::GetHashKey, QORIFCMapProperty::Compare);
    return S_OK;
}

HRESULT QORIFCHTableOfMapProperty::AddAttribute(const QORUnicodeString& name, const QORUnicodeString& a1,
                                                const QORUnicodeString& a2, const QORUnicodeString& a3,
                                                const QORUnicodeString& a4, const QORUnicodeString& a5) {
    QORIFCMapProperty* known = nullptr;
    if (SUCCEEDED(Locate(name, known))) return known->AppendAttribute(a1, a2, a3, a4, a5);
    if (_pHListOfMapProperty == nullptr) return E_FAIL;

    auto made = std::make_unique<QORIFCMapProperty>(name);
    const HRESULT result = made->AppendAttribute(a1, a2, a3, a4, a5);
    if (_pHListOfMapProperty->Insert(made.get()) != 1) return E_FAIL;
    static_cast<void>(made.release());
    return result;
}

HRESULT QORIFCHTableOfMapProperty::Locate(const QORUnicodeString& name, QORIFCMapProperty*& record) {
    if (_pHListOfMapProperty == nullptr) return E_FAIL;
    QORIFCMapProperty pattern(name);
    record = static_cast<QORIFCMapProperty*>(_pHListOfMapProperty->Locate(&pattern));
    return record != nullptr ? S_OK : E_FAIL;
}

HRESULT QORIFCHTableOfMapProperty::Terminate() {
    if (_pHListOfMapProperty == nullptr) return S_OK;
    velkor::library::destroyEntries<QORIFCMapProperty>(*_pHListOfMapProperty);
    delete _pHListOfMapProperty;
    _pHListOfMapProperty = nullptr;
    return S_OK;
}

QORIFCHTableOfMapProperty::QORIFCHTableOfMapProperty() = default;
QORIFCHTableOfMapProperty::~QORIFCHTableOfMapProperty() = default;
