#include "QORIFCMsgLoggingServices.h"

#include "velkor/exchangelog/QORExchangeErr.h"
#include "velkor/exchangelog/QORMsgCatalog.h"

#include <utility>

QORExchangeErr* QORIFCMsgLoggingServices::_plogError = nullptr;

QORIFCMsgLoggingServices::QORIFCMsgLoggingServices() = default;
QORIFCMsgLoggingServices::~QORIFCMsgLoggingServices() = default;

HRESULT QORIFCMsgLoggingServices::PutMsg(QORUnicodeString* text, int* code, QORString first, QORString second,
                                         int level, QORUnicodeString* extra, int* extraCode) {
    QORExchangeErr* log = logFor(level);
    if (log == nullptr) return E_FAIL;
    log->PutMsgErr(text, code, std::move(first), std::move(second), level, extra, extraCode);
    return S_OK;
}

HRESULT QORIFCMsgLoggingServices::PutUnicodeMessage(const QORUnicodeString& message, short level, short kind) {
    QORExchangeErr* log = logFor(level);
    if (log == nullptr) return E_FAIL;
    log->PutUnicodeMessage(message, level, kind);
    return S_OK;
}

HRESULT QORIFCMsgLoggingServices::PutUnicodeMessage(QORString first, QORString second, short level, short kind,
                                                    const QORUnicodeString& defaultText) {
    QORExchangeErr* log = logFor(level);
    if (log == nullptr) return E_FAIL;
    // Callers name the key first, the catalogue is asked the other way round.
    log->PutUnicodeMessage(QORMsgCatalog::BuildMessage(second, first, nullptr, 0, defaultText, nullptr), level, kind);
    return S_OK;
}

HRESULT QORIFCMsgLoggingServices::SetLogError() {
    _plogError = GetExchangeErr();
    return _plogError != nullptr ? S_OK : E_FAIL;
}

// The log, when there is one and it takes messages of the level.
QORExchangeErr* QORIFCMsgLoggingServices::logFor(int level) {
    if (_plogError == nullptr) _plogError = GetExchangeErr();
    return _plogError != nullptr && _plogError->GetCurLevel() >= level ? _plogError : nullptr;
}
