/// Resource files as the host's setup data name them, else as the collection standard holds them.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORListValQORUnicodeString.h"

class VELKOR_API QORIFCDXDataSetupServices {
public:
    /// One file: the path that the setup-data finder has for the key `resourceSet`|`category`; else,
    /// when `subFolder` is not empty, the only ".xml" file in that sub-folder of the collection
    /// standard. S_OK, also when nothing was found and there was no sub-folder to look in: then `path` is
    /// as the finder left it. E_UNEXPECTED when the collection standard holds none or several.
    static HRESULT GetResourcePath(const QORUnicodeString& resourceSet, const QORUnicodeString& category,
                                   const QORUnicodeString& subFolder, QORUnicodeString& path);

    /// All files, in place of what `paths` held: those that the finder has for the key, then those of
    /// the collection standard; a file may be in the list twice. E_UNEXPECTED without a finder, and
    /// when there was a sub-folder to look in that held none; the finder's paths are kept then.
    static HRESULT GetResourcePaths(const QORUnicodeString& resourceSet, const QORUnicodeString& category,
                                    const QORUnicodeString& subFolder, QORListValQORUnicodeString& paths);
};
