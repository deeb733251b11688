#include "selecttablescfgimpl.h"

#include "nodekinds.h"

#include <algorithm>

#include "markupcapture.h"

namespace kaz::kazparser {

SelectTablesCfgImpl::SelectTablesCfgImpl(const ElementStart& element, INodeCfg* parent)
    : LeafNode(parent), attributes_(readAttributes(element)) {}

const std::wstring& SelectTablesCfgImpl::getName() const {
    return kinds::tag(INodeCfg::SelectTables);
}

// The start tag is written with the exact escaping of captured markup, so
// that any attribute value reads back as it was.
bool SelectTablesCfgImpl::writeXml(IXmlWriter& out) const {
    return writeText(out, content_, Content::AsIs,
                     [this](StartTag& tag) { addAttributes(tag, attributes_); });
}

unsigned int SelectTablesCfgImpl::getAttributeCount() const {
    return static_cast<unsigned int>(attributes_.size());
}

const std::pair<std::wstring, std::wstring>& SelectTablesCfgImpl::attributeAt(
    unsigned int index, const wchar_t* method) const {
    if (index >= attributes_.size()) errors::indexOutOfRange(index, KAZ_HERE(kClassName, method));
    return attributes_[index];
}

const std::wstring& SelectTablesCfgImpl::getAttributeName(unsigned int index) const {
    return attributeAt(index, L"getAttributeName").first;
}

const std::wstring& SelectTablesCfgImpl::getAttribute(unsigned int index) const {
    return attributeAt(index, L"getAttribute").second;
}

AttributeList::const_iterator SelectTablesCfgImpl::find(const std::wstring& name) const {
    return std::find_if(attributes_.begin(), attributes_.end(),
                        [&](const auto& attribute) { return attribute.first == name; });
}

const std::wstring& SelectTablesCfgImpl::getAttribute(const std::wstring& name) const {
    const auto found = find(name);
    if (found == attributes_.end())
        errors::notChildName(name, KAZ_HERE(kClassName, L"getAttribute"));
    return found->second;
}

void SelectTablesCfgImpl::setAttribute(const std::wstring& name, const std::wstring& value) {
    const auto found = find(name);
    if (found == attributes_.end()) {
        attributes_.emplace_back(name, value);
    } else {
        attributes_[static_cast<std::size_t>(found - attributes_.begin())].second = value;
    }
}

bool SelectTablesCfgImpl::hasAttribute(const std::wstring& name) const {
    return find(name) != attributes_.end();
}

}  // namespace kaz::kazparser
