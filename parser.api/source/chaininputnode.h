#pragma once

#include <array>
#include <string>

#include "fixedchildren.h"
#include "kazparser/IUseDataCfg.h"
#include "kazparser/IUseDataCollectorCfg.h"
#include "kazparser/IUseDataModifiersCfg.h"
#include "nodecast.h"
#include "nodeimpl.h"
#include "usedatacfgimpl.h"
#include "xmltags.h"

namespace kaz::kazparser {

// The input stage shared by the engine reference and the input
// configuration: tables ("UseTables") or a collector reference as
// alternative inputs, then an optional modifier list. `Interface` is the
// kind's interface, `Derived` the implementation class, which supplies
//   kAdoptsReplacedTables     whether replaceUseTables makes the new
//                             tables a child of the node.
//
// The setters keep one input. The replace operations may leave both; the
// tables then are the input, and the collector, still owned, is neither a
// child position nor written.
template <class Interface, class Derived>
class ChainInputNode
    : public FixedChildren<NodeImpl<Interface>,
                           Slot<IUseDataCollectorCfg, INodeCfg::UseDataCollector>,
                           Slot<IUseDataCfg, INodeCfg::UseData>,
                           Slot<IUseDataModifiersCfg, INodeCfg::UseDataModifiers>> {
    using Children =
        FixedChildren<NodeImpl<Interface>, Slot<IUseDataCollectorCfg, INodeCfg::UseDataCollector>,
                      Slot<IUseDataCfg, INodeCfg::UseData>,
                      Slot<IUseDataModifiersCfg, INodeCfg::UseDataModifiers>>;
    static constexpr auto kCollector = INodeCfg::UseDataCollector;
    static constexpr auto kTables = INodeCfg::UseData;
    static constexpr auto kModifiers = INodeCfg::UseDataModifiers;

public:
    IUseDataCfg* getUseTables() const override { return this->template child<kTables>(); }
    IUseDataCollectorCfg* getUseDataCollector() const override {
        return this->template child<kCollector>();
    }
    IUseDataModifiersCfg* getUseDataModifiers() const override {
        return this->template child<kModifiers>();
    }

    void setUseTables(IUseDataCfg* tables) override {
        this->required(tables, L"setUseTables");
        this->template slot<kCollector>().reset();
        this->template slot<kTables>().set(tables, this);
    }
    void setUseDataCollector(IUseDataCollectorCfg* collector) override {
        this->required(collector, L"setUseDataCollector");
        this->template slot<kTables>().reset();
        this->template slot<kCollector>().set(collector, this);
    }
    void setUseDataModifiers(IUseDataModifiersCfg* modifiers) override {
        this->template setSlot<kModifiers>(modifiers, L"setUseDataModifiers");
    }

    IUseDataCfg* replaceUseTables(IUseDataCfg* tables) override {
        return this->template replaceSlot<kTables>(tables, L"replaceUseTables",
                                                   Derived::kAdoptsReplacedTables);
    }
    IUseDataCollectorCfg* replaceUseDataCollector(IUseDataCollectorCfg* collector) override {
        return this->template replaceSlot<kCollector>(collector, L"replaceUseDataCollector");
    }
    IUseDataModifiersCfg* replaceUseDataModifiers(IUseDataModifiersCfg* modifiers) override {
        return this->template replaceSlot<kModifiers>(modifiers, L"replaceUseDataModifiers");
    }

    IUseDataCfg* releaseUseTables() override { return this->template releaseSlot<kTables>(); }
    IUseDataCollectorCfg* releaseUseDataCollector() override {
        return this->template releaseSlot<kCollector>();
    }
    IUseDataModifiersCfg* releaseUseDataModifiers() override {
        return this->template releaseSlot<kModifiers>();
    }

    unsigned int getChildCount() const override { return fixedchildren::presentCount(visible()); }
    INodeCfg* getChild(unsigned int index) const override {
        return fixedchildren::presentChild(visible(), index, this->className());
    }

    // Collector references, modifier lists and data values named
    // "UseTables" are taken; null raises "Invalid argument", any other node
    // is refused.
    bool setChild(INodeCfg* child) override {
        switch (this->required(child, L"setChild")->getNodeType()) {
            case INodeCfg::UseDataCollector:
                setUseDataCollector(nodeCast<IUseDataCollectorCfg>(child));
                return true;
            case INodeCfg::UseDataModifiers:
                setUseDataModifiers(nodeCast<IUseDataModifiersCfg>(child));
                return true;
            case INodeCfg::UseData:
                if (child->getName() != UseDataCfgImpl::elementNameOf(tableobj::IElement::Tables))
                    return false;
                setUseTables(nodeCast<IUseDataCfg>(child));
                return true;
            default:
                return false;
        }
    }

    bool writeXml(IXmlWriter& out) const override {
        return this->writeElement(out, this->getName());
    }

protected:
    explicit ChainInputNode(INodeCfg* parent) : Children(parent) {}
    // Copies every child, the hidden collector too.
    ChainInputNode(const ChainInputNode& other) = default;

private:
    std::array<INodeCfg*, 2> visible() const {
        INodeCfg* tables = getUseTables();
        return {tables != nullptr ? tables : getUseDataCollector(), getUseDataModifiers()};
    }
};

}  // namespace kaz::kazparser
