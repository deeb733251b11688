#pragma once

#include <string>

#include "tableobj/Export.h"

namespace tableobj {

// The name and description of a column, a table or a list of tables.
class TABLEOBJ_API INamed {
public:
    virtual ~INamed() = default;
    virtual const std::wstring& getName() const = 0;
    virtual void setName(const std::wstring& name) = 0;
    virtual const std::wstring& getDesc() const = 0;
    virtual void setDesc(const std::wstring& desc) = 0;
};

}  // namespace tableobj
