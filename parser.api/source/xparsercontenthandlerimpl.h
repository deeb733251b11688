#pragma once

#include "nodestackhandler.h"

namespace kaz::kazparser {

// Builds a tree of generic nodes, one per element, whatever the names.
class XParserContentHandlerImpl final : public NodeStackHandler {
public:
    explicit XParserContentHandlerImpl(INodeCfg* parent) : NodeStackHandler(parent) {}

    long startElement(const wchar_t* uri, int uriLength, const wchar_t* localName,
                      int localNameLength, const wchar_t* qName, int qNameLength,
                      kaz::xml::ISAXAttributes* attributes) override;
    long endElement(const wchar_t* uri, int uriLength, const wchar_t* localName,
                    int localNameLength, const wchar_t* qName, int qNameLength) override;
    long characters(const wchar_t* chars, int length) override;
};

}  // namespace kaz::kazparser
