#pragma once

#include <array>
#include <string>

#include "childslot.h"
#include "fixedchildren.h"
#include "kazparser/IUseDataCfg.h"
#include "kazparser/IUseDataCollectorCfg.h"
#include "kazparser/IUseDataModifiersCfg.h"
#include "nodeimpl.h"
#include "usedatacfgimpl.h"
#include "xmltags.h"

namespace kaz::kazparser {

// The input stage shared by the engine reference and the input
// configuration: tables ("UseTables") or a collector reference as
// alternative inputs, then an optional modifier list. `Interface` is the
// kind's interface, `Derived` the implementation class, which supplies
//   kClassName                its qualified name, for error contexts;
//   kAdoptsReplacedTables     whether replaceUseTables makes the new
//                             tables a child of the node.
//
// The setters keep one input. The replace operations may leave both; the
// tables then are the input, and the collector, still owned, is neither a
// child position nor written.
template <class Interface, class Derived>
class ChainInputNode : public NodeImpl<Interface> {
public:
    IUseDataCfg* getUseTables() const override { return tables_.get(); }
    IUseDataCollectorCfg* getUseDataCollector() const override { return collector_.get(); }
    IUseDataModifiersCfg* getUseDataModifiers() const override { return modifiers_.get(); }

    void setUseTables(IUseDataCfg* tables) override {
        required(tables, L"setUseTables");
        collector_.reset();
        tables_.set(tables, this);
    }
    void setUseDataCollector(IUseDataCollectorCfg* collector) override {
        required(collector, L"setUseDataCollector");
        tables_.reset();
        collector_.set(collector, this);
    }
    void setUseDataModifiers(IUseDataModifiersCfg* modifiers) override {
        modifiers_.set(required(modifiers, L"setUseDataModifiers"), this);
    }

    IUseDataCfg* replaceUseTables(IUseDataCfg* tables) override {
        return tables_.replace(required(tables, L"replaceUseTables"),
                               Derived::kAdoptsReplacedTables ? this : nullptr);
    }
    IUseDataCollectorCfg* replaceUseDataCollector(IUseDataCollectorCfg* collector) override {
        return collector_.replace(required(collector, L"replaceUseDataCollector"), this);
    }
    IUseDataModifiersCfg* replaceUseDataModifiers(IUseDataModifiersCfg* modifiers) override {
        return modifiers_.replace(required(modifiers, L"replaceUseDataModifiers"), this);
    }

    IUseDataCfg* releaseUseTables() override { return tables_.release(); }
    IUseDataCollectorCfg* releaseUseDataCollector() override { return collector_.release(); }
    IUseDataModifiersCfg* releaseUseDataModifiers() override { return modifiers_.release(); }

    unsigned int getChildCount() const override { return fixedchildren::presentCount(visible()); }
    INodeCfg* getChild(unsigned int index) const override {
        return fixedchildren::presentChild(visible(), index, Derived::kClassName);
    }

    // Collector references, modifier lists and data values named
    // "UseTables" are taken; null raises "Invalid argument", any other node
    // is refused.
    bool setChild(INodeCfg* child) override {
        switch (required(child, L"setChild")->getNodeType()) {
            case INodeCfg::UseDataCollector:
                setUseDataCollector(dynamic_cast<IUseDataCollectorCfg*>(child));
                return true;
            case INodeCfg::UseDataModifiers:
                setUseDataModifiers(dynamic_cast<IUseDataModifiersCfg*>(child));
                return true;
            case INodeCfg::UseData:
                if (child->getName() != UseDataCfgImpl::elementNameOf(tableobj::IElement::Tables))
                    return false;
                setUseTables(dynamic_cast<IUseDataCfg*>(child));
                return true;
            default:
                return false;
        }
    }

    void deleteChildren() override {
        collector_.reset();
        tables_.reset();
        modifiers_.reset();
    }

    bool writeXml(IXmlWriter& out) const override {
        const std::wstring& name = this->getName();
        return this->writeElement(out, StartTag(name).str(), name);
    }

protected:
    explicit ChainInputNode(INodeCfg* parent) : NodeImpl<Interface>(parent) {}
    // Copies every child, the hidden collector too.
    ChainInputNode(const ChainInputNode& other) : NodeImpl<Interface>(other) {
        collector_.cloneFrom(other.collector_, this);
        tables_.cloneFrom(other.tables_, this);
        modifiers_.cloneFrom(other.modifiers_, this);
    }

private:
    template <class T>
    static T* required(T* child, const wchar_t* method) {
        return fixedchildren::required(child, Derived::kClassName, method);
    }

    std::array<INodeCfg*, 2> visible() const {
        INodeCfg* input = tables_ ? static_cast<INodeCfg*>(tables_.get()) : collector_.get();
        return {input, modifiers_.get()};
    }

    ChildSlot<IUseDataCollectorCfg> collector_;
    ChildSlot<IUseDataCfg> tables_;
    ChildSlot<IUseDataModifiersCfg> modifiers_;
};

}  // namespace kaz::kazparser
