#include "commands.h"

#include <iostream>
#include <memory>

#include "compare.h"
#include "load.h"
#include "losses.h"
#include "model.h"
#include "pretty.h"

namespace kazcfg {

using namespace kaz::kazparser;
using kazexception::IKAZException;

namespace {

// Reads and loads `file` with its root directory; a file that cannot be read
// is an error without a place.
Loaded loadFile(const std::string& file, const CommonOptions& common, std::wstring& text) {
    try {
        setRootFor(file, common);
        text = readInput(file);
    } catch (const InputError& error) {
        Loaded failed;
        failed.problems.push_back(errorAt(std::nullopt, error.message));
        return failed;
    }
    return loadConfiguration(text, common.verbose);
}

// The loaded tree of `file`, or null after printing why there is none.
std::unique_ptr<INodeCfg> openFile(const std::string& file, const CommonOptions& common) {
    std::wstring text;
    Loaded loaded = loadFile(file, common, text);
    if (!hasErrors(loaded.problems)) return std::move(loaded.root);
    printProblems(std::cerr, file, loaded.problems);
    return nullptr;
}

Problems checkFile(const std::string& file, const CommonOptions& common, bool strict) {
    std::wstring text;
    Loaded loaded = loadFile(file, common, text);
    Problems problems = std::move(loaded.problems);
    if (!hasErrors(problems) && loaded.root != nullptr) {
        if (loaded.root->getNodeType() == INodeCfg::XNode)
            problems.push_back(
                warningAt(sourceLocation(loaded.root.get()),
                          "<" + utf8(loaded.root->getName()) +
                              "> is no kind of configuration: it is read as generic elements",
                          utf8(loaded.root->getName())));
        for (Problem& loss : lossReport(text, *loaded.root)) problems.push_back(std::move(loss));
    }
    if (strict)
        for (Problem& problem : problems) problem.severity = Severity::Error;
    return problems;
}

std::wstring displayName(const INodeCfg& node) {
    if (const auto* element = dynamic_cast<const IPresentationElementCfg*>(&node))
        return element->getDisplayName() != element->getName() ? element->getDisplayName() : L"";
    if (const auto* group = dynamic_cast<const IPresentationGroupCfg*>(&node))
        return group->getDisplayName() != group->getName() ? group->getDisplayName() : L"";
    if (const auto* use = dynamic_cast<const IUsePresentationElementCfg*>(&node))
        return use->getDisplayLabel() != use->getLabel() ? use->getDisplayLabel() : L"";
    if (const auto* set = dynamic_cast<const IParamSetCfg*>(&node))
        return set->getDisplayName() != set->getParamSetName() ? set->getDisplayName() : L"";
    return L"";
}

void printTree(const INodeCfg& node, std::size_t depth) {
    std::cout << std::string(depth * 2, ' ') << utf8(describeNode(node));
    if (const auto where = sourceLocation(&node))
        std::cout << " @" << where->line << ':' << where->column;
    if (const std::wstring display = displayName(node); !display.empty())
        std::cout << " display=" << quote(display);
    std::cout << '\n';
    for (unsigned i = 0; i < node.getChildCount(); ++i)
        if (const INodeCfg* child = node.getChild(i)) printTree(*child, depth + 1);
}

// The pretty form, unless it would not read back to the same one-line text.
std::wstring prettyOrOneLine(const INodeCfg& root, const std::string& file) {
    const std::wstring pretty = prettyXml(root);
    const Loaded reread = loadConfiguration(pretty, false);
    if (reread.root != nullptr && reread.root->toXml() == root.toXml()) return pretty;
    std::cerr << file
              << ": warning: the indented form would not read back the same; written on one line\n";
    return root.toXml() + L'\n';
}

int writeTree(const INodeCfg& root, const WriteOptions& options) {
    try {
        writeOutput(options.output,
                    options.pretty ? prettyOrOneLine(root, options.file) : root.toXml() + L'\n');
        return 0;
    } catch (const InputError& error) {
        std::cerr << error.file << ": error: " << error.message << '\n';
        return 1;
    }
}

void collectLists(INodeCfg& node, std::vector<IPresentationElementsCfg*>& lists) {
    if (auto* list = dynamic_cast<IPresentationElementsCfg*>(&node)) lists.push_back(list);
    for (unsigned i = 0; i < node.getChildCount(); ++i)
        if (INodeCfg* child = node.getChild(i)) collectLists(*child, lists);
}

// The first file reference of `list` that `message` names, else the list.
std::optional<SourceLocation> placeOfFailure(const IPresentationElementsCfg& list,
                                             const std::wstring& message) {
    for (unsigned i = 0; i < list.getChildCount(); ++i) {
        const auto* file = dynamic_cast<const IUseRefPresentationElementCfg*>(list.getChild(i));
        if (file != nullptr && !file->getRefFileName().empty() &&
            message.find(file->getRefFileName()) != message.npos)
            return sourceLocation(file);
    }
    return sourceLocation(&list);
}

Problems resolveAll(INodeCfg& root) {
    std::vector<IPresentationElementsCfg*> lists;
    collectLists(root, lists);
    Problems problems;
    for (IPresentationElementsCfg* list : lists) {
        try {
            list->resolveReferences();
        } catch (IKAZException* e) {
            const std::wstring message = innermostMessage(*e);
            problems.push_back(errorAt(placeOfFailure(*list, message), utf8(message)));
            e->release();
        }
    }
    return problems;
}

}  // namespace

int runCheck(const CheckOptions& options, const CommonOptions& common) {
    nlohmann::json all = nlohmann::json::array();
    bool anyErrors = false;
    for (const std::string& file : options.files) {
        const Problems problems = checkFile(file, common, options.strict);
        anyErrors = anyErrors || hasErrors(problems);
        if (options.json)
            appendJson(all, file, problems);
        else if (problems.empty())
            std::cout << file << ": OK\n";
        else
            printProblems(std::cout, file, problems);
    }
    if (options.json) std::cout << all.dump(2) << '\n';
    return anyErrors ? 1 : 0;
}

int runTree(const std::string& file, const CommonOptions& common) {
    const std::unique_ptr<INodeCfg> root = openFile(file, common);
    if (root == nullptr) return 1;
    printTree(*root, 0);
    return 0;
}

int runFormat(const WriteOptions& options, const CommonOptions& common) {
    const std::unique_ptr<INodeCfg> root = openFile(options.file, common);
    return root == nullptr ? 1 : writeTree(*root, options);
}

int runResolve(const WriteOptions& options, const CommonOptions& common) {
    const std::unique_ptr<INodeCfg> root = openFile(options.file, common);
    if (root == nullptr) return 1;
    const Problems problems = resolveAll(*root);
    printProblems(std::cerr, options.file, problems);
    return hasErrors(problems) ? 1 : writeTree(*root, options);
}

int runDiff(const std::string& fileA, const std::string& fileB, const CommonOptions& common) {
    const std::unique_ptr<INodeCfg> a = openFile(fileA, common);
    const std::unique_ptr<INodeCfg> b = openFile(fileB, common);
    if (a == nullptr || b == nullptr) return 2;
    const Element modelA = typedModel(*a);
    const Element modelB = typedModel(*b);
    const std::vector<Difference> differences = compare(modelA, modelB);
    for (const Difference& d : differences) {
        std::cout << placeOf(fileA, d.a != nullptr ? d.a->where : std::nullopt)
                  << placeOf(fileB, d.b != nullptr ? d.b->where : std::nullopt)
                  << describe(d, Wording::Diff) << '\n';
    }
    return differences.empty() ? 0 : 1;
}

}  // namespace kazcfg
