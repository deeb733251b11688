#pragma once

#include <string>

#include "kazparser/INodeCfg.h"

namespace kaz::kazparser {

// Which tables a presenter stage takes ("SelectTables"). The element is
// kept as it was read: its attributes in document order and its whole
// content as markup, both written back unchanged. It has no child nodes
// (setChild answers false).
class KAZPARSER_API ISelectTablesCfg : public INodeCfg {
public:
    // Attributes by position (an index not below the count raises the
    // out-of-range error) and by name (a name that is not present raises
    // the out-of-range error "<name> is not the name of child object").
    virtual unsigned int getAttributeCount() const = 0;
    virtual const std::wstring& getAttributeName(unsigned int index) const = 0;
    virtual const std::wstring& getAttribute(unsigned int index) const = 0;
    virtual const std::wstring& getAttribute(const std::wstring& name) const = 0;
    // Replaces the value of a present attribute, or adds it at the end.
    virtual void setAttribute(const std::wstring& name, const std::wstring& value) = 0;
    virtual bool hasAttribute(const std::wstring& name) const = 0;

    // The content as markup (nested elements and escaped text), written
    // between the tags as it is.
    virtual const std::wstring& getContent() const = 0;
    virtual void setContent(const std::wstring& markup) = 0;
};

}  // namespace kaz::kazparser
