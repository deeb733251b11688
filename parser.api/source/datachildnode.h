#pragma once

#include <string>

#include "childslot.h"
#include "kazparser/IDataCfg.h"
#include "nodecast.h"
#include "nodeerrors.h"
#include "nodeimpl.h"
#include "saxattributes.h"

namespace kaz::kazparser {

// The state and behaviour shared by the kinds of the IExtParamCfg family:
// the "name" and "desc" texts, the scale flag and the one data child.
// `Interface` is the kind's interface, `Derived` the implementation class,
// which names itself in error contexts through `Derived::kClassName`.
//
// The child is held as a plain node because a parameter takes any node
// through setChild; the data operations see it only when it is a data node.
template <class Interface, class Derived>
class DataChildNode : public NodeImpl<Interface> {
public:
    const std::wstring& getDesc() const override { return desc_; }
    void setDesc(const std::wstring& desc) override { desc_ = desc; }
    bool getScaleRelate() const override { return scaleRelate_; }
    void setScaleRelate(bool scaleRelate) override { scaleRelate_ = scaleRelate; }
    const std::wstring& getParamName() const override { return name_; }
    void setParamName(const std::wstring& name) override { name_ = name; }

    tableobj::IElement::ElementType getDataType() const override {
        const IDataCfg* data = getData();
        return data != nullptr ? data->getDataType() : tableobj::IElement::NoValue;
    }

    IDataCfg* getData() const override { return nodeCast<IDataCfg>(child_.get()); }

    // A child that is not a data node stays where it is.
    IDataCfg* releaseData() override {
        return getData() != nullptr ? handBack(child_.release()) : nullptr;
    }

    unsigned int getChildCount() const override { return child_ ? 1u : 0u; }

    INodeCfg* getChild(unsigned int index) const override {
        if (index >= getChildCount())
            errors::indexOutOfRange(index, KAZ_HERE(Derived::kClassName, L"getChild"));
        return child_.get();
    }

    void deleteChildren() override { child_.reset(); }

protected:
    explicit DataChildNode(INodeCfg* parent) : NodeImpl<Interface>(parent) {}
    // Copies every field; the data child is cloned with the copy as parent.
    DataChildNode(const DataChildNode& other)
        : NodeImpl<Interface>(other),
          name_(other.name_),
          desc_(other.desc_),
          scaleRelate_(other.scaleRelate_) {
        child_.cloneFrom(other.child_, this);
    }

    // Reads the attributes every kind of the family shares: "desc",
    // "scaleRelate" and, where the element's name is not the name, "name".
    // Answers whether `attribute` was one of them.
    bool readSharedAttribute(std::wstring_view attribute, std::wstring_view value, bool withName) {
        if (withName && attribute == L"name") {
            name_ = value;
        } else if (attribute == L"desc") {
            desc_ = value;
        } else if (attribute == L"scaleRelate") {
            scaleRelate_ = flagValue(value);
        } else {
            return false;
        }
        return true;
    }

    // Deletes the current child and takes `child`, made a child of `owner`
    // unless that is null.
    void setDataChild(INodeCfg* child, INodeCfg* owner) { child_.set(child, owner); }

    // Takes `data` (null raises "Invalid argument" naming replaceData) and
    // hands back the previous data child detached.
    IDataCfg* replaceDataChild(IDataCfg* data, INodeCfg* owner) {
        errors::required(data, Derived::kClassName, L"replaceData");
        return handBack(child_.replace(data, owner));
    }

    std::wstring name_;
    std::wstring desc_;
    bool scaleRelate_ = false;

private:
    // A previous child that is not a data node cannot be handed back as
    // one: it is deleted, so that nothing is left without an owner.
    static IDataCfg* handBack(INodeCfg* previous) {
        auto* data = nodeCast<IDataCfg>(previous);
        if (data == nullptr) delete previous;
        return data;
    }

    ChildSlot<INodeCfg> child_;
};

}  // namespace kaz::kazparser
