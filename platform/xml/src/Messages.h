/// How the parser speaks to people: through the exchange log.
#pragma once

#include <libxml/xmlerror.h>
#include <string>

namespace velkor::xml {

/// Levels of messages in the exchange log.
enum MessageLevel : short { ErrorLevel = 1, WarningLevel = 2 };

/// Puts a text into the exchange log of the host, when there is one and it takes the level.
void log(const std::string& text, MessageLevel level);

/// What libxml2 has to say, without line ends and cut to a bearable length.
std::string messageText(const xmlError& error);

} // namespace velkor::xml
