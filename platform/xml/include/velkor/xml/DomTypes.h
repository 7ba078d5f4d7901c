/// Names of the DOM interfaces and of their smart pointers, for headers that only mention them.
#pragma once

#include "velkor/objectmodeler/QORBaseUnknown_var.h"

class QORIDOMNode;
class QORIDOMNodeList;
class QORIDOMElement;
class QORIDOMAttr;
class QORIDOMDocument;
class QORIDOMDocumentType;
class QORIDOMImplementation;
class QORIDOMNodeFilter;
class QORIDOMNodeIterator;
class QORIDOMDocumentTraversal;

using QORIDOMNode_var = QORInterface_var<QORIDOMNode>;
using QORIDOMNodeList_var = QORInterface_var<QORIDOMNodeList>;
using QORIDOMElement_var = QORInterface_var<QORIDOMElement>;
using QORIDOMAttr_var = QORInterface_var<QORIDOMAttr>;
using QORIDOMDocument_var = QORInterface_var<QORIDOMDocument>;
using QORIDOMDocumentType_var = QORInterface_var<QORIDOMDocumentType>;
using QORIDOMImplementation_var = QORInterface_var<QORIDOMImplementation>;
using QORIDOMNodeFilter_var = QORInterface_var<QORIDOMNodeFilter>;
using QORIDOMNodeIterator_var = QORInterface_var<QORIDOMNodeIterator>;
using QORIDOMDocumentTraversal_var = QORInterface_var<QORIDOMDocumentTraversal>;
