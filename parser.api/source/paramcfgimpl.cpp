#include "paramcfgimpl.h"
#include "nodekinds.h"

#include <cmath>

#include "ioutils/Numbers.h"
#include "saxattributes.h"

namespace kaz::kazparser {
namespace {

// A shift this small is taken for none and not written.
constexpr double kShiftThreshold = 0.0001;

}  // namespace

ParamCfgImpl::ParamCfgImpl(INodeCfg* parent) : DataChildNode(parent) {
    name_ = kinds::tag(INodeCfg::Param);
}

ParamCfgImpl::ParamCfgImpl(const ElementStart& element, INodeCfg* parent) : DataChildNode(parent) {
    name_ = element.name;
    forEachAttribute(element, AttributeNaming::Qualified, [&](auto attribute, auto value) {
        if (readSharedAttribute(attribute, value, false)) return;
        if (attribute == L"shift") {
            shift_ = ioutils::parseDouble(value);
        } else if (attribute == L"transformCode") {
            transformCode_ = value;
        } else if (attribute == L"shiftScaleRelate") {
            shiftScaleRelate_ = flagValue(value);
        } else if (attribute == L"systemValue") {
            systemValue_ = flagValue(value);
        } else {
            extras_.set(std::wstring(attribute), std::wstring(value));
        }
    });
}

bool ParamCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, name_, [this](StartTag& tag) {
        tag.number(L"shift", shift_, std::fabs(shift_) > kShiftThreshold);
        tag.text(L"transformCode", transformCode_).flag(L"scaleRelate", scaleRelate_);
        tag.flag(L"shiftScaleRelate", shiftScaleRelate_).flag(L"systemValue", systemValue_);
        extras_.write(tag);
    });
}

bool ParamCfgImpl::setChild(INodeCfg* child) {
    setDataChild(errors::required(child, kClassName, L"setChild"), this);
    return true;
}

}  // namespace kaz::kazparser
