#include "elementselector.h"

namespace kaz::kazparser {

long ElementSelector::startElement(const wchar_t* uri, int uriLength, const wchar_t* localName,
                                   int localNameLength, const wchar_t* qName, int qNameLength,
                                   kaz::xml::ISAXAttributes* attributes) {
    if (stage_ == Stage::Before && uriLength == 0 &&
        name_.compare(0, name_.npos, localName, static_cast<std::size_t>(localNameLength)) == 0)
        stage_ = Stage::Inside;
    if (!inside()) return kaz::xml::S_OK;
    ++depth_;
    return target_.startElement(uri, uriLength, localName, localNameLength, qName, qNameLength,
                                attributes);
}

long ElementSelector::endElement(const wchar_t* uri, int uriLength, const wchar_t* localName,
                                 int localNameLength, const wchar_t* qName, int qNameLength) {
    if (!inside()) return kaz::xml::S_OK;
    if (--depth_ == 0) stage_ = Stage::After;
    return target_.endElement(uri, uriLength, localName, localNameLength, qName, qNameLength);
}

}  // namespace kaz::kazparser
