/// Writes the source unit of one release.
#pragma once

#include "DictionaryLists.h"
#include "TextStore.h"

#include <string>

namespace velkor::dictgen {

/// `inputs` names the sources and their SHA-256 in the unit's first line. The store must hold the texts of the
/// release and of those before it.
std::string unitText(const std::string& schema, std::size_t release, const std::string& inputs,
                     const DictionaryLists& lists, TextStore& store);

} // namespace velkor::dictgen
