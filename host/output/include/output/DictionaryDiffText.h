/// What tells two dictionaries apart, for people and as JSON.
#pragma once

#include "output/Json.h"
#include "velkor/dictionaries/DictionaryDiff.h"

#include <string_view>

namespace velkor::host {

void writeDiff(TextSink out, std::string_view before, std::string_view after, const DictionaryDiff& diff);

Json diffJson(std::string_view before, std::string_view after, const DictionaryDiff& diff);

} // namespace velkor::host
