#pragma once

#include <string>

#include "kazparser/INodeCfg.h"

namespace kaz::kazparser {

// One feature: a free-form element whose tag is the feature's name, whose
// attributes are kept as written, and whose content is the feature's value.
// Nested markup in the content is part of the value. It has no child nodes.
class KAZPARSER_API IFeatureCfg : public INodeCfg {
public:
    // Replaces the value; answers true.
    virtual bool setValue(const std::wstring& value) = 0;
    // Appends `text` to the value and answers the whole value.
    virtual const std::wstring& appendValue(const std::wstring& text) = 0;
    // Replaces the name, which is also the element's tag.
    virtual void setName(const std::wstring& name) = 0;
    // The value, written between the tags as it is (not escaped).
    virtual const std::wstring& getValue() const = 0;
    // The attributes as they are written: each as ` name="value"`.
    virtual const std::wstring& getAttributesText() const = 0;
};

}  // namespace kaz::kazparser
