#pragma once

#include <string>

#include "childslot.h"
#include "kazparser/IOutputConfigCfg.h"
#include "nodeimpl.h"
#include "ownedlist.h"

namespace kaz::kazparser {

// "OutputConfig": an optional modifier list, then the presenter stages in
// list order. The list may hold empty (null) entries, added by
// appendUsePresenter; they are counted but never written.
class OutputConfigCfgImpl final : public NodeImpl<IOutputConfigCfg> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::OutputConfigCfgImpl";

    explicit OutputConfigCfgImpl(INodeCfg* parent) : NodeImpl(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* getChild(unsigned int index) const override;
    unsigned int getChildCount() const override;
    void deleteChildren() override;
    INodeCfg* clone() const override { return new OutputConfigCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    // Takes a presenter stage (appended) or a modifier list; any other node,
    // null too, is refused.
    bool setChild(INodeCfg* child) override;
    NodeType getNodeType() const override { return OutputConfig; }

    IUseDataModifiersCfg* getUseDataModifiers() const override { return modifiers_.get(); }
    IUsePresenterCfg* getUsePresenter(unsigned int index) const override;
    IUsePresenterCfg* getUsePresenter(const std::wstring& name) const override;
    void setUseDataModifiers(IUseDataModifiersCfg* modifiers) override;
    void setUsePresenter(IUsePresenterCfg* presenter, unsigned int index) override;
    IUseDataModifiersCfg* replaceUseDataModifiers(IUseDataModifiersCfg* modifiers) override;
    IUsePresenterCfg* replaceUsePresenter(IUsePresenterCfg* presenter, unsigned int index) override;
    IUseDataModifiersCfg* releaseUseDataModifiers() override { return modifiers_.release(); }
    IUsePresenterCfg* removeUsePresenter(unsigned int index) override;
    unsigned int insertUsePresenter(IUsePresenterCfg* presenter, unsigned int index) override;
    unsigned int appendUsePresenter(IUsePresenterCfg* presenter) override;
    unsigned int getUsePresenterCount() const override {
        return static_cast<unsigned int>(presenters_.size());
    }

private:
    OutputConfigCfgImpl(const OutputConfigCfgImpl& other);

    // The presenter and index checks of the positional operations, in that
    // order, naming `method`.
    void checkArguments(const IUsePresenterCfg* presenter, unsigned int index,
                        const wchar_t* method) const;
    void checkIndex(unsigned int index, const wchar_t* method) const;

    ChildSlot<IUseDataModifiersCfg> modifiers_;
    OwnedList<IUsePresenterCfg> presenters_;
};

}  // namespace kaz::kazparser
