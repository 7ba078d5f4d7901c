/// Classes of products, for people and as JSON.
#pragma once

#include "output/Json.h"
#include "velkor/classification/Classification.h"

#include <string>

namespace velkor::host {

/// "(complex instance)" where there is none.
std::string entityName(const Classification::Decision& decision);

/// "-" for an empty text, as tables have it.
std::string orDash(const std::string& text);

/// `entity`, `neutral_id`, `plm_type` and `count` of each class.
Json classesJson(const Classification& classification);

} // namespace velkor::host
