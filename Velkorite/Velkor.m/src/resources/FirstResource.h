/// How the components find the one document that they read.
#pragma once

#include "ResourceKinds.h"

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORUnicodeString.h"

namespace velkor::library {

/// Path of a resource of which the first file counts: what the setup-data finder has for its key, be it
/// empty; else the first file of the collection standard. E_UNEXPECTED when that has none, and without a
/// finder where the kind's rule asks for one.
HRESULT findFirstResource(const ResourceKind& kind, QORUnicodeString& path);

} // namespace velkor::library
