/// JSON as people write it, with // and /* */ comments, read into a tree that knows its lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor {

struct JsonNode {
    enum class Kind { Null, Boolean, Integer, Real, Text, List, Object };
    struct Member;

    Kind kind = Kind::Null;
    /// Where a plain value ends, or a list or an object begins; counted from 1.
    std::size_t line = 1;
    /// A text's characters; a number or a truth value as the file writes it.
    std::string text;
    /// Value of an integer; nothing when it does not fit.
    std::optional<std::int64_t> integer;
    std::vector<JsonNode> items;
    /// In the order of the file, repeated keys included.
    std::vector<Member> members;

    /// What a message says was found: "a list", "the number 7".
    std::string description() const;
};

struct JsonNode::Member {
    std::string key;
    std::size_t line;
    JsonNode value;
};

/// What hinders the reading of a text.
struct JsonFault {
    std::size_t line = 0;
    /// In characters, counted from 1; 0 when the fault is no matter of syntax.
    std::size_t column = 0;
    std::string reason;
};

struct JsonTree {
    JsonNode root;
    /// When it is there, the root is not whole.
    std::optional<JsonFault> fault;
};

/// Lists and objects that may be nested into each other.
constexpr std::size_t deepestJson = 32;

JsonTree readJson(std::string_view text);

} // namespace velkor
