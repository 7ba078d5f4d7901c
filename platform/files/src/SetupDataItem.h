/// A resource of the setup data whose path is known.
#pragma once

#include "velkor/files/QORISetupDataFinder.h"

namespace velkor::files {

class SetupDataItem final : public QORIKweAppResourceSubItem {
    VELKOR_DECLARE_CLASS

public:
    explicit SetupDataItem(const QORUnicodeString& path) : _path(path) {}

    HRESULT GetPath(QORUnicodeString& path) override;

private:
    QORUnicodeString _path;
};

} // namespace velkor::files
