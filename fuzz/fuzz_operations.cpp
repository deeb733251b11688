// Edits node trees with operations decoded from the input and checks, after
// each, that the objects alive are exactly those the harness owns (its roots
// and all they hold), that nodes handed back are detached and held by no one
// else, and that nothing is left once the roots are deleted. Input: a count n,
// n bytes of operations, then a configuration text whose tree is the first
// root (the sample below when the text builds none).
#include <map>
#include <memory>
#include <set>
#include <type_traits>
#include <utility>
#include <vector>

#include "fuzzsupport.h"

namespace {

using namespace kazfuzz;
using tableobj::IElement;

const std::wstring kSample =
    L"<PresentationGroup name=\"G\"><Features><Halo width=\"0.8\">white</Halo><Shadow/></Features>"
    L"<ExtraValuesConfig><XValue name=\"Owner\"><UseString>City</UseString></XValue>"
    L"<XValue name=\"Id\"><UseLanguageString>IDS_A</UseLanguageString></XValue>"
    L"</ExtraValuesConfig><PresentationElements><UseFixedPresentationElement elemID=\"a\">"
    L"<ExtParams><ExtParam name=\"e\"><UseDouble>1.5</UseDouble></ExtParam></ExtParams>"
    L"<PresentationElement name=\"E\"><InputConfig><UseDataCollector><Roads engineID=\"R\">"
    L"<ParamSets><ParamSet name=\"s\"><Width><UseDouble>2.5</UseDouble></Width>"
    L"<Rule><UseExpression>a &lt; b</UseExpression></Rule><Source><UseEngine><UseTables>"
    L"<Tables><Table name=\"T\"/></Tables></UseTables></UseEngine></Source></ParamSet>"
    L"</ParamSets></Roads><SampleResults name=\"r\"><SampleFixedResult name=\"a\">"
    L"<UseInteger>1</UseInteger></SampleFixedResult><SampleRefResult name=\"b\" refData=\"t\"/>"
    L"</SampleResults></UseDataCollector><UseDataModifiers><Sort/></UseDataModifiers>"
    L"</InputConfig><OutputConfig><UseDataModifiers><Filter/></UseDataModifiers><UsePresenter>"
    L"<SelectTables><Table name=\"T\"/></SelectTables><Label engineID=\"L\"/></UsePresenter>"
    L"</OutputConfig></PresentationElement></UseFixedPresentationElement>"
    L"<UseRefPresentationElement elemID=\"b\" refFileName=\"b.xml\"><ExtParams/>"
    L"</UseRefPresentationElement></PresentationElements></PresentationGroup>";

// One typed child position of a kind: get; set, which deletes the child it
// displaces; replace and release, which hand it back (null where the kind
// has no such operation).
struct Position {
    bool (*is)(const INodeCfg*);
    INodeCfg* (*get)(INodeCfg*);
    void (*set)(INodeCfg*, INodeCfg*);
    INodeCfg* (*replace)(INodeCfg*, INodeCfg*);
    INodeCfg* (*release)(INodeCfg*);
};

template <class Owner, auto Get, auto Set, auto Replace, auto Release>
Position position() {
    using Child = std::remove_pointer_t<decltype((std::declval<Owner&>().*Get)())>;
    Position p{
        [](const INodeCfg* n) { return dynamic_cast<const Owner*>(n) != nullptr; },
        [](INodeCfg* n) -> INodeCfg* { return (dynamic_cast<Owner&>(*n).*Get)(); },
        [](INodeCfg* n, INodeCfg* c) { (dynamic_cast<Owner&>(*n).*Set)(dynamic_cast<Child*>(c)); },
        nullptr, nullptr};
    if constexpr (!std::is_null_pointer_v<decltype(Replace)>)
        p.replace = [](INodeCfg* n, INodeCfg* c) -> INodeCfg* {
            return (dynamic_cast<Owner&>(*n).*Replace)(dynamic_cast<Child*>(c));
        };
    if constexpr (!std::is_null_pointer_v<decltype(Release)>)
        p.release = [](INodeCfg* n) -> INodeCfg* { return (dynamic_cast<Owner&>(*n).*Release)(); };
    return p;
}

#define KAZ_POSITION(Owner, Name)                                                \
    position<Owner, &Owner::get##Name, &Owner::set##Name, &Owner::replace##Name, \
             &Owner::release##Name>()
#define KAZ_POSITION_NO_REPLACE(Owner, Name) \
    position<Owner, &Owner::get##Name, &Owner::set##Name, nullptr, &Owner::release##Name>()

const Position kPositions[] = {
    KAZ_POSITION(IPresentationGroupCfg, Features),
    KAZ_POSITION(IPresentationGroupCfg, ExtraValuesConfig),
    KAZ_POSITION(IPresentationGroupCfg, PresentationElements),
    KAZ_POSITION(IPresentationElementCfg, Features),
    KAZ_POSITION(IPresentationElementCfg, ExtraValuesConfig),
    KAZ_POSITION(IPresentationElementCfg, InputConfig),
    KAZ_POSITION(IPresentationElementCfg, OutputConfig),
    KAZ_POSITION(IPlugInCfg, ParamSets),
    KAZ_POSITION(IUsePresenterCfg, SelectTables),
    KAZ_POSITION(IUsePresenterCfg, UseDataModifiers),
    KAZ_POSITION(IUsePresenterCfg, Presenter),
    KAZ_POSITION(IUseDataCollectorCfg, DataCollector),
    KAZ_POSITION(IUseDataCollectorCfg, SampleResults),
    KAZ_POSITION(IInputConfigCfg, UseTables),
    KAZ_POSITION(IInputConfigCfg, UseDataCollector),
    KAZ_POSITION(IInputConfigCfg, UseDataModifiers),
    KAZ_POSITION(IUseEngineCfg, UseTables),
    KAZ_POSITION(IUseEngineCfg, UseDataCollector),
    KAZ_POSITION(IUseEngineCfg, UseDataModifiers),
    KAZ_POSITION(IOutputConfigCfg, UseDataModifiers),
    KAZ_POSITION(IExtParamCfg, Data),
    KAZ_POSITION_NO_REPLACE(IUseFixedPresentationElementCfg, ExtParams),
    KAZ_POSITION_NO_REPLACE(IUseFixedPresentationElementCfg, PresentationElement),
    KAZ_POSITION_NO_REPLACE(IUseRefPresentationElementCfg, ExtParams),
    position<ISampleFixedResultCfg, &ISampleFixedResultCfg::getData,
             &ISampleFixedResultCfg::setData, nullptr, nullptr>(),
};

// The typed positions of a node: those of the first node of its type met.
const std::vector<const Position*>& positionsOf(const INodeCfg* node) {
    static std::map<INodeCfg::NodeType, std::vector<const Position*>> known;
    const auto [found, added] = known.try_emplace(node->getNodeType());
    if (added)
        for (const Position& p : kPositions)
            if (p.is(node)) found->second.push_back(&p);
    return found->second;
}

// Calls `f` with each node `node` holds: its children and what its typed
// positions hold (which need not be children: a replaced input of an engine
// or an input configuration, say), null entries left out.
template <class F>
void forEachHeld(INodeCfg* node, F&& f) {
    for (unsigned int i = 0; i < node->getChildCount(); ++i)
        if (INodeCfg* child = node->getChild(i)) f(child);
    for (const Position* p : positionsOf(node))
        if (INodeCfg* child = p->get(node)) f(child);
}

// The objects of a typed value, counted as those its deep copy makes.
long valueWeight(const INodeCfg* node) {
    const auto* data = dynamic_cast<const IUseDataCfg*>(node);
    if (data == nullptr || data->getValue() == nullptr) return 0;
    const long before = MemObject::liveCount();
    const std::unique_ptr<IElement> copy(data->getValue()->clone());
    return MemObject::liveCount() - before;
}

struct Input {
    const std::uint8_t* data;
    std::size_t size;
    std::uint8_t next() {
        if (size == 0) return 0;
        --size;
        return *data++;
    }
};

class Harness {
public:
    Harness(long live, INodeCfg* first) : live_(live) {
        if (first != nullptr) roots_.push_back(first);
    }
    ~Harness() {
        for (INodeCfg* root : roots_) delete root;
    }

