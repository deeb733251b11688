#include "featurecfgimpl.h"

#include "nodekinds.h"

#include "saxattributes.h"

namespace kaz::kazparser {
namespace {

const std::wstring& defaultName() {
    return kinds::tag(INodeCfg::Feature);
}

}  // namespace

FeatureCfgImpl::FeatureCfgImpl(INodeCfg* parent) : LeafNode(parent), name_(defaultName()) {}

FeatureCfgImpl::FeatureCfgImpl(const ElementStart& element, INodeCfg* parent)
    : LeafNode(parent), name_(element.name), attributesText_(attributeText(element)) {}

std::wstring FeatureCfgImpl::attributeText(const ElementStart& element) {
    std::wstring text;
    if (element.attributes == nullptr) return text;
    const int count = attributeCount(*element.attributes);
    for (int i = 0; i < count; ++i) {
        const AttributeView attribute = attributeAt(*element.attributes, i);
        text.append(L" ").append(attribute.localName).append(L"=\"");
        text.append(attribute.value).append(L"\"");
    }
    return text;
}

// A name set empty still writes a well-formed tag.
const std::wstring& FeatureCfgImpl::getName() const {
    return name_.empty() ? defaultName() : name_;
}

bool FeatureCfgImpl::writeXml(IXmlWriter& out) const {
    return writeText(out, value_, Content::AsIs,
                     [this](StartTag& tag) { tag.markup() += attributesText_; });
}

bool FeatureCfgImpl::setValue(const std::wstring& value) {
    value_ = value;
    return true;
}

}  // namespace kaz::kazparser
