#pragma once

#include <string>

#include "kazparser/INodeCfgCollection.h"

namespace kaz::kazparser {

// A generic XML element: its name, its attributes in document order, its
// text and its child nodes of any kind.
class KAZPARSER_API IXNodeCfg : public INodeCfgCollection {
public:
    // Sets the element name; an empty name is written as "XNode".
    virtual void setName(const std::wstring& name) = 0;

    // The element's character data, in document order.
    virtual const std::wstring& getText() const = 0;
    virtual void setText(const std::wstring& text) = 0;
    virtual void appendText(const std::wstring& text) = 0;

    // Attributes by position (out-of-range error when not below the count)
    // and by name (a name that is not present raises the out-of-range error
    // "<name> is not the name of child object").
    virtual unsigned int getAttributeCount() const = 0;
    virtual const std::wstring& getAttributeName(unsigned int index) const = 0;
    virtual void setAttributeName(unsigned int index, const std::wstring& name) = 0;
    virtual const std::wstring& getAttribute(unsigned int index) const = 0;
    virtual const std::wstring& getAttribute(const std::wstring& name) const = 0;
    virtual void setAttribute(unsigned int index, const std::wstring& value) = 0;
    // Replaces the value of a present attribute, or adds it at the end.
    virtual void setAttribute(const std::wstring& name, const std::wstring& value) = 0;
    virtual bool hasAttribute(const std::wstring& name) const = 0;

    // The text of the last child element named `childName`, read as a
    // value. A missing child raises the out-of-range error; a text that is
    // not a value of the type raises a parsing error "Syntax error at : '...'".
    virtual void getChildValue(const std::wstring& childName, std::wstring& value) const = 0;
    virtual void getChildValue(const std::wstring& childName, int& value) const = 0;
    virtual void getChildValue(const std::wstring& childName, double& value) const = 0;
    virtual void getChildValue(const std::wstring& childName, bool& value) const = 0;
};

}  // namespace kaz::kazparser
