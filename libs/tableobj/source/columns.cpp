#include "columns.h"

namespace tableobj {

bool ColumnsImpl::equals(const IElement& other) const {
    const IColumns* same = sameKind(other);
    return same != nullptr && sameItems(*same);
}

bool ColumnsImpl::writeXml(IXmlWriter& out) const {
    XmlSink sink(out);
    sink.write(L"<Columns>");
    writeItems(sink);
    return sink.write(L"</Columns>").result();
}

}  // namespace tableobj
