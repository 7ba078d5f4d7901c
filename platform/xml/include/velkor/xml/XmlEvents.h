/// Reads XML documents as a sequence of events, for those who need no tree.
///
///     xml::XmlEvents events;
///     if (const auto end = events.read(bytes, receiver); !end) show(end.error().line, end.error().message);
///
/// Reading is as harmless as that of documents (QORIXMLDOMDocumentBuilder): nothing is opened, elements nest at most
/// 256 deep, an element has at most 1,000 attributes. Beyond that no document type may declare anything, so that no
/// text stands for another: a declaration ends the reading.
#pragma once

#include "velkor/PlatformExport.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::xml {

/// An attribute of an element.
struct XmlAttribute {
    std::string_view name;
    std::string_view value;
};

/// What gets the events. Texts are valid during the call alone. It may throw; that ends the reading and is passed on.
class VELKOR_PLATFORM_API XmlReceiver {
public:
    virtual ~XmlReceiver();

    /// An element by its local name, with its attributes that have no prefix and the line on which its tag ends. False
    /// ends the reading without a message.
    virtual bool begin(std::string_view name, std::span<const XmlAttribute> attributes, int line) = 0;
    /// The text of an element may come in several pieces. White space between elements comes too.
    virtual void text(std::string_view piece) = 0;
    virtual void end() = 0; ///< Behind the end of an element.
};

/// Why a document cannot be read.
struct XmlError {
    /// Counted from 1; 0 where no place is meant.
    int line = 0;
    int column = 0;
    /// Empty when it was the receiver that ended the reading.
    std::string message;
};

/// One after the other, it reads many documents for little more than their text takes. For one thread at a time.
class VELKOR_PLATFORM_API XmlEvents {
public:
    XmlEvents();
    ~XmlEvents();
    XmlEvents(const XmlEvents&) = delete;
    XmlEvents& operator=(const XmlEvents&) = delete;

    /// In UTF-8 or what the document declares. Fails for what is not well-formed, namespaces included; events up to
    /// there have come.
    tl::expected<void, XmlError> read(std::string_view bytes, XmlReceiver& receiver);

private:
    class Parser;
    std::unique_ptr<Parser> _parser;
};

} // namespace velkor::xml
