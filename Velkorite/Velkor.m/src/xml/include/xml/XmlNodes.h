/// How the services read XML documents. A failure is reported as an assertion of the caller's source unit unless a
/// function says otherwise.
///
///     const NodeRange children = childrenBehindFirst(version);
///     RETURN_IF_FAILED(children.result());
///     for (const ListedNode& child : children) …
///     for (const QORIDOMElement_var& element : childElements(mapping)) …
#pragma once

#include "foundation/Results.h"
#include "velkor/text/QORUnicodeString.h"
#include "velkor/xml/QORIDOMDocument.h"
#include "velkor/xml/QORIDOMElement.h"
#include "velkor/xml/QORIDOMNodeFilter.h"
#include "velkor/xml/QORIDOMNodeIterator.h"
#include "velkor/xml/QORIDOMNodeList.h"

#include <initializer_list>
#include <optional>
#include <utility>

namespace velkor::library {

/// What a list has at a place, or why it does not give it.
struct ListedNode {
    HRESULT result;
    QORIDOMNode_var node;
};

/// The nodes of a list.
class NodeRange {
public:
    class Iterator {
    public:
        Iterator(const NodeRange& range, unsigned int index) noexcept : _range(&range), _index(index) {}
        ListedNode operator*() const { return (*_range)[_index]; }
        Iterator& operator++() noexcept {
            ++_index;
            return *this;
        }
        bool operator==(const Iterator& other) const noexcept { return _index == other._index; }

    private:
        const NodeRange* _range;
        unsigned int _index;
    };

    /// The list that a step gave, of the length that it has now. Nothing is reported.
    NodeRange(HRESULT result, const QORIDOMNodeList_var& list);

    /// Why there is no list; else S_OK.
    HRESULT result() const noexcept { return _result; }
    /// Length of the whole list; 0 when there is none.
    unsigned int length() const noexcept { return _length; }
    /// The node at a place of the list, counted from 0.
    ListedNode operator[](unsigned int index) const;

    /// The same nodes without the first of the list.
    NodeRange behindFirst() const;
    Iterator begin() const noexcept { return {*this, _first}; }
    Iterator end() const noexcept { return {*this, _length}; }

private:
    HRESULT _result;
    QORIDOMNodeList_var _list;
    unsigned int _first = 0;
    unsigned int _length = 0;
};

/// The elements of a list. What is none or cannot be had is left out; nothing is reported.
class ElementRange {
public:
    class Iterator {
    public:
        Iterator(NodeRange::Iterator position, NodeRange::Iterator end) : _position(position), _end(end) { settle(); }
        const QORIDOMElement_var& operator*() const noexcept { return _element; }
        Iterator& operator++() {
            ++_position;
            settle();
            return *this;
        }
        bool operator==(const Iterator& other) const noexcept { return _position == other._position; }

    private:
        /// Goes on to an element.
        void settle();

        NodeRange::Iterator _position;
        NodeRange::Iterator _end;
        QORIDOMElement_var _element;
    };

    explicit ElementRange(NodeRange nodes) noexcept : _nodes(std::move(nodes)) {}

    Iterator begin() const { return {_nodes.begin(), _nodes.end()}; }
    Iterator end() const { return {_nodes.end(), _nodes.end()}; }

private:
    NodeRange _nodes;
};

[[nodiscard]] NodeRange childrenOf(const QORIDOMNode_var& parent, SourcePlace place = SourcePlace::here());
/// The children that count where hosts rely on the first one never being examined, whatever it is; in an indented
/// file it is the white space in front of the first element.
[[nodiscard]] NodeRange childrenBehindFirst(const QORIDOMNode_var& parent, SourcePlace place = SourcePlace::here());
/// All elements among the children; none of an empty node. Nothing is reported.
[[nodiscard]] ElementRange childElements(const QORIDOMNode_var& parent);
/// The nodes that an XPath expression selects. What is wrong with that is reported by the XML services.
[[nodiscard]] NodeRange select(const QORIDOMDocument_var& document, const char* xpath);
/// The elements that names lead to, from the document's element downwards.
[[nodiscard]] NodeRange select(const QORIDOMDocument_var& document, std::initializer_list<const char*> path);
/// The elements of a tag below a document or an element. Nothing is reported.
template <class Parent>
[[nodiscard]] NodeRange elementsTagged(const char* tag, const QORInterface_var<Parent>& parent) {
    QORIDOMNodeList_var elements;
    const HRESULT result = parent->GetElementsByTagName(tag, elements);
    return {result, elements};
}

/// Walks the elements at and below an element of a document, those that a filter accepts when there is one.
[[nodiscard]] HRESULT elementIterator(const QORIDOMDocument_var& document, const QORIDOMElement_var& root,
                                      const QORIDOMNodeFilter_var& filter, QORIDOMNodeIterator_var& iterator,
                                      SourcePlace place = SourcePlace::here());

/// The name of a node of a list. E_UNEXPECTED when the list gave none.
[[nodiscard]] HRESULT nodeName(const ListedNode& listed, QORUnicodeString& name,
                               SourcePlace place = SourcePlace::here());
/// The node's value; when it is empty, as an element's is, that of its first child alone. E_UNEXPECTED when there is
/// none. Nothing is reported.
[[nodiscard]] HRESULT nodeValue(const QORIDOMNode_var& node, QORUnicodeString& value);
/// The node as an element; E_UNEXPECTED when it is none.
[[nodiscard]] HRESULT asElement(const QORIDOMNode_var& node, QORIDOMElement_var& element,
                                SourcePlace place = SourcePlace::here());
/// The element's name.
[[nodiscard]] HRESULT tagName(const QORIDOMElement_var& element, QORUnicodeString& name,
                              SourcePlace place = SourcePlace::here());

/// The value of an attribute, empty when it is absent.
[[nodiscard]] HRESULT attribute(const QORIDOMElement_var& element, const char* name, QORUnicodeString& value,
                                SourcePlace place = SourcePlace::here());
/// The value of an attribute that may be absent.
[[nodiscard]] HRESULT attribute(const QORIDOMElement_var& element, const char* name,
                                std::optional<QORUnicodeString>& value, SourcePlace place = SourcePlace::here());
/// The value of an attribute, for who takes one that cannot be had for an absent one. Nothing is reported.
[[nodiscard]] QORUnicodeString attribute(const QORIDOMElement_var& element, const char* name);

} // namespace velkor::library
