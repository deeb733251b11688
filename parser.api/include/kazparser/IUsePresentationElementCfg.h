#pragma once

#include <string>

#include "kazparser/INodeCfg.h"

namespace kaz::kazparser {

// An entry of a presentation element list: how an element is used at that
// place (active or not, a label and a description, each literal or
// resolved through a language string ID, an element ID, a main-data
// reference). The element itself is held inline
// (IUseFixedPresentationElementCfg) or named by a file
// (IUseRefPresentationElementCfg).
class KAZPARSER_API IUsePresentationElementCfg : public INodeCfg {
public:
    virtual bool setActive(bool active) = 0;
    virtual bool isActive() const = 0;
    // The texts to show: "label" and "desc", or the working language's text
    // of their string IDs when those resolve. Never written.
    virtual const std::wstring& getDisplayLabel() const = 0;
    virtual const std::wstring& getDisplayDesc() const = 0;
    virtual const std::wstring& getLabel() const = 0;
    virtual const std::wstring& getDesc() const = 0;
    virtual const std::wstring& getElemID() const = 0;
    virtual const std::wstring& getRefMainData() const = 0;
    virtual const std::wstring& getLabelStringID() const = 0;
    virtual const std::wstring& getDescStringID() const = 0;
    virtual void setDisplayLabel(const std::wstring& text) = 0;
    virtual void setDisplayDesc(const std::wstring& text) = 0;
    // The label and the description leave their display texts alone.
    virtual void setLabel(const std::wstring& label) = 0;
    virtual void setDesc(const std::wstring& desc) = 0;
    virtual void setElemID(const std::wstring& id) = 0;
    virtual void setRefMainData(const std::wstring& reference) = 0;
    // No lookup is made.
    virtual void setLabelStringID(const std::wstring& id) = 0;
    virtual void setDescStringID(const std::wstring& id) = 0;
};

}  // namespace kaz::kazparser
