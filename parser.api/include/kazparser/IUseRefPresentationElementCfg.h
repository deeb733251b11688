#pragma once

#include <string>

#include "kazparser/IExtParamsCfg.h"
#include "kazparser/IUsePresentationElementCfg.h"

namespace kaz::kazparser {

// A list entry that names the file holding its presentation element
// ("UseRefPresentationElement", attribute "refFileName"). Its one possible
// child is the extension parameters: setChild hands every node to
// setExtParams, so a node of any other kind raises "Invalid argument".
class KAZPARSER_API IUseRefPresentationElementCfg : public IUsePresentationElementCfg {
public:
    virtual IExtParamsCfg* getExtParams() const = 0;
    // Deletes the present child and adopts the argument; null raises
    // "Invalid argument".
    virtual void setExtParams(IExtParamsCfg* extParams) = 0;
    // Hands back the child detached, or null; the caller owns it.
    virtual IExtParamsCfg* releaseExtParams() = 0;
    virtual bool setRefFileName(const std::wstring& fileName) = 0;
    virtual const std::wstring& getRefFileName() const = 0;
};

}  // namespace kaz::kazparser
