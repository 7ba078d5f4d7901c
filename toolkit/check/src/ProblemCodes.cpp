#include "velkor/check/ModelCheck.h"
#include "velkor/identifiers/GuidText.h"
#include "velkor/propertysets/PropertySetCheck.h"
#include "velkor/sdai/ProblemCode.h"

#include <algorithm>
#include <iterator>

namespace velkor {

std::vector<std::string_view> problemCodes() {
    std::vector<std::string_view> codes(sdai::checkCodes.begin(), sdai::checkCodes.end());
    codes.insert(codes.end(), ruleCodes.begin(), ruleCodes.end());
    // What else there is to say of an identifier, the dictionary says.
    std::ranges::copy_if(guid::codes, std::back_inserter(codes),
                         [](std::string_view code) { return code != "guid-missing" && code != "guid-length"; });
    for (const SetCode& code : setCodes()) codes.push_back(code.code);
    std::ranges::sort(codes);
    return codes;
}

} // namespace velkor
