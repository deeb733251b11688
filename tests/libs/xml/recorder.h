#pragma once

#include <functional>
#include <string>
#include <vector>

#include "kazxml/SAX.h"

namespace kaz::xml::test {

// `levels` elements nested inside one another.
inline std::wstring nested(int levels) {
    std::wstring text;
    for (int i = 0; i < levels; ++i) text += L"<e>";
    for (int i = 0; i < levels; ++i) text += L"</e>";
    return text;
}

// Writes every content event as one line of text; character data that
// arrives in pieces is joined into one "text" event.
class ContentRecorder : public ISAXContentHandler {
public:
    std::vector<std::wstring> events;
    int textPieces = 0;
    int locatorCalls = 0;
    ISAXLocator* locator = nullptr;
    // Runs before each recorded event; what it answers is the event's answer.
    std::function<long(const std::wstring& event)> react = [](const std::wstring&) { return S_OK; };
    // Sees the attributes of each start tag.
    std::function<void(ISAXAttributes& attributes)> inspect = [](ISAXAttributes&) {};

    long putDocumentLocator(ISAXLocator* given) override {
        ++locatorCalls;
        locator = given;
        return S_OK;
    }
    long startDocument() override { return record(L"startDocument"); }
    long endDocument() override { return record(L"endDocument"); }
    long startPrefixMapping(const wchar_t* prefix, int prefixLength, const wchar_t* uri,
                            int uriLength) override {
        return record(L"map " + str(prefix, prefixLength) + L"=" + str(uri, uriLength));
    }
    long endPrefixMapping(const wchar_t* prefix, int prefixLength) override {
        return record(L"unmap " + str(prefix, prefixLength));
    }
    long startElement(const wchar_t* uri, int uriLength, const wchar_t* localName,
                      int localNameLength, const wchar_t* qName, int qNameLength,
                      ISAXAttributes* attributes) override {
        std::wstring event = L"start " + str(qName, qNameLength) + L" {" + str(uri, uriLength) +
                             L"}" + str(localName, localNameLength);
        inspect(*attributes);
        int count = 0;
        attributes->getLength(&count);
        for (int i = 0; i < count; ++i) {
            const wchar_t *name, *value;
            int nameLength, valueLength;
            attributes->getQName(i, &name, &nameLength);
            attributes->getValue(i, &value, &valueLength);
            event += L" " + str(name, nameLength) + L"=" + str(value, valueLength);
        }
        return record(event);
    }
    long endElement(const wchar_t*, int, const wchar_t*, int, const wchar_t* qName,
                    int qNameLength) override {
        return record(L"end " + str(qName, qNameLength));
    }
    long characters(const wchar_t* chars, int length) override {
        ++textPieces;
        text_ += str(chars, length);
        return react(L"text");
    }
    long ignorableWhitespace(const wchar_t*, int) override { return record(L"whitespace"); }
    long processingInstruction(const wchar_t* target, int targetLength, const wchar_t* data,
                               int dataLength) override {
        return record(L"pi " + str(target, targetLength) + L" " + str(data, dataLength));
    }
    long skippedEntity(const wchar_t* name, int length) override {
        return record(L"skipped " + str(name, length));
    }

    // The events, with any text still pending.
    const std::vector<std::wstring>& all() {
        flush();
        return events;
    }

private:
    static std::wstring str(const wchar_t* text, int length) { return std::wstring(text, length); }
    void flush() {
        if (!text_.empty()) events.push_back(L"text " + text_);
        text_.clear();
    }
    long record(const std::wstring& event) {
        flush();
        events.push_back(event);
        return react(event);
    }

    std::wstring text_;
};

struct ErrorReport {
    std::wstring kind;
    long code;
    int line;
    int column;
    std::wstring message;
};

// Keeps every report with the position its locator answers.
class ErrorRecorder : public ISAXErrorHandler {
public:
    std::vector<ErrorReport> reports;
    long answer = S_OK;
    std::function<void()> onFatal = [] {};

    long error(ISAXLocator* locator, const wchar_t* message, long code) override {
        return keep(L"error", locator, message, code);
    }
    long fatalError(ISAXLocator* locator, const wchar_t* message, long code) override {
        onFatal();
        return keep(L"fatal", locator, message, code);
    }
    long ignorableWarning(ISAXLocator* locator, const wchar_t* message, long code) override {
        return keep(L"warning", locator, message, code);
    }

private:
    long keep(const wchar_t* kind, ISAXLocator* locator, const wchar_t* message, long code) {
        ErrorReport report{kind, code, 0, 0, message};
        locator->getLineNumber(&report.line);
        locator->getColumnNumber(&report.column);
        reports.push_back(report);
        return answer;
    }
};

}  // namespace kaz::xml::test
