#include "QORIFCOptionsFromXCAD.h"

#include "QORIFCOptions.h"
#include "velkor/exchangelog/QORExchangeErr.h"

#include <algorithm>
#include <iterator>
#include <new>

VELKOR_IMPLEMENT_CLASS(QORIFCOptionsFromXCAD, QORBaseUnknown, "QORNull", "Velkorite")

namespace {

constexpr const char* affirmativeWords[] = {"true", "ok", "yes", "1", "full_authorization"};
constexpr const char* negativeWords[] = {"false", "ko", "no", "0"};

constexpr int traceLevel = 2;

template <std::size_t Count>
unsigned char isOneOf(const char* const (&words)[Count], QORUnicodeString value) {
    value.ToLower();
    return std::ranges::find(words, value.utf8()) != std::end(words) ? 1 : 0;
}

/// The profile that "all into one" asks for; undefined when it asks for none.
QORIFCOptions::ExchangeProfile profileMeant(const QORUnicodeString& value) {
    if (value.Compare("TransferAsFeatureRep") != 0) return QORIFCOptions::FeatureProfile;
    if (value.Compare("AllToOneTessellatedRep") != 0) return QORIFCOptions::TessellatedProfile;
    return QORIFCOptions::UndefinedProfile;
}

} // namespace

QORIFCOptionsFromXCAD* QORIFCOptionsFromXCAD::_Instance = nullptr;

QORIFCOptionsFromXCAD::Effect QORIFCOptionsFromXCAD::GetEffect(const QORUnicodeString& name,
                                                               const QORUnicodeString& value) {
    if (name == DisableVersionMappingOption) return Effect::VersionMapping;
    if (name == WriteOptionsOption) return Effect::LeftOut;
    const bool isProfile =
        name.Compare(TransferAllOption) != 0 && profileMeant(value) != QORIFCOptions::UndefinedProfile;
    return isProfile ? Effect::ExchangeProfile : Effect::None;
}

QORIFCOptionsFromXCAD* QORIFCOptionsFromXCAD::GetInstance() {
    if (_Instance == nullptr) _Instance = new QORIFCOptionsFromXCAD;
    if (_Instance == nullptr) throw std::bad_alloc();
    return _Instance;
}

void QORIFCOptionsFromXCAD::DeleteInstance() {
    delete _Instance;
    _Instance = nullptr;
}

QORBaseUnknown* QORIFCOptionsFromXCAD::CreateItself() {
    return nullptr;
}

HRESULT QORIFCOptionsFromXCAD::SetXCADConversionOptionForIFC(const QORUnicodeString& name,
                                                             const QORUnicodeString& value) {
    const int position = _optionNames.Locate(name);
    if (position > 0 && position <= _optionValues.Size()) {
        _optionValues[position] = value;
    } else {
        _optionNames.Append(name);
        try {
            _optionValues.Append(value);
        } catch (...) {
            _optionNames.RemovePosition(_optionNames.Size());
            throw;
        }
    }

    // Asked for anew: another exchange may be under way than the one before.
    QORExchangeErr* log = GetExchangeErr();
    if (log != nullptr && log->GetCurLevel() >= traceLevel) {
        log->PutMessage(" *** IFC : Trying to set this XCAD option to the IFC document: " + name + " = " + value);
    }

    switch (GetEffect(name, value)) {
    case Effect::VersionMapping:
        _disableVersionMapping = Affirmatif(value);
        return S_OK;
    case Effect::ExchangeProfile:
        QORIFCOptions::GetInstance().SetExchangeProfile(profileMeant(value));
        return S_OK;
    default:
        return E_FAIL;
    }
}

HRESULT QORIFCOptionsFromXCAD::SetXCADConversionOptionsForIFC(const QORListValQORUnicodeString& names,
                                                              const QORListValQORUnicodeString& values) {
    if (names.Size() == 0 || values.Size() != names.Size()) return E_FAIL;
    HRESULT result = E_FAIL;
    for (int i = 1; i <= names.Size(); ++i) {
        if (GetEffect(names[i], values[i]) == Effect::LeftOut) continue; // meant for the host alone
        if (SetXCADConversionOptionForIFC(names[i], values[i]) == S_OK) result = S_OK;
    }
    return result;
}

HRESULT QORIFCOptionsFromXCAD::GetAllOptions(QORListValQORUnicodeString& names, QORListValQORUnicodeString& values) {
    names.Append(_optionNames);
    values.Append(_optionValues);
    return S_OK;
}

// Fewer words say yes here than in Affirmatif: hosts rely on both.
bool QORIFCOptionsFromXCAD::IsOptionSet(const QORUnicodeString& name) {
    const int position = _optionNames.Locate(name);
    if (position == 0) return false;
    const QORUnicodeString& value = _optionValues[position];
    return value.Compare("TRUE") > 0 || value.Compare("1") > 0;
}

HRESULT QORIFCOptionsFromXCAD::GetValueIFCVersionMapping() {
    return _disableVersionMapping == 1 ? S_OK : E_FAIL;
}

QORIFCOptionsFromXCAD::QORIFCOptionsFromXCAD() = default;
QORIFCOptionsFromXCAD::~QORIFCOptionsFromXCAD() = default;

unsigned char QORIFCOptionsFromXCAD::Affirmatif(const QORUnicodeString& value) {
    return isOneOf(affirmativeWords, value);
}

unsigned char QORIFCOptionsFromXCAD::Negatif(const QORUnicodeString& value) {
    return isOneOf(negativeWords, value);
}
