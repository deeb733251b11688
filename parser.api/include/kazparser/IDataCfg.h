#pragma once

#include "kazparser/INodeCfg.h"
#include "tableobj/IElement.h"

namespace kaz::kazparser {

// A node that yields a value: typed values, references to data, language
// strings, expressions and engines.
class KAZPARSER_API IDataCfg : public INodeCfg {
public:
    // The type of the value the node yields; NoValue (17) when it has none.
    virtual tableobj::IElement::ElementType getDataType() const = 0;
};

}  // namespace kaz::kazparser
