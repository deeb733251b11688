#pragma once

#include <string>

#include "kazparser/INodeCfg.h"

namespace kaz::kazparser {

// One entry of a sample-result list: a fixed value or a reference to data.
// The "name" attribute has its own getter, apart from getName(), which
// answers the element name.
class KAZPARSER_API ISampleResultCfg : public INodeCfg {
public:
    virtual const std::wstring& getSampleName() const = 0;
    virtual void setSampleName(const std::wstring& name) = 0;
    virtual const std::wstring& getDesc() const = 0;
    virtual void setDesc(const std::wstring& desc) = 0;
};

}  // namespace kaz::kazparser
