#include "xvaluecfgimpl.h"

#include "nodekinds.h"

#include "nodecast.h"
#include "saxattributes.h"

namespace kaz::kazparser {

XValueCfgImpl::XValueCfgImpl(INodeCfg* parent) : DataChildNode(parent) {}

XValueCfgImpl::XValueCfgImpl(const ElementStart& element, INodeCfg* parent)
    : DataChildNode(parent) {
    forEachAttribute(element, AttributeNaming::Qualified, [&](auto name, auto value) {
        if (!readSharedAttribute(name, value, true) && name == L"systemValue")
            systemValue_ = flagValue(value);
    });
}

const std::wstring& XValueCfgImpl::getName() const {
    return kinds::tag(INodeCfg::XValue);
}

bool XValueCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, getName(), [this](StartTag& tag) {
        tag.text(L"name", name_).text(L"desc", desc_);
        tag.flag(L"scaleRelate", scaleRelate_).flag(L"systemValue", systemValue_);
    });
}

bool XValueCfgImpl::setChild(INodeCfg* child) {
    setDataChild(errors::required(nodeCast<IDataCfg>(child), kClassName, L"setChild"), nullptr);
    return true;
}

}  // namespace kaz::kazparser
