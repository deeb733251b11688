#include "tables.h"

namespace tableobj {

bool TablesImpl::equals(const IElement& other) const {
    const ITables* same = sameKind(other);
    return same != nullptr && sameNames(*same) && sameItems(*same);
}

bool TablesImpl::writeXml(IXmlWriter& out) const {
    return writeList(out, L"Tables", {getName(), getDesc()});
}

}  // namespace tableobj
