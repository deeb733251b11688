#pragma once

#include <string>

#include "kazparser/IDataCfg.h"

namespace kaz::kazparser {

// A reference to data ("UseData") or to a parameter value ("UseXValue").
// The reference is the element's content as XML text: usually a plain,
// escaped text, but nested elements are kept as markup, so that the content
// is written back as it was read. It yields no typed value (NoValue) and has
// no child nodes.
class KAZPARSER_API IUseRefDataCfg : public IDataCfg {
public:
    // The element's content, written between the tags as it is.
    virtual const std::wstring& getReference() const = 0;
    virtual void setReference(const std::wstring& reference) = 0;
    // The tag to write; without one it is "UseData".
    virtual void setElementName(const std::wstring& name) = 0;
};

}  // namespace kaz::kazparser
