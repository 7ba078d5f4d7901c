/// Reads what most documents of resources are: elements, attributes and texts in ASCII with the references that XML
/// itself knows. That takes a fraction of the parser's time. It judges nothing: where a document has anything else,
/// or something wrong, it stops, and the parser is to go on from there.
#pragma once

#include "velkor/xml/XmlEvents.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace velkor::xml {

class PlainReader {
public:
    PlainReader(std::string_view bytes, XmlReceiver& receiver);

    enum class End {
        OfDocument,
        OfReceiver, ///< which wants no more
        OfPlain,    ///< something else follows
    };
    /// Once.
    End read();

    /// How many elements have begun and ended, and how many bytes of text have come behind the last of these.
    std::size_t tags() const noexcept { return _tags; }
    std::size_t textBytes() const noexcept { return _textBytes; }
    /// Where it stands, counted from 1.
    int line() const noexcept { return _line; }
    int column() const noexcept;

private:
    End readContent();
    End readTag();
    bool readAttributes();
    bool takeReference();
    std::string_view takeName();
    bool take(std::string_view expected);
    void skipBlanks();
    void give(const char* end);

    const char* _begin;
    const char* _at;
    const char* _end;
    XmlReceiver& _receiver;
    std::vector<std::string_view> _open;
    std::vector<XmlAttribute> _attributes;
    std::size_t _tags = 0;
    std::size_t _textBytes = 0;
    int _line = 1;
};

} // namespace velkor::xml
