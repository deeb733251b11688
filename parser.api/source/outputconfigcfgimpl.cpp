#include "outputconfigcfgimpl.h"

#include "nodekinds.h"

#include "fixedchildren.h"
#include "xmltags.h"

namespace kaz::kazparser {

OutputConfigCfgImpl::OutputConfigCfgImpl(const OutputConfigCfgImpl& other) : NodeImpl(other) {
    try {
        modifiers_.cloneFrom(other.modifiers_, this);
        presenters_.reserve(other.presenters_.size());
        for (const IUsePresenterCfg* presenter : other.presenters_) {
            INodeCfg* copy = presenter != nullptr ? presenter->clone() : nullptr;
            auto* typed = dynamic_cast<IUsePresenterCfg*>(copy);
            if (copy != nullptr && typed == nullptr) {  // a clone of another kind cannot stand here
                delete copy;
                continue;
            }
            appendUsePresenter(typed);
        }
    } catch (...) {  // the destructor does not run for a copy that fails
        deleteChildren();
        throw;
    }
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
    for (IUsePresenterCfg* presenter : presenters_) delete presenter;
    presenters_.clear();
}

bool OutputConfigCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, StartTag(getName()).str(), getName());
}

bool OutputConfigCfgImpl::setChild(INodeCfg* child) {
    if (child == nullptr) return false;
    switch (child->getNodeType()) {
        case UsePresenter:
            appendUsePresenter(dynamic_cast<IUsePresenterCfg*>(child));
            return true;
        case UseDataModifiers:
            setUseDataModifiers(dynamic_cast<IUseDataModifiersCfg*>(child));
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
    if (presenter == nullptr) errors::invalidArgument(KAZ_HERE(kClassName, method));
    checkIndex(index, method);
}

IUsePresenterCfg* OutputConfigCfgImpl::getUsePresenter(unsigned int index) const {
    checkIndex(index, L"getUsePresenter");
    return presenters_[index];
}

IUsePresenterCfg* OutputConfigCfgImpl::getUsePresenter(const std::wstring& name) const {
    for (IUsePresenterCfg* presenter : presenters_)
        if (presenter != nullptr && presenter->getName() == name) return presenter;
    return nullptr;
}

void OutputConfigCfgImpl::setUseDataModifiers(IUseDataModifiersCfg* modifiers) {
    modifiers_.set(fixedchildren::required(modifiers, kClassName, L"setUseDataModifiers"), this);
}

IUseDataModifiersCfg* OutputConfigCfgImpl::replaceUseDataModifiers(
    IUseDataModifiersCfg* modifiers) {
    return modifiers_.replace(
        fixedchildren::required(modifiers, kClassName, L"replaceUseDataModifiers"), nullptr);
}

// Setting the stage already at `index` keeps it: deleting it would leave
// the entry dangling.
void OutputConfigCfgImpl::setUsePresenter(IUsePresenterCfg* presenter, unsigned int index) {
    checkArguments(presenter, index, L"setUsePresenter");
    delete replaceUsePresenter(presenter, index);
}

// Replacing a stage by itself hands back nothing, so that no node has two
// owners.
IUsePresenterCfg* OutputConfigCfgImpl::replaceUsePresenter(IUsePresenterCfg* presenter,
                                                           unsigned int index) {
    checkArguments(presenter, index, L"replaceUsePresenter");
    IUsePresenterCfg* previous = presenters_[index];
    presenters_[index] = presenter;
    presenter->setParent(this);
    if (previous == presenter) return nullptr;
    if (previous != nullptr) previous->setParent(nullptr);
    return previous;
}

IUsePresenterCfg* OutputConfigCfgImpl::removeUsePresenter(unsigned int index) {
    checkIndex(index, L"removeUsePresenter");
    IUsePresenterCfg* presenter = presenters_[index];
    presenters_.erase(presenters_.begin() + index);
    if (presenter != nullptr) presenter->setParent(nullptr);
    return presenter;
}

unsigned int OutputConfigCfgImpl::insertUsePresenter(IUsePresenterCfg* presenter,
                                                     unsigned int index) {
    checkArguments(presenter, index, L"insertUsePresenter");
    presenters_.insert(presenters_.begin() + index, presenter);
    presenter->setParent(this);
    return index;
}

unsigned int OutputConfigCfgImpl::appendUsePresenter(IUsePresenterCfg* presenter) {
    presenters_.push_back(presenter);
    if (presenter != nullptr) presenter->setParent(this);
    return getUsePresenterCount();
}

}  // namespace kaz::kazparser
