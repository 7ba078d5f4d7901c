/// A resource file as a tree of its elements, with what the services look at: names, attributes, lines, and the
/// place of an element among all nodes of its parent, texts included.
///
///     XmlReading reading = readXml(path);
///     if (reading.root) judge(*reading.root);
#pragma once

#include "ResourceNames.h"
#include "velkor/resources/Finding.h"
#include "velkor/xml/QORIDOMDocument.h"

#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::lint {

struct XmlElement {
    struct Attribute {
        /// With its prefix.
        std::string name;
        std::string value;
        std::string namespaceUri;
    };

    std::string name;
    std::string namespaceUri;
    int line = 0;
    /// Position among the parent's child nodes, counted from 0.
    unsigned int index = 0;
    const XmlElement* parent = nullptr;
    std::vector<Attribute> attributes;
    /// Value of the first child node, which is the text of an element that holds nothing else.
    std::string text;
    /// The elements among the children.
    std::list<XmlElement> children;

    /// Value of an attribute, empty when it is absent.
    const std::string& attribute(std::string_view attributeName) const;
    bool hasAttribute(std::string_view attributeName) const;

    /// Calls `visit` with this element and every one below it that has the name, in the order of the document.
    template <class Visit>
    void visitNamed(std::string_view wanted, const Visit& visit) const {
        if (name == wanted) visit(*this);
        for (const XmlElement& child : children) child.visitNamed(wanted, visit);
    }
    bool contains(std::string_view wanted) const;
    /// False for one that the services pass over where it stands, if it is of a mapping or a correspondence.
    bool isExamined() const noexcept { return index >= firstExaminedChild; }
};

struct XmlReading {
    /// Empty when the file is not well-formed.
    QORIDOMDocument_var document;
    /// Null when the file is not well-formed.
    std::unique_ptr<XmlElement> root;
    /// What was read.
    std::string_view bytes;
    /// What the parser has to say.
    std::vector<Finding> findings;
};

/// Reads the bytes of a file, which must outlive the answer.
XmlReading readXml(std::string_view bytes, const std::string& path);

} // namespace velkor::lint
