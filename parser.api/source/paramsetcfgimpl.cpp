#include "paramsetcfgimpl.h"

#include "nodekinds.h"

#include "kazparser/IUseDataCfg.h"
#include "saxattributes.h"
#include "tableobj/IScalar.h"

namespace kaz::kazparser {

ParamSetCfgImpl::ParamSetCfgImpl(INodeCfg* parent) : NodeCollection(parent) {}

ParamSetCfgImpl::ParamSetCfgImpl(const ElementStart& element, INodeCfg* parent)
    : NodeCollection(parent), elementName_(element.name) {
    forEachAttribute(element, AttributeNaming::Qualified, [&](auto attribute, auto value) {
        if (attribute == L"name") {
            name_ = value;
        } else if (attribute == L"nameStringID") {
            nameStringID_ = value;
        } else if (attribute == L"desc") {
            desc_ = value;
        } else if (attribute == L"descStringID") {
            descStringID_ = value;
        } else {
            extras_.set(std::wstring(attribute), std::wstring(value));
        }
    });
}

const std::wstring& ParamSetCfgImpl::getName() const {
    const std::wstring& defaultName = kinds::tag(INodeCfg::ParamSet);
    return elementName_.empty() ? defaultName : elementName_;
}

bool ParamSetCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, getName(), [this](StartTag& tag) {
        tag.text(L"name", name_).text(L"nameStringID", nameStringID_);
        tag.text(L"desc", desc_).text(L"descStringID", descStringID_);
        extras_.write(tag);
    });
}

bool ParamSetCfgImpl::erase(const std::wstring& name) {
    const unsigned int position = lastPositionOf(name);
    return position != kNoPosition && erase(position);
}

unsigned int ParamSetCfgImpl::positionOf(const std::wstring& name, const wchar_t* method) const {
    const unsigned int position = lastPositionOf(name);
    if (position == kNoPosition) errors::notChildName(name, KAZ_HERE(kClassName, method));
    return position;
}

IParamCfg* ParamSetCfgImpl::getParam(const std::wstring& name) const {
    return items()[positionOf(name, L"getParam")];
}

bool ParamSetCfgImpl::replaceParam(IParamCfg* param, const std::wstring& name) {
    return replaceParam(param, positionOf(name, L"replaceParam"));
}

unsigned int ParamSetCfgImpl::insert(IParamCfg* param, unsigned int index) {
    return insert(static_cast<INodeCfg*>(param), index);
}

bool ParamSetCfgImpl::hasParam(const std::wstring& name) const {
    return lastPositionOf(name) != kNoPosition;
}

const std::wstring& ParamSetCfgImpl::getAttribute(unsigned int index) const {
    const std::wstring& value = extras_.value(index, L"getAttribute");
    // Filled by the first call in the process and then kept, whatever the
    // set or index: hosts depend on this behaviour.
    static const std::wstring first = value;
    return first;
}

const std::wstring& ParamSetCfgImpl::getAttribute(const std::wstring& name) const {
    // One string shared by every set, overwritten by each call.
    static std::wstring last;
    last = extras_.value(name, L"getAttribute");
    return last;
}

template <class Value, class T>
void ParamSetCfgImpl::readValue(const std::wstring& name, T& out) const {
    const IDataCfg* data = getParam(name)->getData();
    if (data == nullptr || data->getNodeType() != UseData) return;
    // Language strings share the kind of typed values; they hold no value.
    const auto* typed = dynamic_cast<const IUseDataCfg*>(data);
    const auto* value = typed != nullptr ? dynamic_cast<const Value*>(typed->getValue()) : nullptr;
    if (value != nullptr) out = value->getValue();
}

void ParamSetCfgImpl::getParamValue(const std::wstring& name, std::wstring& value) const {
    readValue<tableobj::IString>(name, value);
}

void ParamSetCfgImpl::getParamValue(const std::wstring& name, double& value) const {
    readValue<tableobj::IDouble>(name, value);
}

void ParamSetCfgImpl::getParamValue(const std::wstring& name, int& value) const {
    readValue<tableobj::IInt>(name, value);
}

void ParamSetCfgImpl::getParamValue(const std::wstring& name, bool& value) const {
    readValue<tableobj::IBool>(name, value);
}

}  // namespace kaz::kazparser
