#pragma once

#include <string>

#include "fixedchildren.h"
#include "kazparser/IUsePresenterCfg.h"
#include "nodeimpl.h"

namespace kaz::kazparser {

// "UsePresenter": a presenter stage with its table selection, modifier list
// and presenter, each optional, written in that order without attributes.
class UsePresenterCfgImpl final
    : public FixedChildren<NodeImpl<IUsePresenterCfg>,
                           Slot<ISelectTablesCfg, INodeCfg::SelectTables>,
                           Slot<IUseDataModifiersCfg, INodeCfg::UseDataModifiers>,
                           Slot<IPresenterCfg, INodeCfg::Presenter>> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::UsePresenterCfgImpl";

    explicit UsePresenterCfgImpl(INodeCfg* parent) : FixedChildren(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new UsePresenterCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    NodeType getNodeType() const override { return UsePresenter; }

    ISelectTablesCfg* getSelectTables() const override { return child<SelectTables>(); }
    void setSelectTables(ISelectTablesCfg* selection) override {
        setSlot<SelectTables>(selection, L"setSelectTables");
    }
    ISelectTablesCfg* releaseSelectTables() override { return releaseSlot<SelectTables>(); }
    ISelectTablesCfg* replaceSelectTables(ISelectTablesCfg* selection) override {
        return replaceSlot<SelectTables>(selection, L"replaceSelectTables");
    }

    IUseDataModifiersCfg* getUseDataModifiers() const override { return child<UseDataModifiers>(); }
    void setUseDataModifiers(IUseDataModifiersCfg* modifiers) override {
        setSlot<UseDataModifiers>(modifiers, L"setUseDataModifiers");
    }
    IUseDataModifiersCfg* releaseUseDataModifiers() override {
        return releaseSlot<UseDataModifiers>();
    }
    IUseDataModifiersCfg* replaceUseDataModifiers(IUseDataModifiersCfg* modifiers) override {
        return replaceSlot<UseDataModifiers>(modifiers, L"replaceUseDataModifiers");
    }

    IPresenterCfg* getPresenter() const override { return child<Presenter>(); }
    void setPresenter(IPresenterCfg* presenter) override {
        setSlot<Presenter>(presenter, L"setPresenter");
    }
    IPresenterCfg* releasePresenter() override { return releaseSlot<Presenter>(); }
    IPresenterCfg* replacePresenter(IPresenterCfg* presenter) override {
        return replaceSlot<Presenter>(presenter, L"replacePresenter");
    }

private:
    UsePresenterCfgImpl(const UsePresenterCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
