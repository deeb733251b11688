#include "extparamcfgimpl.h"

#include "nodekinds.h"

#include "nodecast.h"
#include "saxattributes.h"

namespace kaz::kazparser {

ExtParamCfgImpl::ExtParamCfgImpl(INodeCfg* parent) : DataChildNode(parent) {}

ExtParamCfgImpl::ExtParamCfgImpl(const ElementStart& element, INodeCfg* parent)
    : DataChildNode(parent) {
    forEachAttribute(element, AttributeNaming::Qualified,
                     [&](auto name, auto value) { readSharedAttribute(name, value, true); });
}

const std::wstring& ExtParamCfgImpl::getName() const {
    return kinds::tag(INodeCfg::ExtParam);
}

bool ExtParamCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, getName(), [this](StartTag& tag) {
        tag.text(L"name", name_).text(L"desc", desc_).flag(L"scaleRelate", scaleRelate_);
    });
}

bool ExtParamCfgImpl::setChild(INodeCfg* child) {
    setDataChild(errors::required(nodeCast<IDataCfg>(child), kClassName, L"setChild"), this);
    return true;
}

void ExtParamCfgImpl::setData(IDataCfg* data) {
    setDataChild(errors::required(data, kClassName, L"setData"), this);
}

}  // namespace kaz::kazparser
