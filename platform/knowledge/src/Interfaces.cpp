// The metaclasses of the interfaces.

#include "velkor/knowledge/QORIExchangeObject.h"
#include "velkor/knowledge/QORIInstance.h"
#include "velkor/knowledge/QORIPLMNavOccurrence.h"
#include "velkor/knowledge/QORIType.h"
#include "velkor/knowledge/QORITypeDictionary.h"
#include "velkor/knowledge/QORIVleObject.h"

namespace {

constexpr const char* knowledge = "Knowledge";
constexpr const char* exchange = "BuildingExchange";

constexpr IID typeId = {0x6AF9660A, 0xD874, 0x4DFD, {0xB0, 0xF9, 0x71, 0x6B, 0x63, 0x8A, 0x3D, 0x76}};
constexpr IID typeDictionaryId = {0x408CFB80, 0xCAB9, 0x42AD, {0x8C, 0xCE, 0x61, 0x75, 0x8B, 0xC7, 0xBE, 0xCA}};
constexpr IID instanceId = {0xD350E11B, 0x2C16, 0x4695, {0xA5, 0x7A, 0x1D, 0x53, 0x12, 0x15, 0xF7, 0x80}};
constexpr IID occurrenceId = {0xDDD9B6FD, 0x7387, 0x4FB7, {0x89, 0x13, 0x3A, 0xFF, 0x67, 0xC0, 0x40, 0x54}};
constexpr IID vleObjectId = {0xEB374DDE, 0xBC3B, 0x4581, {0x8F, 0x34, 0x2F, 0xF8, 0x20, 0x32, 0x07, 0x4C}};
constexpr IID exchangeObjectId = {0x98901D8B, 0x6CCF, 0x4A78, {0xA3, 0x65, 0x40, 0x13, 0x40, 0x91, 0xD3, 0xA6}};
constexpr IID userPropertiesId = {0xCD3F3408, 0x2441, 0x4AF5, {0x8C, 0x86, 0x99, 0x10, 0xDD, 0x11, 0x1F, 0x78}};

} // namespace

VELKOR_IMPLEMENT_INTERFACE(QORIType, QORBaseUnknown, typeId, knowledge)
VELKOR_IMPLEMENT_INTERFACE(QORITypeDictionary, QORBaseUnknown, typeDictionaryId, knowledge)
VELKOR_IMPLEMENT_INTERFACE(QORIInstance, QORBaseUnknown, instanceId, knowledge)
VELKOR_IMPLEMENT_INTERFACE(QORIPLMNavOccurrence, QORBaseUnknown, occurrenceId, knowledge)
VELKOR_IMPLEMENT_INTERFACE(QORIVleObject, QORBaseUnknown, vleObjectId, knowledge)
VELKOR_IMPLEMENT_INTERFACE(QORIExchangeObject, QORBaseUnknown, exchangeObjectId, exchange)
VELKOR_IMPLEMENT_INTERFACE(QORIExchangeUserProperties, QORBaseUnknown, userPropertiesId, exchange)
