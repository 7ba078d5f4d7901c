/// What a host's importer offers for one import. The library declares and registers the interface;
/// the host implements it, and others reach it by querying the host's importer.
///
///     QORIIFCImportServices_var import = importer;
///     if (!import.IsNull()) result = import->StartImport(path);
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/text/QORUnicodeString.h"

class DXSdaiAppInstance;

/// {2C7255B3-EC9B-4988-8136-1537A27D1FC7}
VELKOR_API extern const IID IID_QORIIFCImportServices;

class VELKOR_API QORIIFCImportServices : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    QORIIFCImportServices();
    QORIIFCImportServices(const QORIIFCImportServices& other);
    QORIIFCImportServices(QORIIFCImportServices&& other) noexcept;
    QORIIFCImportServices& operator=(const QORIIFCImportServices& other);
    QORIIFCImportServices& operator=(QORIIFCImportServices&& other) noexcept;
    ~QORIIFCImportServices() override;

    /// Begins the import of the model file at a path.
    virtual HRESULT StartImport(const QORUnicodeString& iModelPath) = 0;
    /// Imports one instance of the model, which belongs to the SDAI runtime.
    virtual HRESULT ImportInstance(DXSdaiAppInstance* iInstance) = 0;
    /// Ends the import; a failure says that it is incomplete.
    virtual HRESULT EndImport() = 0;
};

/// A handle of the import services.
class VELKOR_API QORIIFCImportServices_var : public QORInterface_var<QORIIFCImportServices> {
public:
    QORIIFCImportServices_var() noexcept = default;
    /// Of the services, or of an object that has them; each with a reference of its own.
    QORIIFCImportServices_var(QORIIFCImportServices* object) noexcept : QORInterface_var(object) {}
    QORIIFCImportServices_var(const QORBaseUnknown_var& other) : QORInterface_var(other) {}

    /// The interface with a reference that the caller releases; null when the object lacks it.
    static QORIIFCImportServices* __CastTo(const QORBaseUnknown_var& other);
};
