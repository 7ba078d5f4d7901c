#include "Writer.h"

#include "DocumentStore.h"
#include "Messages.h"

#include <memory>
#include <string_view>

namespace velkor::xml {

namespace {

class Writer {
public:
    explicit Writer(const Layout& layout) : _layout(layout) {}

    bool writeDocument(xmlDocPtr document) {
        _out = R"(<?xml version="1.0" encoding="UTF-8")";
        if (document->standalone == 1) _out += R"( standalone="yes")";
        _out += "?>";
        endLine();
        for (xmlNodePtr child = document->children; child != nullptr; child = child->next) {
            writeNode(child, 0);
            endLine();
        }
        return !_isTooDeep;
    }
    std::string take() { return std::move(_out); }

private:
    void writeNode(xmlNodePtr node, int depth) {
        switch (node->type) {
        case XML_ELEMENT_NODE:
            writeElement(node, depth);
            break;
        case XML_TEXT_NODE:
            writeText(view(node->content));
            break;
        case XML_CDATA_SECTION_NODE:
            writeVerbatim("<![CDATA[", view(node->content), "]]>");
            break;
        case XML_COMMENT_NODE:
            writeVerbatim("<!--", view(node->content), "-->");
            break;
        case XML_PI_NODE:
            writeVerbatim("<?" + std::string(view(node->name)) + (node->content != nullptr ? " " : ""),
                          view(node->content), "?>");
            break;
        case XML_ENTITY_REF_NODE:
            writeVerbatim("&", view(node->name), ";");
            break;
        case XML_DTD_NODE:
            writeDeclaration(node);
            break;
        default:
            break;
        }
    }

    void writeElement(xmlNodePtr element, int depth) {
        if (depth >= maximumDepth) {
            _isTooDeep = true;
            return;
        }
        const std::string name = qualifiedName(element);
        _out += '<';
        _out += name;
        for (const xmlNs* declared = element->nsDef; declared != nullptr; declared = declared->next) {
            writeAttribute(declared->prefix != nullptr ? "xmlns:" + std::string(view(declared->prefix)) : "xmlns",
                           view(declared->href));
        }
        for (xmlAttrPtr attribute = element->properties; attribute != nullptr; attribute = attribute->next) {
            writeAttribute(qualifiedName(reinterpret_cast<const xmlNode*>(attribute)), attributeText(attribute));
        }
        if (element->children == nullptr) {
            _out += "/>";
            return;
        }
        _out += '>';
        const bool isLaidOut = !_layout.indentation.empty() && hasLayout(element);
        for (xmlNodePtr child = element->children; child != nullptr; child = child->next) {
            if (isLaidOut && child->type == XML_TEXT_NODE) continue;
            if (isLaidOut) beginLine(depth + 1);
            writeNode(child, depth + 1);
        }
        if (isLaidOut) beginLine(depth);
        _out += "</";
        _out += name;
        _out += '>';
    }

    /// True when the white space between an element's children may be made anew.
    static bool hasLayout(xmlNodePtr element) {
        bool hasChild = false;
        for (xmlNodePtr child = element->children; child != nullptr; child = child->next) {
            switch (child->type) {
            case XML_ELEMENT_NODE:
            case XML_COMMENT_NODE:
            case XML_PI_NODE:
                hasChild = true;
                break;
            case XML_TEXT_NODE:
                if (xmlIsBlankNode(child) == 0) return false;
                break;
            default:
                return false;
            }
        }
        return hasChild && xmlNodeGetSpacePreserve(element) != 1;
    }

    void writeAttribute(const std::string& name, std::string_view value) {
        _out += ' ';
        _out += name;
        _out += "=\"";
        for (const char character : value) {
            switch (character) {
            case '"':
                _out += "&quot;";
                break;
            // A reader makes blanks of these unless they are written as references.
            case '\t':
                _out += "&#9;";
                break;
            case '\n':
                _out += "&#10;";
                break;
            default:
                writeEscaped(character);
            }
        }
        _out += '"';
    }

    void writeText(std::string_view text) {
        for (const char character : text) {
            switch (character) {
            case '>':
                _out += "&gt;";
                break;
            case '\n':
                endLine();
                break;
            default:
                writeEscaped(character);
            }
        }
    }

    void writeEscaped(char character) {
        switch (character) {
        case '&':
            _out += "&amp;";
            break;
        case '<':
            _out += "&lt;";
            break;
        case '\r':
            _out += "&#13;";
            break;
        default:
            _out += character;
        }
    }

    void writeVerbatim(std::string_view begin, std::string_view text, std::string_view end) {
        _out += begin;
        for (const char character : text) {
            if (character == '\n')
                endLine();
            else
                _out += character;
        }
        _out += end;
    }

    void writeDeclaration(xmlNodePtr declaration) {
        const std::unique_ptr<xmlBuffer, void (*)(xmlBufferPtr)> buffer(made(xmlBufferCreate, xmlBufferFree),
                                                                        xmlBufferFree);
        const MessageCapture capture;
        xmlNodeDump(buffer.get(), declaration->doc, declaration, 0, 0);
        capture.check();
        writeVerbatim({}, view(xmlBufferContent(buffer.get())), {});
    }

    void endLine() { _out += _layout.lineSeparator; }
    void beginLine(int depth) {
        endLine();
        for (int level = 0; level < depth; ++level) _out += _layout.indentation;
    }

    const Layout& _layout;
    std::string _out;
    bool _isTooDeep = false;
};

} // namespace

std::string written(xmlDocPtr document, const Layout& layout) {
    Writer writer(layout);
    return writer.writeDocument(document) ? writer.take() : std::string();
}

} // namespace velkor::xml
