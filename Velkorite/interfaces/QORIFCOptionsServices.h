/// Whether custom property sets are required in an exchange; yes unless told otherwise.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ResultCode.h"

class VELKOR_API QORIFCOptionsServices {
public:
    /// The one record, made on first use and gone when the library is unloaded.
    static QORIFCOptionsServices* getInstance();

    /// 1 or 0.
    unsigned char IsCustomPropertySetsRequired() const;
    /// Always S_OK.
    HRESULT SetEnableCustomPropertySets(const bool& enable);
    /// Back to yes.
    void Clear();

private:
    QORIFCOptionsServices();
    ~QORIFCOptionsServices() = default;
    static int OnExit(int);

    static QORIFCOptionsServices* _pinstance;
    unsigned char _customPropertySetsRequired;
};
