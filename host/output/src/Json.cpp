#include "output/Json.h"

#include "velkor/text/Unicode.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

void writeNumber(TextSink out, double value) {
    if (!std::isfinite(value)) {
        out << "null";
        return;
    }
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::general, 17);
    out << std::string_view(digits.data(), end.ptr);
}

void writeText(TextSink out, const Json& value) {
    out << value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

bool isUtf8(std::string_view text) {
    std::int32_t code = 0;
    for (; !text.empty(); text.remove_prefix(text::decode(text, code))) {
        if (code < 0) return false;
    }
    return code >= 0;
}

std::string percentEncoded(std::string_view text) {
    constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (plain.find(c) != std::string_view::npos)
            result += c;
        else
            result.append({'%', digits[byte >> 4U], digits[byte & 0xFU]});
    }
    return result;
}

const std::string& textOf(const Json& value) {
    return value.get_ref<const std::string&>();
}

/// What has to be said beside a member that is no UTF-8; null for nothing.
Json exactBytes(const Json& member) {
    if (member.is_string()) return isUtf8(textOf(member)) ? Json() : Json(percentEncoded(textOf(member)));
    const auto isBad = [](const Json& item) { return item.is_string() && !isUtf8(textOf(item)); };
    if (!member.is_array() || std::ranges::none_of(member, isBad)) return {};
    Json result = Json::array();
    for (const Json& item : member) result.push_back(item.is_string() ? Json(percentEncoded(textOf(item))) : item);
    return result;
}

class Writer {
public:
    Writer(TextSink out, JsonLayout layout) : _out(out), _layout(layout) {}

    void write(const Json& value) {
        if (value.is_number_float())
            writeNumber(_out, value.get<double>());
        else if (!value.is_structured())
            writeText(_out, value);
        else
            value.is_object() ? writeObject(value) : writeArray(value);
    }

private:
    void writeObject(const Json& object) {
        begin("{");
        for (const auto& [key, member] : object.items()) {
            writeMember(key, member);
            if (const Json bytes = exactBytes(member); !bytes.is_null()) writeMember(key + "_bytes", bytes);
        }
        end("}");
    }

    void writeMember(const std::string& key, const Json& member) {
        beginItem();
        writeText(_out, key);
        _out << ": ";
        write(member);
        _isFirst = false;
    }

    void writeArray(const Json& array) {
        begin("[");
        for (const Json& item : array) {
            beginItem();
            write(item);
            _isFirst = false;
        }
        end("]");
    }

    void begin(TextSink::Literal bracket) {
        _out << bracket;
        ++_depth;
        _isFirst = true;
    }

    void beginItem() {
        if (!_isFirst) _out << (isIndented() ? "," : ", ");
        beginLine();
    }

    void end(TextSink::Literal bracket) {
        --_depth;
        if (!_isFirst) beginLine();
        _out << bracket;
        _isFirst = false;
    }

    bool isIndented() const { return _layout == JsonLayout::Indented; }

    void beginLine() {
        if (!isIndented()) return;
        _out << '\n';
        for (int i = 0; i < _depth; ++i) _out << "  ";
    }

    TextSink _out;
    JsonLayout _layout;
    int _depth = 0;
    // True when nothing stands in the innermost brackets yet.
    bool _isFirst = true;
};

} // namespace

Json textOrNull(const std::string& text) {
    return text.empty() ? Json() : Json(text);
}

void writeJson(TextSink out, const Json& value, JsonLayout layout) {
    Writer(out, layout).write(value);
    out << '\n';
}

} // namespace velkor::host
