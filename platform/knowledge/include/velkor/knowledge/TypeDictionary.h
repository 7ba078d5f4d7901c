/// The types that a host makes known.
///
///     velkor::knowledge::addType({"Wall", TypeKind::Knowledge, "", true});
#pragma once

#include "velkor/knowledge/QORIType.h"
#include "velkor/PlatformExport.h"

#include <string>
#include <string_view>

namespace velkor::knowledge {

/// Which kind of type it is.
enum class TypeKind { Knowledge, Specialization };

/// What a type is made known by.
struct TypeDescription {
    std::string name;
    TypeKind kind = TypeKind::Knowledge;
    /// Name of the type that it is derived from; empty for none.
    std::string parent;
    /// True when it has no objects of its own.
    bool isAbstract = false;
};

/// Makes a type known; from the first one on there is a type dictionary. Nothing, and false, when there is one
/// of its name already.
VELKOR_PLATFORM_API bool addType(const TypeDescription& type);
/// Takes all types and the dictionary away. Types that somebody holds stay usable but are unknown.
VELKOR_PLATFORM_API void removeTypes();

/// A known type of either kind; empty when there is none.
VELKOR_PLATFORM_API QORIType_var typeNamed(std::string_view name);
/// True when the type is the other or derived from it.
VELKOR_PLATFORM_API bool isDerivedFrom(std::string_view type, std::string_view ancestor);

} // namespace velkor::knowledge
