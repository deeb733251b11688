#pragma once

#include <string>

#include "kazparser/IDataCfg.h"

namespace kaz::kazparser {

// An expression given as text ("UseExpression"). Its data type is String.
// It has no child nodes: getChild raises the out-of-range error for every
// index and setChild the invalid-data error "Do not use this method".
class KAZPARSER_API IUseExpressionCfg : public IDataCfg {
public:
    virtual const std::wstring& getExpression() const = 0;
    virtual void setExpression(const std::wstring& expression) = 0;
};

}  // namespace kaz::kazparser