    void step(Input& in);

private:
    static constexpr std::size_t kMostRoots = 12, kMostNodes = 200;

    // Every node the roots hold, each once, in pre-order.
    std::vector<INodeCfg*> nodes() const {
        std::vector<INodeCfg*> all;
        std::set<const INodeCfg*> seen;
        for (INodeCfg* root : roots_) collect(root, all, seen);
        return all;
    }
    static void collect(INodeCfg* node, std::vector<INodeCfg*>& all,
                        std::set<const INodeCfg*>& seen) {
        if (!seen.insert(node).second) return;
        all.push_back(node);
        forEachHeld(node, [&](INodeCfg* child) { collect(child, all, seen); });
    }
    static bool holds(INodeCfg* root, const INodeCfg* node) {
        std::vector<INodeCfg*> all;
        std::set<const INodeCfg*> seen;
        collect(root, all, seen);
        return seen.contains(node);
    }

    // A node the roots hold that is a `T`, or null when there is none.
    template <class T = INodeCfg>
    T* pick(std::uint8_t choice) const {
        std::vector<T*> found;
        for (INodeCfg* node : nodes_)
            if (auto* typed = dynamic_cast<T*>(node)) found.push_back(typed);
        return found.empty() ? nullptr : found[choice % found.size()];
    }
    // A root to hand to `target`; null when the one chosen holds `target`.
    INodeCfg* give(const INodeCfg* target, std::uint8_t choice) const {
        INodeCfg* item = roots_[choice % roots_.size()];
        return holds(item, target) ? nullptr : item;
    }
    void takeBack(INodeCfg* node) {
        if (node != nullptr) handedBack_.push_back(node);
    }

