#include "tablescollection.h"

namespace tableobj {

bool TablesCollectionImpl::equals(const IElement& other) const {
    const ITablesCollection* same = sameKind(other);
    return same != nullptr && sameItems(*same);
}

// A Tables element whose children are the Tables elements of the lists.
bool TablesCollectionImpl::writeXml(IXmlWriter& out) const {
    return writeList(out, L"Tables", {});
}

}  // namespace tableobj
