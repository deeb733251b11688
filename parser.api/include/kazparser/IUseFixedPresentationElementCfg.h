#pragma once

#include "kazparser/IExtParamsCfg.h"
#include "kazparser/IPresentationElementCfg.h"
#include "kazparser/IUsePresentationElementCfg.h"

namespace kaz::kazparser {

// A list entry that holds its presentation element inline
// ("UseFixedPresentationElement"). Children in getChild order: the
// extension parameters, then the element, each when present. setChild
// answers false for a node of any other kind.
class KAZPARSER_API IUseFixedPresentationElementCfg : public IUsePresentationElementCfg {
public:
    virtual IExtParamsCfg* getExtParams() const = 0;
    // Deletes the present child and adopts the argument; null raises
    // "Invalid argument".
    virtual void setExtParams(IExtParamsCfg* extParams) = 0;
    // Hands back the child detached, or null; the caller owns it.
    virtual IExtParamsCfg* releaseExtParams() = 0;
    // As the extension-parameter operations, for the element.
    virtual IPresentationElementCfg* getPresentationElement() const = 0;
    virtual void setPresentationElement(IPresentationElementCfg* element) = 0;
    virtual IPresentationElementCfg* releasePresentationElement() = 0;
};

}  // namespace kaz::kazparser
