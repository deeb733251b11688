#pragma once

#include <array>
#include <string>

#include "childslot.h"
#include "kazparser/IUsePresenterCfg.h"
#include "nodeimpl.h"

namespace kaz::kazparser {

// "UsePresenter": a presenter stage with its table selection, modifier list
// and presenter, each optional, written in that order without attributes.
class UsePresenterCfgImpl final : public NodeImpl<IUsePresenterCfg> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::UsePresenterCfgImpl";

    explicit UsePresenterCfgImpl(INodeCfg* parent) : NodeImpl(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* getChild(unsigned int index) const override;
    unsigned int getChildCount() const override;
    void deleteChildren() override;
    INodeCfg* clone() const override { return new UsePresenterCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    // Takes a table selection, a modifier list or a presenter; null raises
    // "Invalid argument", any other node is refused.
    bool setChild(INodeCfg* child) override;
    NodeType getNodeType() const override { return UsePresenter; }

    ISelectTablesCfg* getSelectTables() const override { return selection_.get(); }
    void setSelectTables(ISelectTablesCfg* selection) override;
    ISelectTablesCfg* releaseSelectTables() override { return selection_.release(); }
    ISelectTablesCfg* replaceSelectTables(ISelectTablesCfg* selection) override;

    IUseDataModifiersCfg* getUseDataModifiers() const override { return modifiers_.get(); }
    void setUseDataModifiers(IUseDataModifiersCfg* modifiers) override;
    IUseDataModifiersCfg* releaseUseDataModifiers() override { return modifiers_.release(); }
    IUseDataModifiersCfg* replaceUseDataModifiers(IUseDataModifiersCfg* modifiers) override;

    IPresenterCfg* getPresenter() const override { return presenter_.get(); }
    void setPresenter(IPresenterCfg* presenter) override;
    IPresenterCfg* releasePresenter() override { return presenter_.release(); }
    IPresenterCfg* replacePresenter(IPresenterCfg* presenter) override;

private:
    UsePresenterCfgImpl(const UsePresenterCfgImpl& other);

    std::array<INodeCfg*, 3> slots() const;

    ChildSlot<ISelectTablesCfg> selection_;
    ChildSlot<IUseDataModifiersCfg> modifiers_;
    ChildSlot<IPresenterCfg> presenter_;
};

}  // namespace kaz::kazparser
