#include "tables.h"

namespace tableobj {

bool TablesImpl::equals(const IElement& other) const {
    const ITables* same = sameKind(other);
    return same != nullptr && sameNames(*same) && sameItems(*same);
}

bool TablesImpl::writeXml(IXmlWriter& out) const {
    XmlSink sink(out);
    sink.write(L"<Tables" + nameAttributes(*this) + L">");
    writeItems(sink);
    return sink.write(L"</Tables>").result();
}

}  // namespace tableobj
