#include "columns.h"

namespace tableobj {

bool ColumnsImpl::equals(const IElement& other) const {
    const IColumns* same = sameKind(other);
    return same != nullptr && sameItems(*same);
}

bool ColumnsImpl::writeXml(IXmlWriter& out) const {
    return writeList(out, L"Columns", {});
}

}  // namespace tableobj
