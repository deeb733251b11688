#pragma once

#include <memory>
#include <string>

#include "kazxml/Export.h"
#include "kazxml/Result.h"

namespace kaz::xml {

// Event interfaces of the SAX reader. Texts are handed over as a pointer and
// a length (not null-terminated) and stay valid only during the call.
// Every operation answers a result code (Result.h).

// The locator handed to putDocumentLocator answers the current position
// during the parse (the position of the error during an error report); it is
// valid until parse() returns.
class KAZXML_API ISAXLocator {
public:
    virtual long getColumnNumber(int* column) = 0;
    virtual long getLineNumber(int* line) = 0;
    virtual long getPublicId(const wchar_t** publicId) = 0;
    virtual long getSystemId(const wchar_t** systemId) = 0;

protected:
    virtual ~ISAXLocator() = default;
};

// The reader's locator answers this too: during startElement, where the
// element's start tag begins, as the line and column of its "<" (both
// counted from 1, the column in characters). E_UNEXPECTED outside
// startElement.
class KAZXML_API IStartTagLocator {
public:
    virtual long getStartTagPosition(int* line, int* column) = 0;

protected:
    virtual ~IStartTagLocator() = default;
};

// The attributes of one element, in document order. Namespace declarations
// (xmlns, xmlns:prefix) are reported as attributes too, before the others.
class KAZXML_API ISAXAttributes {
public:
    virtual long getLength(int* length) = 0;
    virtual long getURI(int index, const wchar_t** uri, int* uriLength) = 0;
    virtual long getLocalName(int index, const wchar_t** localName, int* localNameLength) = 0;
    virtual long getQName(int index, const wchar_t** qName, int* qNameLength) = 0;
    virtual long getName(int index, const wchar_t** uri, int* uriLength, const wchar_t** localName,
                         int* localNameLength, const wchar_t** qName, int* qNameLength) = 0;
    virtual long getIndexFromName(const wchar_t* uri, int uriLength, const wchar_t* localName,
                                  int localNameLength, int* index) = 0;
    virtual long getIndexFromQName(const wchar_t* qName, int qNameLength, int* index) = 0;
    virtual long getType(int index, const wchar_t** type, int* typeLength) = 0;
    virtual long getTypeFromName(const wchar_t* uri, int uriLength, const wchar_t* localName,
                                 int localNameLength, const wchar_t** type, int* typeLength) = 0;
    virtual long getTypeFromQName(const wchar_t* qName, int qNameLength, const wchar_t** type,
                                  int* typeLength) = 0;
    virtual long getValue(int index, const wchar_t** value, int* valueLength) = 0;
    virtual long getValueFromName(const wchar_t* uri, int uriLength, const wchar_t* localName,
                                  int localNameLength, const wchar_t** value, int* valueLength) = 0;
    virtual long getValueFromQName(const wchar_t* qName, int qNameLength, const wchar_t** value,
                                   int* valueLength) = 0;

protected:
    virtual ~ISAXAttributes() = default;
};

// A failure answered by a handler operation stops the parse; parse() then
// answers that code.
class KAZXML_API ISAXContentHandler {
public:
    virtual ~ISAXContentHandler() = default;
    virtual long putDocumentLocator(ISAXLocator* locator) = 0;
    virtual long startDocument() = 0;
    virtual long endDocument() = 0;
    virtual long startPrefixMapping(const wchar_t* prefix, int prefixLength, const wchar_t* uri,
                                    int uriLength) = 0;
    virtual long endPrefixMapping(const wchar_t* prefix, int prefixLength) = 0;
    virtual long startElement(const wchar_t* uri, int uriLength, const wchar_t* localName,
                              int localNameLength, const wchar_t* qName, int qNameLength,
                              ISAXAttributes* attributes) = 0;
    virtual long endElement(const wchar_t* uri, int uriLength, const wchar_t* localName,
                            int localNameLength, const wchar_t* qName, int qNameLength) = 0;
    virtual long characters(const wchar_t* chars, int length) = 0;
    virtual long ignorableWhitespace(const wchar_t* chars, int length) = 0;
    virtual long processingInstruction(const wchar_t* target, int targetLength, const wchar_t* data,
                                       int dataLength) = 0;
    virtual long skippedEntity(const wchar_t* name, int nameLength) = 0;
};

// A content handler that takes every event and does nothing with it.
// Handlers derive from it and override only the events they use.
class KAZXML_API SAXDefaultHandler : public ISAXContentHandler {
public:
    long putDocumentLocator(ISAXLocator*) override { return S_OK; }
    long startDocument() override { return S_OK; }
    long endDocument() override { return S_OK; }
    long startPrefixMapping(const wchar_t*, int, const wchar_t*, int) override { return S_OK; }
    long endPrefixMapping(const wchar_t*, int) override { return S_OK; }
    long startElement(const wchar_t*, int, const wchar_t*, int, const wchar_t*, int,
                      ISAXAttributes*) override {
        return S_OK;
    }
    long endElement(const wchar_t*, int, const wchar_t*, int, const wchar_t*, int) override {
        return S_OK;
    }
    long characters(const wchar_t*, int) override { return S_OK; }
    long ignorableWhitespace(const wchar_t*, int) override { return S_OK; }
    long processingInstruction(const wchar_t*, int, const wchar_t*, int) override { return S_OK; }
    long skippedEntity(const wchar_t*, int) override { return S_OK; }
};

class KAZXML_API ISAXErrorHandler {
public:
    virtual ~ISAXErrorHandler() = default;
    // `message` is null-terminated; `code` is the failure code of the report.
    virtual long error(ISAXLocator* locator, const wchar_t* message, long code) = 0;
    virtual long fatalError(ISAXLocator* locator, const wchar_t* message, long code) = 0;
    virtual long ignorableWarning(ISAXLocator* locator, const wchar_t* message, long code) = 0;
};

class KAZXML_API ISAXXMLReader {
public:
    virtual ~ISAXXMLReader() = default;
    // The handlers are not owned; either may be null.
    virtual long putContentHandler(ISAXContentHandler* handler) = 0;
    virtual long putErrorHandler(ISAXErrorHandler* handler) = 0;
    // Parses XML text held in memory (never a file name or address). The
    // text is parsed as the characters it holds, whatever encoding an XML
    // declaration names. Answers S_OK, or the failure code of the first fatal
    // error (or of the handler operation that failed).
    // An exception thrown by a handler stops the parse and leaves parse()
    // after the reader has cleaned up.
    virtual long parse(const std::wstring& text) = 0;
    // Description of the failure of the last parse ("" after a success).
    virtual const std::wstring& getErrorDescription() const = 0;
};

// The reader over the XML engine. Secure by default: a document type
// declaration is refused as a fatal error, nothing external is ever loaded,
// and elements nested deeper than 256 levels, with more than 1000
// attributes, or with more than 1000 namespace declarations in scope are
// refused: libxml2 spends time on each attribute and each element in
// proportion to these counts.
class KAZXML_API SAXXMLReader final : public ISAXXMLReader {
public:
    static constexpr int kMaxDepth = 256;
    static constexpr int kMaxAttributes = 1000;
    static constexpr int kMaxNamespaces = 1000;

    SAXXMLReader();
    ~SAXXMLReader() override;
    SAXXMLReader(const SAXXMLReader&) = delete;
    SAXXMLReader& operator=(const SAXXMLReader&) = delete;

    long putContentHandler(ISAXContentHandler* handler) override;
    long putErrorHandler(ISAXErrorHandler* handler) override;
    long parse(const std::wstring& text) override;
    const std::wstring& getErrorDescription() const override;

private:
    ISAXContentHandler* contentHandler_ = nullptr;
    ISAXErrorHandler* errorHandler_ = nullptr;
    std::wstring errorDescription_;
};

}  // namespace kaz::xml
