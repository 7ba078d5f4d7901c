#include "velkor/settings/QORSettingRepository.h"

#include <algorithm>

namespace {

using Repositories = std::unordered_map<QORDXUnicodeString, QORSettingRepository>;

// Never destroyed: a library that is unloaded late may still ask.
Repositories& repositories() {
    static Repositories& instance = *new Repositories;
    return instance;
}

} // namespace

QORSettingRepository* QORSettingRepository::GetRepository(const QORDXUnicodeString& name, int, int accessType,
                                                          QORSettingController*) {
    if (accessType == WriteAccess) return &repositories()[name];
    if (accessType != ReadAccess) return nullptr;
    const auto found = repositories().find(name);
    return found != repositories().end() ? &found->second : nullptr;
}

int QORSettingRepository::ReadSetting(const QORDXUnicodeString& name, short* values, int count) const {
    const auto found = _settings.find(name);
    if (found == _settings.end() || values == nullptr) return 0;
    const int read = std::clamp(count, 0, static_cast<int>(found->second.size()));
    std::copy_n(found->second.begin(), read, values);
    return read;
}

int QORSettingRepository::WriteSetting(const QORDXUnicodeString& name, const short* values, int count) {
    if (values == nullptr || count < 0) count = 0;
    _settings[name].assign(values, values + count);
    return count;
}

void QORSettingRepository::RemoveSetting(const QORDXUnicodeString& name) {
    _settings.erase(name);
}

namespace velkor::settings {

QORSettingRepository& repository(const QORDXUnicodeString& name) {
    return repositories()[name];
}

void removeRepository(const QORDXUnicodeString& name) {
    repositories().erase(name);
}

} // namespace velkor::settings
