#include "velkor/exchangelog/QORMsgCatalog.h"

#include <charconv>
#include <map>
#include <mutex>
#include <utility>

namespace {

struct Catalogues {
    std::mutex mutex;
    std::map<std::pair<QORString, QORString>, QORUnicodeString> texts;
};

Catalogues& catalogues() {
    static Catalogues& instance = *new Catalogues;
    return instance;
}

/// Puts the parameters in in one pass, so that a parameter that looks like one stays as it is.
std::string withParameters(std::string_view text, const QORUnicodeString* params, int count) {
    std::string result;
    while (true) {
        const std::size_t at = text.find("/P");
        if (at == std::string_view::npos) return result.append(text);
        int number = 0;
        const char* digits = text.data() + at + 2;
        const auto read = std::from_chars(digits, text.data() + text.size(), number);
        const bool known = read.ptr != digits && number >= 1 && number <= count && params != nullptr;
        const std::size_t behind = known ? static_cast<std::size_t>(read.ptr - text.data()) : at + 2;
        result.append(text.substr(0, known ? at : behind));
        if (known) result.append(params[number - 1].utf8());
        text.remove_prefix(behind);
    }
}

} // namespace

QORUnicodeString QORMsgCatalog::BuildMessage(const QORString& catalogue, const QORString& key, QORUnicodeString* params,
                                             int paramCount, const QORUnicodeString& defaultText, QORString* status) {
    QORUnicodeString text = defaultText;
    QORString missing = catalogue + QORString(".") + key;
    {
        const std::scoped_lock lock(catalogues().mutex);
        const auto found = catalogues().texts.find({catalogue, key});
        if (found != catalogues().texts.end()) {
            text = found->second;
            missing = QORString();
        }
    }
    if (status != nullptr) *status = missing;
    return QORUnicodeString(withParameters(text.utf8(), params, paramCount));
}

void QORMsgCatalog::SetText(const QORString& catalogue, const QORString& key, const QORUnicodeString& text) {
    const std::scoped_lock lock(catalogues().mutex);
    catalogues().texts[{catalogue, key}] = text;
}

void QORMsgCatalog::RemoveAll() {
    const std::scoped_lock lock(catalogues().mutex);
    catalogues().texts.clear();
}
