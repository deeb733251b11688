#pragma once

#include <string>

#include "kazparser/INodeCfgCollection.h"
#include "kazparser/IParamCfg.h"

namespace kaz::kazparser {

// A parameter set: an ordered list of parameters under an element name of
// its own ("ParamSet" when none is set), with descriptive texts and extra
// attributes. Look-ups by name compare with each parameter's getName(); of
// several equal names the last one is found.
class KAZPARSER_API IParamSetCfg : public INodeCfgCollection {
public:
    using INodeCfgCollection::append;
    using INodeCfgCollection::insert;

    // Adds at the end and answers the new count; kNoPosition for null.
    virtual unsigned int append(IParamCfg* param) = 0;
    // Removes the parameter and deletes it; answers true.
    virtual bool erase(unsigned int index) = 0;
    // As erase(index) for the parameter named `name`; false when there is none.
    virtual bool erase(const std::wstring& name) = 0;
    // An unknown name raises the out-of-range error
    // "<name> is not the name of child object".
    virtual IParamCfg* getParam(const std::wstring& name) const = 0;
    virtual IParamCfg* getParam(unsigned int index) const = 0;
    // Puts `param` in place of the parameter named `name` and deletes that
    // one (an unknown name raises as getParam does).
    virtual bool replaceParam(IParamCfg* param, const std::wstring& name) = 0;
    // Puts `param` at `index` and deletes the parameter that was there.
    virtual bool replaceParam(IParamCfg* param, unsigned int index) = 0;
    virtual unsigned int insert(IParamCfg* param, unsigned int index) = 0;
    virtual bool hasParam(const std::wstring& name) const = 0;
    // Sets the element name.
    virtual void setName(const std::wstring& name) = 0;

    // Descriptive texts. The "name" attribute has its own getter, apart from
    // getName(), which answers the element name. The display texts are kept
    // and copied but never written.
    virtual const std::wstring& getDisplayName() const = 0;
    virtual const std::wstring& getParamSetName() const = 0;
    virtual const std::wstring& getNameStringID() const = 0;
    virtual const std::wstring& getDisplayDesc() const = 0;
    virtual const std::wstring& getDesc() const = 0;
    virtual const std::wstring& getDescStringID() const = 0;
    virtual void setDisplayName(const std::wstring& text) = 0;
    virtual void setParamSetName(const std::wstring& text) = 0;
    virtual void setNameStringID(const std::wstring& text) = 0;
    virtual void setDisplayDesc(const std::wstring& text) = 0;
    virtual void setDesc(const std::wstring& text) = 0;
    virtual void setDescStringID(const std::wstring& text) = 0;

    // Extra attributes. Both getters answer a string shared by every set in
    // the process: by position it holds the value read by the very first
    // call and never changes; by name it is overwritten by each call. An
    // index not below the count, or an unknown name ("<name> is not the
    // name of child object"), raises the out-of-range error.
    virtual const std::wstring& getAttribute(unsigned int index) const = 0;
    virtual const std::wstring& getAttribute(const std::wstring& name) const = 0;
    virtual void setAttribute(unsigned int index, const std::wstring& value) = 0;
    // Replaces the value of a known name, or adds the name at the end.
    virtual void setAttribute(const std::wstring& name, const std::wstring& value) = 0;
    virtual bool hasAttribute(const std::wstring& name) const = 0;
    virtual unsigned int getAttributeCount() const = 0;

    // The value of the parameter named `name` (an unknown name raises as
    // getParam does). `value` is left as it is when the parameter holds no
    // typed value of that type.
    virtual void getParamValue(const std::wstring& name, std::wstring& value) const = 0;
    virtual void getParamValue(const std::wstring& name, double& value) const = 0;
    virtual void getParamValue(const std::wstring& name, int& value) const = 0;
    virtual void getParamValue(const std::wstring& name, bool& value) const = 0;
};

}  // namespace kaz::kazparser
