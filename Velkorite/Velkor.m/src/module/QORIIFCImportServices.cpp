#include "QORIIFCImportServices.h"

const IID IID_QORIIFCImportServices = {0x2C7255B3, 0xEC9B, 0x4988, {0x81, 0x36, 0x15, 0x37, 0xA2, 0x7D, 0x1F, 0xC7}};

VELKOR_IMPLEMENT_INTERFACE(QORIIFCImportServices, QORBaseUnknown, IID_QORIIFCImportServices, "Velkorite")

QORIIFCImportServices::QORIIFCImportServices() = default;
QORIIFCImportServices::QORIIFCImportServices(const QORIIFCImportServices& other) = default;
QORIIFCImportServices::QORIIFCImportServices(QORIIFCImportServices&& other) noexcept = default;
QORIIFCImportServices& QORIIFCImportServices::operator=(const QORIIFCImportServices& other) = default;
QORIIFCImportServices& QORIIFCImportServices::operator=(QORIIFCImportServices&& other) noexcept = default;
QORIIFCImportServices::~QORIIFCImportServices() = default;

QORIIFCImportServices* QORIIFCImportServices_var::__CastTo(const QORBaseUnknown_var& other) {
    return static_cast<QORIIFCImportServices*>(other.CastTo(IID_QORIIFCImportServices));
}
