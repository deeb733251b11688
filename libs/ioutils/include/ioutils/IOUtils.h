#pragma once

#include <memory>
#include <string>

#include "ioutils/Export.h"

namespace ioutils {

class IOUTILS_API IIOUtils {
public:
    virtual ~IIOUtils() = default;
    // The whole file as wide text: UTF-16 when it starts with a UTF-16
    // byte-order mark, else UTF-8 (a UTF-8 byte-order mark is dropped).
    // A file that cannot be read raises an invalid-data IKAZException*
    // naming it.
    virtual std::wstring readTextFile(const std::wstring& path) const = 0;
};

class IOUTILS_API IOUtilsFactory {
public:
    static std::unique_ptr<IIOUtils> createIOUtils();
    IOUtilsFactory() = delete;
};

}  // namespace ioutils
