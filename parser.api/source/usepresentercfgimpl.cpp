#include "usepresentercfgimpl.h"

#include "nodekinds.h"

#include "fixedchildren.h"
#include "xmltags.h"

namespace kaz::kazparser {

using fixedchildren::required;

UsePresenterCfgImpl::UsePresenterCfgImpl(const UsePresenterCfgImpl& other) : NodeImpl(other) {
    selection_.cloneFrom(other.selection_, this);
    modifiers_.cloneFrom(other.modifiers_, this);
    presenter_.cloneFrom(other.presenter_, this);
}

const std::wstring& UsePresenterCfgImpl::getName() const {
    return kinds::tag(INodeCfg::UsePresenter);
}

std::array<INodeCfg*, 3> UsePresenterCfgImpl::slots() const {
    return {selection_.get(), modifiers_.get(), presenter_.get()};
}

INodeCfg* UsePresenterCfgImpl::getChild(unsigned int index) const {
    return fixedchildren::presentChild(slots(), index, kClassName);
}

unsigned int UsePresenterCfgImpl::getChildCount() const {
    return fixedchildren::presentCount(slots());
}

void UsePresenterCfgImpl::deleteChildren() {
    selection_.reset();
    modifiers_.reset();
    presenter_.reset();
}

bool UsePresenterCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, StartTag(getName()).str(), getName());
}

bool UsePresenterCfgImpl::setChild(INodeCfg* child) {
    switch (required(child, kClassName, L"setChild")->getNodeType()) {
        case SelectTables:
            setSelectTables(dynamic_cast<ISelectTablesCfg*>(child));
            return true;
        case UseDataModifiers:
            setUseDataModifiers(dynamic_cast<IUseDataModifiersCfg*>(child));
            return true;
        case Presenter:
            setPresenter(dynamic_cast<IPresenterCfg*>(child));
            return true;
        default:
            return false;
    }
}

void UsePresenterCfgImpl::setSelectTables(ISelectTablesCfg* selection) {
    selection_.set(required(selection, kClassName, L"setSelectTables"), this);
}

ISelectTablesCfg* UsePresenterCfgImpl::replaceSelectTables(ISelectTablesCfg* selection) {
    return selection_.replace(required(selection, kClassName, L"replaceSelectTables"), this);
}

void UsePresenterCfgImpl::setUseDataModifiers(IUseDataModifiersCfg* modifiers) {
    modifiers_.set(required(modifiers, kClassName, L"setUseDataModifiers"), this);
}

IUseDataModifiersCfg* UsePresenterCfgImpl::replaceUseDataModifiers(
    IUseDataModifiersCfg* modifiers) {
    return modifiers_.replace(required(modifiers, kClassName, L"replaceUseDataModifiers"), this);
}

void UsePresenterCfgImpl::setPresenter(IPresenterCfg* presenter) {
    presenter_.set(required(presenter, kClassName, L"setPresenter"), this);
}

IPresenterCfg* UsePresenterCfgImpl::replacePresenter(IPresenterCfg* presenter) {
    return presenter_.replace(required(presenter, kClassName, L"replacePresenter"), this);
}

}  // namespace kaz::kazparser
