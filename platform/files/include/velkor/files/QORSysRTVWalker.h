/// Walks the host's runtime view: folders that together are the host's installation. A file of an
/// earlier folder hides one of the same place in a later folder.
///
///     QORSysRTVWalker walker;
///     walker.AppendRTVSubDir("resources");
///     walker.SetPattern(".xml");
///     for (QORUnicodeString path; SUCCEEDED(walker.GetNext(path));) use(path);
#pragma once

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORListValQORUnicodeString.h"
#include "velkor/text/QORUnicodeString.h"

#include <cstddef>

class VELKOR_PLATFORM_API QORSysRTVWalker {
public:
    /// Goes one folder down from where the walk stands. To be called before the first GetNext.
    void AppendRTVSubDir(const QORUnicodeString& name);
    /// Walks entries alone whose names end with `ending`, letter case included.
    void SetPattern(const QORUnicodeString& ending);
    /// Full path of the next entry: those of one runtime-view folder sorted by name, then those of
    /// the next. S_OK; E_FAIL and an empty path behind the last.
    HRESULT GetNext(QORUnicodeString& path);

private:
    QORUnicodeString _subPath;
    QORUnicodeString _ending;
    QORListValQORUnicodeString _paths;
    // Position of the next path; 0 before the first GetNext, which takes the paths together.
    int _next = 0;
};

namespace velkor::files {

/// The folders of the runtime view, the first one strongest. None until a host says so.
VELKOR_PLATFORM_API void setRuntimeView(const QORListValQORUnicodeString& folders);
VELKOR_PLATFORM_API QORListValQORUnicodeString runtimeView();

/// Full paths of what a walk through these folders in place of the runtime view comes to: entries of the place
/// `subPath` ("/resources") below each of them, whose names end with `ending`.
VELKOR_PLATFORM_API QORListValQORUnicodeString entriesOf(const QORListValQORUnicodeString& folders,
                                                         const QORUnicodeString& subPath,
                                                         const QORUnicodeString& ending);

} // namespace velkor::files
