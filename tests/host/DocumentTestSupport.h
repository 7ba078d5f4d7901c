/// What the tests of commands that answer by XML documents share: the documents themselves.
#pragma once

#include "QORIFCDXXMLServices.h"
#include "TestSupport.h"

#include <string>
#include <vector>

namespace velkor::host {

inline std::string standardFile(const std::string& name) {
    return std::string(shippedResources) + "/standard/" + name;
}

inline std::string attribute(const QORIDOMNode_var& node, const char* name) {
    QORUnicodeString value;
    EXPECT_EQ(QORIFCDXXMLServices::GetAttributeValue(node, name, value), S_OK);
    return std::string(value.utf8());
}

/// What an expression selects in the document of a file.
inline std::vector<QORIDOMNode_var> nodes(const std::string& path, const std::string& xpath) {
    QORIDOMDocument_var document;
    QORIDOMNodeList_var list;
    std::vector<QORIDOMNode_var> result;
    unsigned int length = 0;
    EXPECT_EQ(QORIFCDXXMLServices::GetDOMDocument(path.c_str(), document), S_OK) << path;
    EXPECT_EQ(QORIFCDXXMLServices::GetNodeList(document, xpath.c_str(), list), S_OK) << xpath;
    EXPECT_EQ(list->GetLength(length), S_OK);
    for (unsigned int i = 0; i < length; ++i) list->Item(i, result.emplace_back());
    return result;
}

} // namespace velkor::host
