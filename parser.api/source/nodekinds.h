#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "contentsink.h"
#include "kazparser/INodeCfg.h"
#include "kazparser/SourceLocation.h"
#include "saxattributes.h"

// The node kinds, stated once: each kind's node type, tag, class name, how
// it is made from an element, what becomes of the element's content, and
// the builder's rules for choosing it. The builder, the factory and the
// kinds themselves read this table.
namespace kaz::kazparser::kinds {

// What becomes of the content of a kind's element.
enum class Content : unsigned char {
    Nodes = 0,  // nested elements make child nodes; text is dropped
    Text,       // the character data is the node's text
    Raw,        // everything inside, nested markup too, is the node's text
    Markup,     // the content is kept as markup
    Value,      // the content is read as a typed data value
};

// A node just made, and where its element's content goes (null for Nodes).
struct Made {
    INodeCfg* node;
    ContentSink* content;
};

struct Kind {
    INodeCfg::NodeType type;
    // The fixed tag; for the kinds that keep their element's name, the name
    // written while theirs is empty.
    std::wstring_view tag;
    const wchar_t* className;  // in error contexts
    Content content;
    Made (*make)(const ElementStart& element, INodeCfg* parent);
    INodeCfg* (*makeEmpty)(INodeCfg* parent);
    // The kind of a child element whose name decides nothing; none: generic.
    std::optional<INodeCfg::NodeType> childKind;
    // Whether the factory may ask for it as the kind of the first element.
    bool expectable;
};

// The kind an element's name decides: null when the name decides none;
// `makesNothing` tells the names that are known but make no node.
const Kind* byName(std::wstring_view name, bool& makesNothing);
// The kind of `type` (for UseData, the typed value).
const Kind& of(INodeCfg::NodeType type);
// The kind the first element is made as when the factory asks for `type`;
// null for the kinds it may not ask for.
const Kind* expected(INodeCfg::NodeType type);
// The kind of a child element under a node of `parentType` whose name
// decides nothing.
const Kind& childOf(INodeCfg::NodeType parentType);
// The tag of `type`, as a string that lives as long as the process.
const std::wstring& tag(INodeCfg::NodeType type);
const Kind& languageString();
const std::wstring& languageStringTag();

}  // namespace kaz::kazparser::kinds
