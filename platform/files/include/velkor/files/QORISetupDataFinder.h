/// Setup data: an administrator's choice of resources. A key, such as
/// "QORAECDataExchangeResources|IFCCustomMapping", leads to one path or to sub-items with a path each.
#pragma once

#include "velkor/containers/QORListVal.h"
#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORListValQORUnicodeString.h"
#include "velkor/text/QORUnicodeString.h"

#include <unordered_map>

/// One of the resources that a key leads to.
class VELKOR_PLATFORM_API QORIKweAppResourceSubItem : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// Path of the resource. A failure leaves `path` as it is.
    virtual HRESULT GetPath(QORUnicodeString& path) = 0;
};
using QORIKweAppResourceSubItem_var = QORInterface_var<QORIKweAppResourceSubItem>;
using QORListValQORIKweAppResourceSubItem_var = QORListVal<QORIKweAppResourceSubItem_var>;

class VELKOR_PLATFORM_API QORISetupDataFinder : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// The one path of a key. A failure when the key leads to none or to several.
    virtual HRESULT GetResourcePath(const QORUnicodeString& key, QORUnicodeString& path) = 0;
    /// Appends the sub-items of a key, `limit` at most, all for -1. A failure when there are none.
    virtual HRESULT GetResourceSubItems(const QORUnicodeString& key, QORListValQORIKweAppResourceSubItem_var& items,
                                        int limit) = 0;
};
using QORISetupDataFinder_var = QORInterface_var<QORISetupDataFinder>;

/// Where the host's finder is asked for.
class VELKOR_PLATFORM_API QORSetupDataGlobalFunctions {
public:
    /// The host's finder; empty when it has none.
    static QORISetupDataFinder_var GetSetupDataFinder();
};

namespace velkor::files {

/// A finder over a table of keys.
class VELKOR_PLATFORM_API SetupData final : public QORISetupDataFinder {
    VELKOR_DECLARE_CLASS

public:
    /// Puts the paths of a key in place of those it had.
    void set(const QORUnicodeString& key, const QORListValQORUnicodeString& paths);

    HRESULT GetResourcePath(const QORUnicodeString& key, QORUnicodeString& path) override;
    HRESULT GetResourceSubItems(const QORUnicodeString& key, QORListValQORIKweAppResourceSubItem_var& items,
                                int limit) override;

private:
    std::unordered_map<QORUnicodeString, QORListValQORUnicodeString> _resources;
};

/// Makes a finder the host's; an empty one takes it away.
VELKOR_PLATFORM_API void setSetupDataFinder(const QORISetupDataFinder_var& finder);

} // namespace velkor::files
