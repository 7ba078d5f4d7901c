/// Identifiers for IFC's GlobalId: 22 characters of IFC's base-64 alphabet.
///
///     QORUnicodeString guid;
///     QORIFCExportServices::ConvertPLMIDToGUID(plmId, guid); // the same at every export
///     QORIFCExportServices::GenerateIFCGUID(guid);           // for an object without an identifier
///
/// State is static: calls from one thread.
#pragma once

#include "VelkorExport.h"

#include "velkor/text/QORUnicodeString.h"

class VELKOR_API QORIFCExportServices {
public:
    QORIFCExportServices();
    virtual ~QORIFCExportServices();

    /// A new identifier, which begins with "0" or "1". It comes from the C library's generator, seeded at every
    /// call with the time in seconds and the number of the call: identifiers of one process differ, processes
    /// that begin in the same second make the same ones. Leaves the generator seeded.
    static void GenerateIFCGUID(QORUnicodeString& guid);

    /// The identifier of a PLM object: a function of its text alone, the same in every release of this library.
    /// Texts of fewer than 6 characters have 18 characters in common.
    static void ConvertPLMIDToGUID(const QORUnicodeString& plmId, QORUnicodeString& guid);

    /// Keeps the identifier of the parent that an export is working under, any text; it stays until the next.
    static void SetParentGUID(QORUnicodeString& guid);
    /// The identifier kept; empty at first.
    static void GetParentGUID(QORUnicodeString& guid);

private:
    static QORUnicodeString _sGUIDString;
};
