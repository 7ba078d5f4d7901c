// The metaclasses of the interfaces.

#include "velkor/exchangeservices/QORIExchangeAECServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCCustomMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCPLMAttributesMappingServices.h"

namespace {

constexpr const char* exchange = "BuildingExchange";

constexpr IID versionMappingId = {0x06BFC97F, 0x95FD, 0x4E48, {0xB3, 0xED, 0x57, 0xDF, 0x3D, 0x14, 0x29, 0xAB}};
constexpr IID customMappingId = {0xBA82B8A1, 0x821E, 0x48D7, {0xB6, 0xAC, 0xE2, 0x9F, 0x79, 0xFF, 0x36, 0x71}};
constexpr IID plmAttributesId = {0x3E3D2C85, 0x9161, 0x4335, {0x9D, 0x1F, 0x4F, 0xD5, 0xE2, 0x8E, 0xD1, 0x51}};
constexpr IID aecId = {0x4C53F4C9, 0x86C6, 0x41FF, {0xBE, 0xE3, 0x9E, 0x08, 0x84, 0x33, 0x3E, 0xDA}};

} // namespace

VELKOR_IMPLEMENT_INTERFACE(QORIExchangeIFCMappingServices, QORBaseUnknown, versionMappingId, exchange)
VELKOR_IMPLEMENT_INTERFACE(QORIExchangeIFCCustomMappingServices, QORBaseUnknown, customMappingId, exchange)
VELKOR_IMPLEMENT_INTERFACE(QORIExchangeIFCPLMAttributesMappingServices, QORBaseUnknown, plmAttributesId, exchange)
VELKOR_IMPLEMENT_INTERFACE(QORIExchangeAECServices, QORBaseUnknown, aecId, exchange)
