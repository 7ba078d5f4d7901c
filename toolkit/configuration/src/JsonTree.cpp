#include "JsonTree.h"

#include "velkor/text/Unicode.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <nlohmann/json.hpp>

namespace velkor {

namespace {

// Walks a text and lets its owner know which character the parser has read last.
class TrackingIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    TrackingIterator(const char* at, const char** lastRead) : _at(at), _lastRead(lastRead) {}
    reference operator*() const { return *_at; }
    TrackingIterator& operator++() {
        *_lastRead = _at++;
        return *this;
    }
    TrackingIterator operator++(int) {
        const TrackingIterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const TrackingIterator& a, const TrackingIterator& b) { return a._at == b._at; }

private:
    const char* _at;
    const char** _lastRead;
};

// The parser's message without its own number and its own count of the place.
std::string reason(std::string_view message) {
    if (message.starts_with('[')) message.remove_prefix(std::min(message.find("] "), message.size() - 2) + 2);
    if (message.starts_with("parse error at")) {
        message.remove_prefix(std::min(message.find(": "), message.size() - 2) + 2);
    }
    return std::string(message);
}

// The parser's events, put together to a tree.
class TreeBuilder final : public nlohmann::json_sax<nlohmann::json> {
public:
    explicit TreeBuilder(std::string_view text)
        : _text(text), _lastRead(text.data()), _counted(text.data()), _open{&_tree.root} {}

    bool read() {
        const char* end = _text.data() + _text.size();
        return nlohmann::json::sax_parse(TrackingIterator(_text.data(), &_lastRead), TrackingIterator(end, &_lastRead),
                                         this, nlohmann::json::input_format_t::json, true, true);
    }
    JsonTree take() { return std::move(_tree); }

    bool null() override { return add(JsonNode::Kind::Null, "null"); }
    bool boolean(bool value) override { return add(JsonNode::Kind::Boolean, value ? "true" : "false"); }
    bool number_integer(number_integer_t value) override {
        return add(JsonNode::Kind::Integer, std::to_string(value), value);
    }
    bool number_unsigned(number_unsigned_t value) override {
        // What needs all 64 bits is out of every range that is asked for.
        if (value > static_cast<number_unsigned_t>(std::numeric_limits<std::int64_t>::max()))
            return add(JsonNode::Kind::Integer, std::to_string(value));
        return add(JsonNode::Kind::Integer, std::to_string(value), static_cast<std::int64_t>(value));
    }
    bool number_float(number_float_t, const string_t& text) override { return add(JsonNode::Kind::Real, text); }
    bool string(string_t& text) override { return add(JsonNode::Kind::Text, std::move(text)); }
    bool binary(binary_t&) override { return false; }

    bool start_object(std::size_t) override { return open(JsonNode::Kind::Object); }
    bool start_array(std::size_t) override { return open(JsonNode::Kind::List); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool key(string_t& key) override {
        _open.back()->members.push_back({std::move(key), line(), {}});
        return true;
    }

    bool parse_error(std::size_t position, const std::string&, const nlohmann::json::exception& error) override {
        const std::size_t last = std::min(position, _text.size() + 1) - std::min<std::size_t>(position, 1);
        const std::string_view before = _text.substr(0, last);
        const std::size_t lineStart = before.rfind('\n') + 1;
        _tree.fault = JsonFault{1 + static_cast<std::size_t>(std::ranges::count(before, '\n')),
                                1 + text::characterCount(before.substr(lineStart)), reason(error.what())};
        return false;
    }

private:
    // The parser has read at most one character beyond what it reports, and a line end belongs to its line.
    std::size_t line() {
        _line += static_cast<std::size_t>(std::count(_counted, _lastRead, '\n'));
        _counted = _lastRead;
        return _line;
    }

    JsonNode& place() {
        JsonNode& parent = *_open.back();
        if (_open.size() == 1) return parent;
        if (parent.kind == JsonNode::Kind::Object) return parent.members.back().value;
        return parent.items.emplace_back();
    }

    bool add(JsonNode::Kind kind, std::string text, std::optional<std::int64_t> integer = {}) {
        JsonNode& node = place();
        node.kind = kind;
        node.line = line();
        node.text = std::move(text);
        node.integer = integer;
        return true;
    }

    bool open(JsonNode::Kind kind) {
        if (_open.size() > deepestJson) {
            _tree.fault = JsonFault{
                line(), 0, "expected at most " + std::to_string(deepestJson) + " lists and objects in each other"};
            return false;
        }
        JsonNode& node = place();
        node.kind = kind;
        node.line = line();
        _open.push_back(&node);
        return true;
    }

    bool close() {
        _open.pop_back();
        return true;
    }

    JsonTree _tree;
    std::string_view _text;
    const char* _lastRead;
    const char* _counted;
    std::size_t _line = 1;
    // The root stands in for the place of the first value; behind it what is open, the innermost last.
    std::vector<JsonNode*> _open;
};

} // namespace

std::string JsonNode::description() const {
    switch (kind) {
    case Kind::Null:
        return "null";
    case Kind::Boolean:
        return text;
    case Kind::Integer:
    case Kind::Real:
        return "the number " + text;
    case Kind::Text:
        return "a text";
    case Kind::List:
        return "a list";
    case Kind::Object:
        return "an object";
    }
    return "nothing";
}

JsonTree readJson(std::string_view text) {
    TreeBuilder builder(text);
    builder.read();
    return builder.take();
}

} // namespace velkor
