#include "QORIFCMapProperty.h"

#include <utility>

QORIFCMapProperty::QORIFCMapProperty(const QORUnicodeString& name) : _name(name) {}
QORIFCMapProperty::~QORIFCMapProperty() = default;

QORUnicodeString QORIFCMapProperty::GetName() const {
    return _name;
}

HRESULT QORIFCMapProperty::AppendAttribute(const QORUnicodeString& a1, const QORUnicodeString& a2,
                                           const QORUnicodeString& a3, const QORUnicodeString& a4,
                                           const QORUnicodeString& a5) {
    using Column = std::pair<QORListValQORUnicodeString&, const QORUnicodeString&>;
    const Column columns[] = {
        {_attributes1, a1}, {_attributes2, a2}, {_attributes3, a3}, {_attributes4, a4}, {_attributes5, a5}};
    const int before = GetNumberOfAttributes();
    try {
        for (const auto& [list, value] : columns) list.Append(value);
    } catch (...) {
        for (const auto& [list, value] : columns) {
            if (list.Size() > before) list.RemovePosition(list.Size());
        }
        throw;
    }
    return S_OK;
}

int QORIFCMapProperty::GetNumberOfAttributes() const {
    return _attributes1.Size();
}

HRESULT QORIFCMapProperty::GetAttributeAt(int index, QORUnicodeString& a1, QORUnicodeString& a2, QORUnicodeString& a3,
                                          QORUnicodeString& a4, QORUnicodeString& a5) {
    if (index < 1 || index > GetNumberOfAttributes()) return E_FAIL;
    a1 = _attributes1[index];
    a2 = _attributes2[index];
    a3 = _attributes3[index];
    a4 = _attributes4[index];
    a5 = _attributes5[index];
    return S_OK;
}

unsigned int QORIFCMapProperty::GetHashKey(void* record) {
    return record != nullptr ? static_cast<const QORIFCMapProperty*>(record)->_name.ComputeHashKey() : 0;
}

int QORIFCMapProperty::Compare(void* a, void* b) {
    const auto name = [](const void* record) {
        return record != nullptr ? static_cast<const QORIFCMapProperty*>(record)->_name : QORUnicodeString();
    };
    return name(a) == name(b) ? 1 : 0;
}
