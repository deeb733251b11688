#include "outputconfigcfgimpl.h"

#include "nodekinds.h"

#include "fixedchildren.h"
#include "nodecast.h"
#include "xmltags.h"

namespace kaz::kazparser {

OutputConfigCfgImpl::OutputConfigCfgImpl(const OutputConfigCfgImpl& other) : NodeImpl(other) {
    modifiers_.cloneFrom(other.modifiers_, this);
    presenters_.copyFrom(other.presenters_, this);
}

const std::wstring& OutputConfigCfgImpl::getName() const {
    return kinds::tag(INodeCfg::OutputConfig);
}

unsigned int OutputConfigCfgImpl::getChildCount() const {
    return getUsePresenterCount() + (modifiers_ ? 1u : 0u);
}

INodeCfg* OutputConfigCfgImpl::getChild(unsigned int index) const {
    if (index >= getChildCount()) errors::indexOutOfRange(index, KAZ_HERE(kClassName, L"getChild"));
    if (!modifiers_) return presenters_[index];
    if (index == 0) return modifiers_.get();
    return presenters_[index - 1];
}

void OutputConfigCfgImpl::deleteChildren() {
    modifiers_.reset();
    presenters_.clear();
}

bool OutputConfigCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, getName());
}

bool OutputConfigCfgImpl::setChild(INodeCfg* child) {
    if (child == nullptr) return false;
    switch (child->getNodeType()) {
        case UsePresenter:
            appendUsePresenter(nodeCast<IUsePresenterCfg>(child));
            return true;
        case UseDataModifiers:
            setUseDataModifiers(nodeCast<IUseDataModifiersCfg>(child));
            return true;
        default:
            return false;
    }
}

void OutputConfigCfgImpl::checkIndex(unsigned int index, const wchar_t* method) const {
    if (index >= presenters_.size()) errors::indexOutOfRange(index, KAZ_HERE(kClassName, method));
}

void OutputConfigCfgImpl::checkArguments(const IUsePresenterCfg* presenter, unsigned int index,
                                         const wchar_t* method) const {
    errors::required(presenter, kClassName, method);
    checkIndex(index, method);
}

IUsePresenterCfg* OutputConfigCfgImpl::getUsePresenter(unsigned int index) const {
    checkIndex(index, L"getUsePresenter");
    return presenters_[index];
}

IUsePresenterCfg* OutputConfigCfgImpl::getUsePresenter(const std::wstring& name) const {
    for (IUsePresenterCfg* presenter : presenters_.items())
        if (presenter != nullptr && presenter->getName() == name) return presenter;
    return nullptr;
}

void OutputConfigCfgImpl::setUseDataModifiers(IUseDataModifiersCfg* modifiers) {
    modifiers_.set(errors::required(modifiers, kClassName, L"setUseDataModifiers"), this);
}

IUseDataModifiersCfg* OutputConfigCfgImpl::replaceUseDataModifiers(
    IUseDataModifiersCfg* modifiers) {
    return modifiers_.replace(errors::required(modifiers, kClassName, L"replaceUseDataModifiers"),
                              nullptr);
}

// Setting the stage already at `index` keeps it.
void OutputConfigCfgImpl::setUsePresenter(IUsePresenterCfg* presenter, unsigned int index) {
    checkArguments(presenter, index, L"setUsePresenter");
    presenters_.set(index, presenter, this);
}

// Replacing a stage by itself hands back nothing, so that no node has two
// owners.
IUsePresenterCfg* OutputConfigCfgImpl::replaceUsePresenter(IUsePresenterCfg* presenter,
                                                           unsigned int index) {
    checkArguments(presenter, index, L"replaceUsePresenter");
    return presenters_.replace(index, presenter, this);
}

IUsePresenterCfg* OutputConfigCfgImpl::removeUsePresenter(unsigned int index) {
    checkIndex(index, L"removeUsePresenter");
    return presenters_.remove(index);
}

unsigned int OutputConfigCfgImpl::insertUsePresenter(IUsePresenterCfg* presenter,
                                                     unsigned int index) {
    checkArguments(presenter, index, L"insertUsePresenter");
    presenters_.insert(index, presenter, this);
    return index;
}

unsigned int OutputConfigCfgImpl::appendUsePresenter(IUsePresenterCfg* presenter) {
    presenters_.append(presenter, this);
    return getUsePresenterCount();
}

}  // namespace kaz::kazparser
