/// Directory services.
///
///     QORDirectory* directory = nullptr;
///     if (SUCCEEDED(QOROpenDirectory(path, directory))) {
///         QORUnicodeString name;
///         while (QORReadDirectory(directory, name) == S_OK) use(name);
///         QORCloseDirectory(directory);
///     }
#pragma once

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

/// A directory opened for reading.
class QORDirectory;

/// Opens a directory. S_OK, and the caller closes it; E_FAIL and null when it is not there, is no
/// directory or may not be read.
VELKOR_PLATFORM_API HRESULT QOROpenDirectory(const QORUnicodeString& path, QORDirectory*& directory);

/// The next entry's name: files and folders sorted by the bytes of their UTF-8 names, without "." and
/// "..". S_OK; S_FALSE and an empty name behind the last one; E_FAIL for a null pointer.
VELKOR_PLATFORM_API HRESULT QORReadDirectory(QORDirectory* directory, QORUnicodeString& name);

/// Closes a directory and makes the pointer null. E_FAIL for a null pointer.
VELKOR_PLATFORM_API HRESULT QORCloseDirectory(QORDirectory*& directory);
