/// Models as text.
#pragma once

#include <string>

namespace velkor::test {

/// A model of a release that holds these instances.
inline std::string modelText(const std::string& release, const std::string& instances) {
    return "ISO-10303-21;HEADER;FILE_DESCRIPTION((''),'2;1');FILE_NAME('','',(''),(''),'','','');FILE_SCHEMA(('" +
           release + "'));ENDSEC;DATA;" + instances + "ENDSEC;END-ISO-10303-21;";
}

} // namespace velkor::test
