#include "pretty.h"

#include <optional>
#include <vector>

namespace kazcfg {

using kaz::kazparser::INodeCfg;

namespace {

struct Tags {
    std::wstring start;
    std::wstring end;
};

// The start and end tag around the children of `node`, when what it writes
// is exactly: start tag, each child's text, end tag.
std::optional<Tags> tagsAround(const INodeCfg& node) {
    const std::wstring written = node.toXml();
    std::wstring children;
    for (unsigned i = 0; i < node.getChildCount(); ++i)
        if (const INodeCfg* child = node.getChild(i)) children += child->toXml();
    const auto endTag = written.rfind(L"</");
    if (children.empty() || endTag == written.npos || endTag < children.size()) return std::nullopt;
    const auto startLength = endTag - children.size();
    // A start tag holds no ">" before its end (values are escaped), so
    // anything else between it and the children would be text.
    if (written.compare(startLength, children.size(), children) != 0 ||
        written.find(L'>') + 1 != startLength)
        return std::nullopt;
    return Tags{written.substr(0, startLength), written.substr(endTag)};
}

void writeIndented(const INodeCfg& node, std::size_t depth, std::wstring& out) {
    const std::wstring indent(depth * 2, L' ');
    const std::optional<Tags> tags = tagsAround(node);
    if (!tags) {
        out += indent + node.toXml() + L'\n';
        return;
    }
    out += indent + tags->start + L'\n';
    for (unsigned i = 0; i < node.getChildCount(); ++i)
        if (const INodeCfg* child = node.getChild(i)) writeIndented(*child, depth + 1, out);
    out += indent + tags->end + L'\n';
}

}  // namespace

std::wstring prettyXml(const INodeCfg& root) {
    std::wstring out;
    writeIndented(root, 0, out);
    return out;
}

}  // namespace kazcfg
