#pragma once

#include <string>

#include "kazexception/Export.h"

namespace kazexception {

// An error of the library. Thrown as a pointer (IKAZException*); whoever
// catches it frees it, with its chain of inner exceptions, through release().
class KAZEXCEPTION_API IKAZException {
public:
    enum Kind { OutOfRange = 0, InvalidData = 1, Parsing = 2 };

    virtual Kind getKind() const = 0;
    virtual const std::wstring& getMessage() const = 0;
    // Where it was raised: "\t[file] <path>\n\t[line] <n>\n\t[method] <name>".
    virtual const std::wstring& getContext() const = 0;
    // The exception this one wraps, or null. Owned by this exception.
    virtual IKAZException* getInnerException() const = 0;
    // Frees this exception and its inner chain.
    virtual void release() = 0;

protected:
    virtual ~IKAZException() = default;
};

}  // namespace kazexception
