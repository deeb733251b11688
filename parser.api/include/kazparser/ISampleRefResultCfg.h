#pragma once

#include <string>

#include "kazparser/ISampleResultCfg.h"

namespace kaz::kazparser {

// A sample entry naming data kept elsewhere ("SampleRefResult"). It has no
// child nodes: getChild raises the out-of-range error for every index and
// setChild raises the invalid-data error "Do not use this method".
class KAZPARSER_API ISampleRefResultCfg : public ISampleResultCfg {
public:
    virtual const std::wstring& getRefData() const = 0;
    virtual void setRefData(const std::wstring& refData) = 0;
};

}  // namespace kaz::kazparser
