#include "load.h"

#include <map>
#include <sstream>
#include <vector>

#include "input.h"
#include "model.h"

namespace kazcfg {

using namespace kaz::kazparser;
using kazexception::IKAZException;

namespace {

// Keeps what the library shows while it lives, instead of printing it.
class ShownMessages {
public:
    ShownMessages()
        : previous_(KAZConfigFactory::setMessageHandler(
              [this](const std::wstring& text, const std::wstring& caption) {
                  messages_.emplace_back(caption, text);
              })) {}
    ~ShownMessages() { KAZConfigFactory::setMessageHandler(previous_); }
    ShownMessages(const ShownMessages&) = delete;
    ShownMessages& operator=(const ShownMessages&) = delete;

    // (caption, text) pairs in the order shown.
    const std::vector<std::pair<std::wstring, std::wstring>>& messages() const { return messages_; }

private:
    std::vector<std::pair<std::wstring, std::wstring>> messages_;
    KAZConfigFactory::MessageHandler previous_;
};

std::vector<std::wstring> linesOf(const std::wstring& text) {
    std::vector<std::wstring> lines;
    std::wistringstream in(text);
    for (std::wstring line; std::getline(in, line);)
        if (!line.empty()) lines.push_back(line);
    return lines;
}

bool startsWith(const std::wstring& text, std::wstring_view prefix) {
    return text.compare(0, prefix.size(), prefix) == 0;
}

unsigned numberAfter(const std::wstring& line, std::wstring_view prefix) {
    return static_cast<unsigned>(std::wcstoul(line.c_str() + prefix.size(), nullptr, 10));
}

// The reader's reports: blocks of "Error : code", "Line : n", "Character : n"
// and the reader's message.
Problems readerProblems(const std::wstring& report, bool verbose) {
    Problems problems;
    std::wstring code;
    SourceLocation where{0, 0};
    for (const std::wstring& line : linesOf(report)) {
        if (startsWith(line, L"Error : ")) {
            code = line.substr(8);
        } else if (startsWith(line, L"Line : ")) {
            where.line = numberAfter(line, L"Line : ");
        } else if (startsWith(line, L"Character : ")) {
            where.column = numberAfter(line, L"Character : ");
        } else {
            Problem problem = errorAt(std::nullopt, utf8(line));
            if (where.line > 0) problem.where = where;
            if (verbose && !code.empty()) problem.message += " (code " + utf8(code) + ")";
            problems.push_back(problem);
            where = {0, 0};
        }
    }
    return problems;
}

// One report of the builder about an element.
struct BuilderItem {
    enum Kind { CannotCreate, Failed, Other } kind;
    std::wstring element;
    std::wstring message;
};

std::wstring elementIn(const std::wstring& line) {
    const auto open = line.find(L'<');
    const auto close = line.find(L'>', open);
    return open == line.npos || close == line.npos ? L"" : line.substr(open + 1, close - open - 1);
}

// The builder's report is the innermost message of the chain:
// "Syntax error at :'" + lines "Can not create <X>", "exception occorred at
// <X>" followed by its message, ... + "'".
std::vector<BuilderItem> builderItems(const IKAZException& chain) {
    std::wstring report = innermostMessage(chain);
    constexpr std::wstring_view kFrame = L"Syntax error at :'";
    if (!startsWith(report, kFrame) || report.back() != L'\'') return {};
    report = report.substr(kFrame.size(), report.size() - kFrame.size() - 1);
    std::vector<BuilderItem> items;
    for (const std::wstring& line : linesOf(report)) {
        if (startsWith(line, L"Can not create "))
            items.push_back({BuilderItem::CannotCreate, elementIn(line), line});
        else if (startsWith(line, L"exception occorred at "))
            items.push_back({BuilderItem::Failed, elementIn(line), L""});
        else if (!items.empty() && items.back().kind == BuilderItem::Failed)
            items.back().message += (items.back().message.empty() ? L"" : L"; ") + line;
        else
            items.push_back({BuilderItem::Other, L"", line});
    }
    return items;
}

std::vector<BuilderItem> builderItemsOf(const std::wstring& text) {
    ShownMessages silenced;
    try {
        delete KAZConfigFactory::createNodeCfg(&text, nullptr);
    } catch (IKAZException* e) {
        std::vector<BuilderItem> items = builderItems(*e);
        e->release();
        return items;
    }
    return {};
}

std::size_t countOf(const std::vector<BuilderItem>& items, BuilderItem::Kind kind,
                    const std::wstring& element) {
    std::size_t count = 0;
    for (const BuilderItem& item : items) count += item.kind == kind && item.element == element;
    return count;
}

void collectNamed(IXNodeCfg& node, const std::wstring& name, std::vector<IXNodeCfg*>& found) {
    if (node.getName() == name) found.push_back(&node);
    for (unsigned i = 0; i < node.getChildCount(); ++i)
        if (auto* child = dynamic_cast<IXNodeCfg*>(node.getChild(i)))
            collectNamed(*child, name, found);
}

// The places of the elements named `element` that the builder reports as
// `kind`. When the text holds more elements of that name than reports, each
// is renamed in turn: those whose renaming takes a report away are the ones.
std::vector<SourceLocation> placesOf(const std::wstring& text, BuilderItem::Kind kind,
                                     const std::wstring& element, std::size_t reports) {
    const std::unique_ptr<IXNodeCfg> generic = readGeneric(text).root;
    if (generic == nullptr) return {};
    std::vector<IXNodeCfg*> named;
    collectNamed(*generic, element, named);
    const bool probe = named.size() != reports;
    const std::size_t baseline =
        probe ? countOf(builderItemsOf(generic->toXml()), kind, element) : 0;
    std::vector<SourceLocation> places;
    for (IXNodeCfg* node : named) {
        if (probe) {
            node->setName(L"kazcfg.probe");
            const std::size_t left = countOf(builderItemsOf(generic->toXml()), kind, element);
            node->setName(element);
            if (left >= baseline) continue;
        }
        if (auto where = sourceLocation(node)) places.push_back(*where);
    }
    return places;
}

// "\t[file] f\n\t[line] n" as "[file] f [line] n".
std::string oneLine(std::wstring text) {
    for (wchar_t& c : text)
        if (c == L'\n' || c == L'\t') c = L' ';
    const auto start = text.find_first_not_of(L' ');
    return start == text.npos ? "" : utf8(text.substr(start));
}

std::string itemMessage(const BuilderItem& item) {
    if (item.kind == BuilderItem::Failed)
        return "error at <" + utf8(item.element) + ">: " + utf8(item.message);
    return utf8(item.message);
}

Problems chainProblems(const IKAZException& chain, const std::wstring& text, bool verbose) {
    Problems problems;
    const std::vector<BuilderItem> items = builderItems(chain);
    std::map<std::pair<BuilderItem::Kind, std::wstring>, std::vector<SourceLocation>> places;
    std::map<std::pair<BuilderItem::Kind, std::wstring>, std::size_t> used;
    for (const BuilderItem& item : items) {
        Problem problem = errorAt(std::nullopt, itemMessage(item), utf8(item.element));
        const auto key = std::make_pair(item.kind, item.element);
        if (item.kind != BuilderItem::Other && !places.contains(key))
            places[key] =
                placesOf(text, item.kind, item.element, countOf(items, item.kind, item.element));
        if (used[key] < places[key].size()) problem.where = places[key][used[key]++];
        problems.push_back(problem);
    }
    if (items.empty() || verbose) {
        for (const IKAZException* level = &chain; level != nullptr;
             level = level->getInnerException()) {
            Problem problem = errorAt(std::nullopt, oneLine(level->getMessage()));
            if (verbose) problem.message += " " + oneLine(level->getContext());
            problems.push_back(problem);
        }
    }
    return problems;
}

}  // namespace

std::wstring innermostMessage(const IKAZException& chain) {
    const IKAZException* innermost = &chain;
    while (innermost->getInnerException() != nullptr) innermost = innermost->getInnerException();
    return innermost->getMessage();
}

Loaded loadConfiguration(const std::wstring& text, bool verbose) {
    Loaded loaded;
    if (text.empty()) {
        loaded.problems.push_back(errorAt(SourceLocation{1, 1}, "no element: the text is empty"));
        return loaded;
    }
    ShownMessages shown;
    try {
        loaded.root.reset(KAZConfigFactory::createNodeCfg(&text, nullptr));
    } catch (IKAZException* e) {
        loaded.problems = chainProblems(*e, text, verbose);
        e->release();
    } catch (const kaz::xml::PlatformError& error) {
        loaded.problems.push_back(errorAt(std::nullopt, utf8(error.message())));
    }
    for (const auto& [caption, message] : shown.messages()) {
        if (caption == L"ErrorMessage") {
            for (Problem& problem : readerProblems(message, verbose))
                loaded.problems.push_back(problem);
        } else if (verbose) {
            loaded.problems.push_back(errorAt(std::nullopt, oneLine(caption + L": " + message)));
        }
    }
    if (loaded.root == nullptr && loaded.problems.empty())
        loaded.problems.push_back(errorAt(std::nullopt, "no configuration could be read"));
    return loaded;
}

}  // namespace kazcfg
