// Hostile and degenerate texts: each ends in a tree or in the defined
// error, frees all it made, and stays within its time (the test's timeout)
// and memory.
#include <string>

#include "environmentadapter/IEnvironmentAdapter.h"
#include "testsupport.h"

namespace {

using namespace kaztest;

std::wstring repeated(std::wstring_view piece, std::size_t times) {
    std::wstring text;
    text.reserve(piece.size() * times);
    for (std::size_t i = 0; i < times; ++i) text += piece;
    return text;
}

std::wstring nested(std::size_t depth) {
    return repeated(L"<a>", depth) + repeated(L"</a>", depth);
}

// A start tag `<ExtParams` with `count` attributes `name`0, `name`1, ...
std::wstring attributes(std::size_t count, const std::wstring& name = L"a",
                        const std::wstring& end = L"/>") {
    std::wstring text = L"<ExtParams";
    for (std::size_t i = 0; i < count; ++i) text += L" " + name + std::to_wstring(i) + L"=\"v\"";
    return text + end;
}

// The value after `label` in the reader's error as shown.
std::wstring field(const std::wstring& shown, const std::wstring& label) {
    const std::size_t at = shown.find(label);
    return at == shown.npos
               ? L"?"
               : shown.substr(at + label.size(), shown.find(L'\n', at) - at - label.size());
}

// What the builder made of a text: the root's written size, or null with
// the reader's error as shown (where and what), or the error it raised.
std::wstring outcome(const std::wstring& text) {
    MessageCapture shown;
    std::wstring result;
    try {
        NodePtr<> root(KAZConfigFactory::createNodeCfg(&text, nullptr));
        result = root == nullptr ? L"null" : std::to_wstring(root->toXml().size()) + L" written";
    } catch (IKAZException* e) {
        result = L"error: " + e->getMessage();
        e->release();
    }
    if (!shown.messages().empty()) {
        std::wstring message = shown.messages().front().second;
        while (!message.empty() && message.back() == L'\n') message.pop_back();
        result += L" at " + field(message, L"Line : ") + L":" + field(message, L"Character : ") +
                  L": " + message.substr(message.rfind(L'\n') + 1);
    }
    return result;
}

struct Hostile {
    const char* name;
    std::wstring (*text)();  // made when the test runs: some are large
    std::wstring expected;

    friend void PrintTo(const Hostile& hostile, std::ostream* out) { *out << hostile.name; }
};

// The root directory is fixed, so that the written size of macros is known.
class HostileTest : public LeakCheckedTest, public ::testing::WithParamInterface<Hostile> {
protected:
    void SetUp() override {
        LeakCheckedTest::SetUp();
        kaz::environmentadapter::IEnvironmentAdapter::getInstance().setRootDirectory(L"/kaz");
    }
    void TearDown() override {
        kaz::environmentadapter::IEnvironmentAdapter::getInstance().resetRootDirectory();
        LeakCheckedTest::TearDown();
    }
};

TEST_P(HostileTest, EndsInATreeOrTheDefinedError) {
    EXPECT_EQ(outcome(GetParam().text()), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, HostileTest,
    ::testing::Values(
        Hostile{"InternalEntityExpansion",
                [] {
                    return std::wstring(
                        L"<!DOCTYPE a [<!ENTITY x \"xxxxxxxxxx\">"
                        L"<!ENTITY y \"&x;&x;&x;&x;&x;&x;&x;&x;&x;&x;\">]><a>&y;</a>");
                },
                L"null at 1:13: document type declarations are not allowed"},
        Hostile{"ExternalEntity",
                [] {
                    return std::wstring(
                        L"<!DOCTYPE a [<!ENTITY e SYSTEM \"/etc/passwd\">]><a>&e;</a>");
                },
                L"null at 1:13: document type declarations are not allowed"},
        Hostile{"UndeclaredEntity", [] { return std::wstring(L"<a>&e;</a>"); },
                L"null at 1:7: Entity 'e' not defined"},
        Hostile{"Nesting100000Deep", [] { return nested(100000); },
                L"null at 1:771: elements nested deeper than 256 levels"},
        Hostile{"TenMegabyteAttribute",
                [] { return L"<ExtParams desc=\"" + std::wstring(10u << 20, L'x') + L"\"/>"; },
                L"null at 1:1: internal error: Huge input lookup"},
        Hostile{"HundredThousandAttributes", [] { return attributes(100000); },
                L"null at 1:1: elements with more than 1000 attributes"},
        Hostile{"HundredThousandNamespacesInScope",
                [] {
                    return attributes(1000, L"xmlns:p", L">") + attributes(1000, L"xmlns:q", L">") +
                           repeated(L"<a/>", 100000);
                },
                L"null at 1:29802: more than 1000 namespace declarations in scope"},
        Hostile{"HundredThousandMacros",
                [] {
                    return L"<PresentationGroup name=\"" +
                           repeated(L"[Kestrelon.RootDirectory]", 100000) + L"\"/>";
                },
                L"400047 written"},
        Hostile{"FiftyMegabytesOfMillionElements",
                [] {
                    return L"<items>" +
                           repeated(L"<item name=\"one small element\" value=\"123456789\"/>",
                                    1000000) +
                           L"</items>";
                },
                L"56000015 written"},
        Hostile{"Nul", [] { return std::wstring(L"<a>x\0y</a>", 10); },
                L"null at 1:5: Char 0x0 out of allowed range"},
        Hostile{"LoneSurrogate", [] { return std::wstring(L"<a>\xD800</a>"); },
                L"null at 1:4: Char 0xD800 out of allowed range"},
        Hostile{"BeyondUnicode", [] { return std::wstring(L"<a>") + wchar_t(0x110000) + L"</a>"; },
                L"null at 1:4: Char 0x110000 out of allowed range"},
        Hostile{"BeyondFourBytes", [] { return std::wstring(L"<a b='") + wchar_t(-1) + L"'/>"; },
                L"null at 1:7: Char 0x1FFFFF out of allowed range"},
        Hostile{"Empty", [] { return std::wstring(); }, L"null"},
        Hostile{"WhitespaceOnly", [] { return std::wstring(L" \r\n\t "); },
                L"null at 1:1: Document is empty"},
        Hostile{"DeclarationOnly", [] { return std::wstring(L"<?xml version=\"1.0\"?>"); },
                L"null at 1:22: Extra content at the end of the document"}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
