#pragma once

#include <string>

#include "extraattributes.h"
#include "kazparser/IParamSetCfg.h"
#include "kazxml/SAX.h"
#include "nodecollection.h"
#include "saxattributes.h"

namespace kaz::kazparser {

// A parameter set: parameters in document order under an element name of
// its own, four written texts ("name", "nameStringID", "desc",
// "descStringID"), two display texts that are never written, and extra
// attributes.
class ParamSetCfgImpl final : public NodeCollection<IParamSetCfg, IParamCfg, ParamSetCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::ParamSetCfgImpl";

    using NodeCollection::append;
    using NodeCollection::insert;

    explicit ParamSetCfgImpl(INodeCfg* parent);
    // Takes the element name; reads "name", "nameStringID", "desc" and
    // "descStringID", and keeps every other attribute as an extra attribute.
    ParamSetCfgImpl(const ElementStart& element, INodeCfg* parent);

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new ParamSetCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    NodeType getNodeType() const override { return ParamSet; }

    unsigned int append(IParamCfg* param) override { return appendTyped(param); }
    bool erase(unsigned int index) override { return eraseItem(index); }
    bool erase(const std::wstring& name) override;
    IParamCfg* getParam(const std::wstring& name) const override;
    IParamCfg* getParam(unsigned int index) const override { return typedChild(index); }
    bool replaceParam(IParamCfg* param, const std::wstring& name) override;
    bool replaceParam(IParamCfg* param, unsigned int index) override {
        return replaceAndDelete(param, index);
    }
    unsigned int insert(IParamCfg* param, unsigned int index) override;
    bool hasParam(const std::wstring& name) const override;
    void setName(const std::wstring& name) override { elementName_ = name; }

    const std::wstring& getDisplayName() const override { return displayName_; }
    const std::wstring& getParamSetName() const override { return name_; }
    const std::wstring& getNameStringID() const override { return nameStringID_; }
    const std::wstring& getDisplayDesc() const override { return displayDesc_; }
    const std::wstring& getDesc() const override { return desc_; }
    const std::wstring& getDescStringID() const override { return descStringID_; }
    void setDisplayName(const std::wstring& text) override { displayName_ = text; }
    void setParamSetName(const std::wstring& text) override { name_ = text; }
    void setNameStringID(const std::wstring& text) override { nameStringID_ = text; }
    void setDisplayDesc(const std::wstring& text) override { displayDesc_ = text; }
    void setDesc(const std::wstring& text) override { desc_ = text; }
    void setDescStringID(const std::wstring& text) override { descStringID_ = text; }

    const std::wstring& getAttribute(unsigned int index) const override;
    const std::wstring& getAttribute(const std::wstring& name) const override;
    void setAttribute(unsigned int index, const std::wstring& value) override {
        extras_.set(index, value, L"setAttribute");
    }
    void setAttribute(const std::wstring& name, const std::wstring& value) override {
        extras_.set(name, value);
    }
    bool hasAttribute(const std::wstring& name) const override { return extras_.has(name); }
    unsigned int getAttributeCount() const override { return extras_.count(); }

    void getParamValue(const std::wstring& name, std::wstring& value) const override;
    void getParamValue(const std::wstring& name, double& value) const override;
    void getParamValue(const std::wstring& name, int& value) const override;
    void getParamValue(const std::wstring& name, bool& value) const override;

private:
    ParamSetCfgImpl(const ParamSetCfgImpl& other) = default;

    // The position of the last parameter named `name`; none raises the
    // out-of-range error naming `method`.
    unsigned int positionOf(const std::wstring& name, const wchar_t* method) const;
    // Reads the value of the parameter named `name` as a `Value` (a table
    // object type) into `out`, when it holds one.
    template <class Value, class T>
    void readValue(const std::wstring& name, T& out) const;

    std::wstring elementName_;
    std::wstring displayName_;
    std::wstring name_;
    std::wstring nameStringID_;
    std::wstring displayDesc_;
    std::wstring desc_;
    std::wstring descStringID_;
    ExtraAttributes extras_{kClassName};
};

}  // namespace kaz::kazparser
