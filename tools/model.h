#pragma once

// The shape in which two configurations are compared: elements with their
// attributes, text, place in the file and children, each with a key that
// matches it among its siblings.

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "kazparser.h"

namespace kazcfg {

using kaz::kazparser::INodeCfg;
using kaz::kazparser::IXNodeCfg;
using kaz::kazparser::SourceLocation;
using Attributes = std::vector<std::pair<std::wstring, std::wstring>>;

struct Element {
    std::wstring tag;    // the element name
    std::wstring label;  // how reports name it
    std::wstring key;    // what matches it among its siblings
    Attributes attributes;
    std::wstring text;
    std::optional<SourceLocation> where;
    std::vector<Element> children;
};

// Every element as written: matched by its tag, labelled "<tag>".
Element genericModel(const IXNodeCfg& node);

// Typed nodes matched by kind and identity (see describeNode); their
// attributes and text are what each node writes. The content a node keeps
// as markup (a feature's value, a table) is compared as generic elements.
Element typedModel(const INodeCfg& node);

// The attributes that tell a node from its siblings of the same kind: the
// "name" of parameter sets, values and presentation elements, the "elemID"
// (and "refFileName") of references, the "engineID" of plug-ins.
Attributes identifyingAttributes(const INodeCfg& node);

// A node's kind, its element name where the kind does not fix it, and its
// identifying attributes: `DataCollector RoadCollector engineID="Roads"`.
std::wstring describeNode(const INodeCfg& node);

// XML text read as a tree of generic nodes, or, when it does not read, null
// and the reader's reason.
struct GenericRead {
    std::unique_ptr<IXNodeCfg> root;
    std::wstring reason;
};
GenericRead readGeneric(const std::wstring& text);

}  // namespace kazcfg
