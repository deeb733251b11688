#pragma once

#include <string>

#include "tableobj/Export.h"

namespace tableobj {

// Receives XML text in pieces, in document order. Nodes and table objects
// write themselves to it.
class TABLEOBJ_API IXmlWriter {
public:
    virtual ~IXmlWriter() = default;
    // Appends one piece of text; answers whether it was taken.
    virtual bool write(std::wstring piece) = 0;
};

// A writer that appends every piece to a string.
class TABLEOBJ_API StringXmlWriter final : public IXmlWriter {
public:
    explicit StringXmlWriter(std::wstring& target) : target_(target) {}
    bool write(std::wstring piece) override {
        target_ += piece;
        return true;
    }

private:
    std::wstring& target_;
};

}  // namespace tableobj
