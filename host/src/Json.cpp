#include "Json.h"

#include <array>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>
#include <ostream>

namespace velkor::host {

namespace {

void writeNumber(std::ostream& out, double value) {
    if (!std::isfinite(value)) {
        out << "null";
        return;
    }
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::general, 17);
    out.write(digits.data(), end.ptr - digits.data());
}

void writeText(std::ostream& out, const Json& value) {
    out << value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void writeLineStart(std::ostream& out, int depth) {
    out << '\n';
    for (int i = 0; i < depth; ++i) out << "  ";
}

void write(std::ostream& out, const Json& value, int depth) {
    if (value.is_number_float()) {
        writeNumber(out, value.get<double>());
        return;
    }
    if (!value.is_structured()) {
        writeText(out, value);
        return;
    }
    const bool object = value.is_object();
    out << (object ? '{' : '[');
    bool first = true;
    for (const auto& [key, member] : value.items()) {
        if (!first) out << ',';
        first = false;
        writeLineStart(out, depth + 1);
        if (object) {
            writeText(out, key);
            out << ": ";
        }
        write(out, member, depth + 1);
    }
    if (!first) writeLineStart(out, depth);
    out << (object ? '}' : ']');
}

} // namespace

void writeJson(std::ostream& out, const Json& value) {
    write(out, value, 0);
    out << '\n';
}

} // namespace velkor::host