    void editNode(std::uint8_t op, INodeCfg& node, Input& in);
    void editCollection(Input& in);
    void editPosition(Input& in);
    void editStages(Input& in);
    void editValue(Input& in);
    void erase(Input& in);
    void settle();
    static long weigh(INodeCfg* node, std::set<const INodeCfg*>& seen);
    void checkCounts();

    const long live_;  // before the first root was made
    std::vector<INodeCfg*> roots_;
    std::vector<INodeCfg*> nodes_;       // what the roots held when the step began
    std::vector<INodeCfg*> handedBack_;  // by the operation being run
};

void Harness::step(Input& in) {
    const std::uint8_t op = in.next() % 10;
    if (roots_.empty() && op != 0) return;
    nodes_ = nodes();
    if (op == 0) {
        if (roots_.size() < kMostRoots)
            roots_.push_back(kKinds[in.next() % kKinds.size()].create(nullptr, nullptr));
    } else if (op == 1) {
        const std::size_t index = in.next() % roots_.size();
        delete roots_[index];
        roots_.erase(roots_.begin() + static_cast<std::ptrdiff_t>(index));
    } else if (op <= 5) {
        editNode(op, *pick(in.next()), in);
    } else if (op == 6) {
        editCollection(in);
    } else if (op == 7) {
        editPosition(in);
    } else if (op == 8) {
        editStages(in);
    } else {
        if (in.next() % 2 == 0)
            editValue(in);
        else
            erase(in);
    }
    settle();
    checkCounts();
}

// clone, write, deleteChildren or setChild.
void Harness::editNode(std::uint8_t op, INodeCfg& node, Input& in) {
    if (op == 2) {
        if (roots_.size() >= kMostRoots || nodes_.size() >= kMostNodes) return;
        INodeCfg* copy = node.clone();
        copy->setParent(nullptr);
        roots_.push_back(copy);
        check(copy->toXml() == node.toXml(), "a copy writes what its source writes");
    } else if (op == 3) {
        std::wstring streamed;
        tableobj::StringXmlWriter out(streamed);
        node.writeXml(out);
        check(streamed == node.toXml(), "writeXml writes what toXml answers");
    } else if (op == 4) {
        node.deleteChildren();
    } else {
        INodeCfg* item = give(&node, in.next());
        // A fixed sample entry's setChild lets go of the data node it
        // displaces: the caller's to delete.
        auto* entry = dynamic_cast<ISampleFixedResultCfg*>(&node);
        INodeCfg* displaced = entry != nullptr ? entry->getData() : nullptr;
        if (attempt([&] { node.setChild(item); }) && entry != nullptr &&
            displaced != entry->getData())
            takeBack(displaced);
    }
}

// append, insert, replace or remove on a collection; an index may be one
// past the end.
void Harness::editCollection(Input& in) {
    auto* list = pick<INodeCfgCollection>(in.next());
    if (list == nullptr) return;
    const std::uint8_t how = in.next() % 4;
    const unsigned int index = in.next() % (list->getCount() + 1);
    INodeCfg* item = give(list, in.next());
    attempt([&] {
        switch (how) {
            case 0:
                list->append(item);
                break;
            case 1:
                list->insert(item, index);
                break;
            case 2:
                takeBack(list->replace(item, index));
                break;
            case 3:
                takeBack(list->remove(index));
                break;
        }
    });
}

// set, replace or release at one typed position of a node.
void Harness::editPosition(Input& in) {
    std::vector<std::pair<INodeCfg*, const Position*>> found;
    for (INodeCfg* node : nodes_)
        for (const Position* p : positionsOf(node)) found.emplace_back(node, p);
    if (found.empty()) return;
    const auto [node, p] = found[in.next() % found.size()];
    const std::uint8_t how = in.next() % 3;
    INodeCfg* item = give(node, in.next());
    attempt([&, node = node, p = p] {
        if (how == 0 || (how == 1 && p->replace == nullptr) || (how == 2 && p->release == nullptr))
            p->set(node, item);
        else if (how == 1)
            takeBack(p->replace(node, item));
        else
            takeBack(p->release(node));
    });
}

// The presenter stages of an output configuration.
void Harness::editStages(Input& in) {
    auto* output = pick<IOutputConfigCfg>(in.next());
    if (output == nullptr) return;
    const std::uint8_t how = in.next() % 5;
    const unsigned int index = in.next() % (output->getUsePresenterCount() + 1);
    auto* stage = dynamic_cast<IUsePresenterCfg*>(give(output, in.next()));
    attempt([&] {
        switch (how) {
            case 0:
                output->appendUsePresenter(stage);
                break;
            case 1:
                output->insertUsePresenter(stage, index);
                break;
            case 2:
                output->setUsePresenter(stage, index);
                break;
            case 3:
                takeBack(output->replaceUsePresenter(stage, index));
                break;
            case 4:
                takeBack(output->removeUsePresenter(index));
                break;
        }
    });
}

// The value of a typed value node; values handed back are deleted.
void Harness::editValue(Input& in) {
    auto* data = pick<IUseDataCfg>(in.next());
    if (data == nullptr) return;
    const std::uint8_t how = in.next() % 6;
    attempt([&] {
        switch (how) {
            case 0:
                delete data->releaseValue();
                break;
            case 1:
                if (const IElement* value = data->getValue()) {
                    std::unique_ptr<IElement> copy(value->clone());
                    delete data->replaceValue(copy.get());
                    copy.release();
                }
                break;
            case 2:
                data->setValue(nullptr);
                break;
            case 3:
                data->setDouble(in.next() / 4.0);
                break;
            case 4:
                data->setString(L"a & b <c>");
                break;
            case 5:
                data->setBool(true);
                break;
        }
    });
}

// The operations of parameter sets and their lists that delete an item.
void Harness::erase(Input& in) {
    auto* list = pick<INodeCfgCollection>(in.next());
    if (list == nullptr) return;
    const bool replace = in.next() % 2 == 1;
    const unsigned int index = in.next() % (list->getCount() + 1);
    INodeCfg* item = give(list, in.next());
    attempt([&] {
        if (auto* set = dynamic_cast<IParamSetCfg*>(list); set != nullptr && replace)
            set->replaceParam(dynamic_cast<IParamCfg*>(item), index);
        else if (set != nullptr)
            set->erase(index);
        else if (auto* sets = dynamic_cast<IParamSetsCfg*>(list); sets != nullptr && replace)
            sets->replaceParamSet(dynamic_cast<IParamSetCfg*>(item), index);
        else if (sets != nullptr)
            sets->erase(index);
    });
}

// Roots that the operation took are no longer the harness's; nodes it handed
// back are detached, held by no one, and become roots.
void Harness::settle() {
    std::set<const INodeCfg*> held;
    for (INodeCfg* root : roots_)
        forEachHeld(root, [&](INodeCfg* child) {
            std::vector<INodeCfg*> all;
            collect(child, all, held);
        });
    std::erase_if(roots_, [&](INodeCfg* root) { return held.contains(root); });
    for (INodeCfg* node : handedBack_) {
        check(node->getParent() == nullptr, "a node handed back is detached");
        check(!held.contains(node), "a node handed back is held by no one");
        roots_.push_back(node);
    }
    handedBack_.clear();
}

long Harness::weigh(INodeCfg* node, std::set<const INodeCfg*>& seen) {
    if (!seen.insert(node).second) return 0;
    long weight = 1 + valueWeight(node);
    forEachHeld(node, [&](INodeCfg* child) { weight += weigh(child, seen); });
    return weight;
}

void Harness::checkCounts() {
    std::set<const INodeCfg*> seen;
    long owned = 0;
    for (INodeCfg* root : roots_) owned += weigh(root, seen);
    check(MemObject::liveCount() == live_ + owned, "the objects alive are those the harness owns");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const long live = liveAtStart();
    const std::size_t count = std::min<std::size_t>(data[0], size - 1);
    Input ops{data + 1, count};
    const std::wstring text = textOf(data + 1 + count, size - 1 - count);
    {
        INodeCfg* first = nullptr;
        attempt([&] { first = KAZConfigFactory::createNodeCfg(&text, nullptr); });
        attempt([&] {
            if (first == nullptr) first = KAZConfigFactory::createNodeCfg(&kSample, nullptr);
        });
        Harness harness(live, first);
        while (ops.size > 0) harness.step(ops);
    }
    check(MemObject::liveCount() == live, "nothing is left once the roots are deleted");
    return 0;
}
