#include "output/Csv.h"

namespace velkor::host {

std::string csvField(std::string_view text) {
    std::string field;
    if (!text.empty() && std::string_view("=+-@\t\r").find(text.front()) != std::string_view::npos) field = '\'';
    // Line ends are escaped on their way out.
    if (text.find_first_of(",\"") == std::string_view::npos) return field.append(text);
    field.insert(field.begin(), '"');
    for (const char c : text) {
        if (c == '"') field += '"';
        field += c;
    }
    return field + '"';
}

} // namespace velkor::host
