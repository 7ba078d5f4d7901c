/// Named repositories of user settings, filled by the host and changeable while it runs.
///
///     auto* repository = QORSettingRepository::GetRepository("IFC", 0, QORSettingRepository::ReadAccess, nullptr);
///     short mode = 0;
///     if (repository != nullptr && repository->ReadSetting("ImportProfileMode", &mode, 1) == 1) …
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/text/QORDXUnicodeString.h"

#include <unordered_map>
#include <vector>

/// Watches over a repository in hosts that have administrators; this platform never calls one.
class QORSettingController;

class VELKOR_PLATFORM_API QORSettingRepository {
public:
    /// What a repository is opened for.
    enum AccessType : int { ReadAccess = 1, WriteAccess = 2 };

    /// The repository of a name. For reading it is null when the host has none, for writing it is then made
    /// empty; any other access gives null. It belongs to the platform and stays until removeRepository.
    /// `flags` is 0; the controller may be null.
    static QORSettingRepository* GetRepository(const QORDXUnicodeString& name, int flags, int accessType,
                                               QORSettingController* controller);

    /// Reads up to `count` values of a setting into `values` and gives how many were read: 0 when
    /// the setting is not there.
    int ReadSetting(const QORDXUnicodeString& name, short* values, int count) const;
    /// Sets or replaces a setting and gives the number of its values.
    int WriteSetting(const QORDXUnicodeString& name, const short* values, int count);
    void RemoveSetting(const QORDXUnicodeString& name); ///< Takes a setting out; nothing when there is none.

private:
    std::unordered_map<QORDXUnicodeString, std::vector<short>> _settings;
};

namespace velkor::settings {

/// The repository of a name, made empty when there is none.
VELKOR_PLATFORM_API QORSettingRepository& repository(const QORDXUnicodeString& name);
/// Pointers to the repository are invalid afterwards. Nothing when there is none.
VELKOR_PLATFORM_API void removeRepository(const QORDXUnicodeString& name);

} // namespace velkor::settings
