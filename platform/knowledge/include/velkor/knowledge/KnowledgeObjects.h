/// Objects as hosts present them to services: occurrences of PLM objects, and exchange objects.
#pragma once

#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

#include <string>
#include <utility>
#include <vector>

namespace velkor::knowledge {

/// Names and values.
using Attributes = std::vector<std::pair<std::string, std::string>>;

/// An occurrence (QORIPLMNavOccurrence, QORIVleObject) of a new object (QORIInstance, QORIVleObject) of a
/// type, with knowledge attributes. The type need not be known to the type dictionary.
VELKOR_PLATFORM_API QORBaseUnknown_var makeOccurrence(const std::string& typeName, Attributes attributes);

/// What an exchange object is made from.
struct ExchangeDescription {
    std::string identifier;
    std::string name;
    std::string ifcType;
    std::string description;
    std::string fileName;
    int number = 0;
};

/// An exchange object (QORIExchangeObject, QORIExchangeUserProperties). Names of properties are handed out in
/// upper case.
VELKOR_PLATFORM_API QORBaseUnknown_var makeExchangeObject(ExchangeDescription description, Attributes properties);

} // namespace velkor::knowledge
