#include "losses.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

#include "compare.h"
#include "input.h"
#include "markup.h"
#include "model.h"

namespace kazcfg {

using namespace kaz::kazparser;

namespace {

bool readsBack(const INodeCfg& node) {
    return readGeneric(node.toXml()).root != nullptr;
}

// The deepest node, from `node` down, whose own written text does not read.
INodeCfg& deepestUnreadable(INodeCfg& node) {
    for (unsigned i = 0; i < node.getChildCount(); ++i) {
        INodeCfg* child = node.getChild(i);
        if (child != nullptr && !readsBack(*child)) return deepestUnreadable(*child);
    }
    return node;
}

std::wstring tagOf(const std::wstring& written) {
    return written.substr(1, written.find_first_of(L" >") - 1);
}

// Deletes `node`, or the nearest of its ancestors that is an item of a
// list, and answers the place of what it deleted.
std::optional<SourceLocation> takeOut(INodeCfg& node) {
    for (INodeCfg* item = &node; item->getParent() != nullptr; item = item->getParent()) {
        auto* list = dynamic_cast<INodeCfgCollection*>(item->getParent());
        for (unsigned i = 0; list != nullptr && i < list->getCount(); ++i) {
            if (list->getChild(i) == item) {
                const std::optional<SourceLocation> where = sourceLocation(item);
                delete list->remove(i);
                return where;
            }
        }
    }
    return std::nullopt;
}

// What `root` writes, read as generic elements. Each node whose text does not
// read is reported and taken out until the rest reads; null if it never does.
std::unique_ptr<IXNodeCfg> readWritten(INodeCfg& root, Problems& problems,
                                       std::vector<SourceLocation>& takenOut) {
    for (;;) {
        GenericRead written = readGeneric(root.toXml());
        if (written.root != nullptr) return std::move(written.root);
        INodeCfg& culprit = deepestUnreadable(root);
        const std::wstring text = culprit.toXml();
        const std::optional<SourceLocation> where = sourceLocation(&culprit);
        problems.push_back(
            warningAt(where,
                      "<" + utf8(tagOf(text)) + "> will be written as " + quote(text) +
                          ", which does not read back: " + utf8(readGeneric(text).reason),
                      utf8(tagOf(text))));
        const std::optional<SourceLocation> removed = takeOut(culprit);
        if (!removed) return nullptr;
        takenOut.push_back(*removed);
    }
}

bool wasTakenOut(const Difference& d, const std::vector<SourceLocation>& takenOut) {
    if (d.change != Difference::Change::Removed || d.part != Difference::Part::Element)
        return false;
    return d.a->where && std::find(takenOut.begin(), takenOut.end(), *d.a->where) != takenOut.end();
}

Problem lossOf(const Difference& d) {
    const Element& subject = subjectOf(d);
    const Element* placed =
        d.change == Difference::Change::Added && d.part == Difference::Part::Element ? d.a
                                                                                     : &subject;
    return warningAt(placed != nullptr ? placed->where : std::nullopt, describe(d, Wording::Loss),
                     utf8(subject.tag), utf8(d.attribute));
}

}  // namespace

Problems lossReport(const std::wstring& text, INodeCfg& root) {
    Problems problems;
    std::vector<SourceLocation> takenOut;
    const std::unique_ptr<IXNodeCfg> written = readWritten(root, problems, takenOut);
    const GenericRead original = readGeneric(text);
    if (written != nullptr && original.root != nullptr) {
        const Element before = genericModel(*original.root);
        const Element after = genericModel(*written);
        for (const Difference& d : compare(before, after))
            if (!wasTakenOut(d, takenOut)) problems.push_back(lossOf(d));
    }
    for (const PassedOver& markup : commentsAndInstructions(text))
        problems.push_back(warningAt(markup.where, quote(markup.markup) + " will be dropped"));
    sortByPosition(problems);
    return problems;
}

}  // namespace kazcfg
