/// A way to write HTML in which nothing but what stands in the program is markup.
///
///     html << "<td>" << name << "</td>";
#pragma once

#include "terminal/TextSink.h"

#include <string_view>
#include <type_traits>

namespace velkor::host {

/// Writes to a sink; copies write to the same one. What is written is well-formed XML as well.
class Html {
public:
    explicit Html(TextSink out) noexcept : _out(out) {}

    /// Markup.
    const Html& operator<<(TextSink::Literal markup) const {
        _out << markup;
        return *this;
    }
    /// Any other text, as content or in an attribute's quotation marks. Bytes that are not UTF-8 become U+FFFD. A text
    /// of over 1000 bytes is cut, and "…" tells so.
    template <class Text>
    requires(std::convertible_to<const Text&, std::string_view> && !std::is_array_v<Text>) const Html&
    operator<<(const Text& text) const {
        write(text);
        return *this;
    }

private:
    void write(std::string_view text) const;

    TextSink _out;
};

} // namespace velkor::host
