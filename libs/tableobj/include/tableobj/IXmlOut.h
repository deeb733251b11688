#pragma once

#include <string>

#include "tableobj/IXmlWriter.h"

namespace tableobj {

// A value that can write itself as XML.
class TABLEOBJ_API IXmlOut {
public:
    virtual ~IXmlOut() = default;
    // The value's XML text.
    virtual std::wstring toXml() const = 0;
    // Writes the same text to `out`; answers the result of the last write.
    virtual bool writeXml(IXmlWriter& out) const = 0;
};

}  // namespace tableobj
