/// Whether a property set or quantity set of the IFC standard applies to a class, and which properties it has.
///
///     QORIFCPSetQtoValidationService* service = QORIFCPSetQtoValidationService::getInstance();
///     service->Initialize("Pset_WallCommon");
///     if (service->IsPropertySupported("Pset_WallCommon", "FireRating")) …
///
/// A set is defined by the file of its name with ".xml" in the runtime view's folder
/// resources/standard/IFCPsetQset, which is looked through when the first set is wanted. Of a definition, two
/// elements count, wherever they stand:
///
///     ClassName  a class that the set applies to; what follows a "/" is left out unless the "/" comes first
///     Name       the set's name at first, then the name of a property each time
///
/// Each is the text of the element's first child. Letter case is ignored for classes and properties, but not for
/// names of sets. Calls from one thread.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORDXUnicodeString.h"
#include "velkor/text/QORListValQORUnicodeString.h"

#include <memory>
#include <unordered_map>

class DXSdaiAppInstance;
class QORIFCPSetQtoDefinition;

class VELKOR_API QORIFCPSetQtoValidationService {
public:
    /// The one service, made on first use and gone when the library is unloaded.
    static QORIFCPSetQtoValidationService* getInstance();

    /// Reads the definition of a set, once per set. S_OK when it was read; the parser's failure when the file
    /// is none; E_FAIL when there is no file of the name, and for a set that is known already, which stays. The
    /// call that looks for the files, which each does until there are some, fails for neither reason: the
    /// set without a file is known then, without classes and properties.
    HRESULT Initialize(const QORUnicodeString& setName);

    /// True when a set that was read names the class, or one that `instance` is a kind of. `instance` is not changed;
    /// null is a kind of nothing.
    bool IsClassSupported(const QORUnicodeString& setName, const QORUnicodeString& className,
                          DXSdaiAppInstance*& instance);
    /// True when a set that was read has the property.
    bool IsPropertySupported(const QORUnicodeString& setName, const QORUnicodeString& propertyName);

    /// Notes the name of a set of the user's own, which is to be in upper case. S_OK.
    HRESULT InitializeCustomPSetQtoList(const QORUnicodeString& setName);
    /// True when the name, in upper case, was noted.
    bool IsCustomPsetQto(const QORUnicodeString& setName);

    /// The host's switch for validation, 0 at first; nothing here depends on it. S_OK.
    HRESULT GetIfcPsetQtoValidation(unsigned char& value);
    HRESULT SetIfcPsetQtoValidation(unsigned char& value);

private:
    QORIFCPSetQtoValidationService();
    ~QORIFCPSetQtoValidationService();
    static int OnExit(int);

    HRESULT GetFilePath();
    const QORIFCPSetQtoDefinition* definition(const QORUnicodeString& setName) const;

    static QORIFCPSetQtoValidationService* _pinstance;
    std::unordered_map<QORDXUnicodeString, std::unique_ptr<QORIFCPSetQtoDefinition>> _definitions;
    QORListValQORUnicodeString _customPSetQtoList;
    unsigned char _ifcPsetQtoValidation = 0;
    QORListValQORUnicodeString _fileNames;
    QORUnicodeString _directory;
};
