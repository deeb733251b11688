#pragma once

#include <string>

#include "kazxml/SAX.h"

namespace kaz::kazparser {

// Passes on to `target` only the events of the first element whose local
// name is `name` and which has no namespace (what "//name" selects), from
// its start tag to its end tag; the rest of the text is still read.
class ElementSelector final : public kaz::xml::ISAXContentHandler {
public:
    ElementSelector(kaz::xml::ISAXContentHandler& target, std::wstring name)
        : target_(target), name_(std::move(name)) {}

    long putDocumentLocator(kaz::xml::ISAXLocator* locator) override {
        return target_.putDocumentLocator(locator);
    }
    long startDocument() override { return target_.startDocument(); }
    long endDocument() override { return target_.endDocument(); }
    long startPrefixMapping(const wchar_t* prefix, int prefixLength, const wchar_t* uri,
                            int uriLength) override {
        return whenInside(&ISAXContentHandler::startPrefixMapping, prefix, prefixLength, uri,
                          uriLength);
    }
    long endPrefixMapping(const wchar_t* prefix, int prefixLength) override {
        return whenInside(&ISAXContentHandler::endPrefixMapping, prefix, prefixLength);
    }
    long startElement(const wchar_t* uri, int uriLength, const wchar_t* localName,
                      int localNameLength, const wchar_t* qName, int qNameLength,
                      kaz::xml::ISAXAttributes* attributes) override;
    long endElement(const wchar_t* uri, int uriLength, const wchar_t* localName,
                    int localNameLength, const wchar_t* qName, int qNameLength) override;
    long characters(const wchar_t* chars, int length) override {
        return whenInside(&ISAXContentHandler::characters, chars, length);
    }
    long ignorableWhitespace(const wchar_t* chars, int length) override {
        return whenInside(&ISAXContentHandler::ignorableWhitespace, chars, length);
    }
    long processingInstruction(const wchar_t* target, int targetLength, const wchar_t* data,
                               int dataLength) override {
        return whenInside(&ISAXContentHandler::processingInstruction, target, targetLength, data,
                          dataLength);
    }
    long skippedEntity(const wchar_t* name, int nameLength) override {
        return whenInside(&ISAXContentHandler::skippedEntity, name, nameLength);
    }

private:
    enum class Stage { Before, Inside, After };
    bool inside() const { return stage_ == Stage::Inside; }
    // Passes the event on inside the selected element; elsewhere it is read past.
    template <class... Params, class... Args>
    long whenInside(long (ISAXContentHandler::*event)(Params...), Args... args) {
        return inside() ? (target_.*event)(args...) : kaz::xml::S_OK;
    }

    kaz::xml::ISAXContentHandler& target_;
    std::wstring name_;
    Stage stage_ = Stage::Before;
    int depth_ = 0;  // open elements inside the selected one, itself included
};

}  // namespace kaz::kazparser
