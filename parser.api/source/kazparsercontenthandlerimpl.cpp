#include "kazparsercontenthandlerimpl.h"

#include <memory>
#include <unordered_map>

#include "characterdata.h"
#include "environmentadapter/IEnvironmentAdapter.h"
#include "xnodecfgimpl.h"

namespace kaz::kazparser {
namespace {

struct Element {
    const std::wstring& name;
    KAZSAXAttributesImpl& attributes;
    INodeCfg* parent;
};

// Makes the node of an element; null when the element makes none.
using NodeMaker = INodeCfg* (*)(const Element&);

INodeCfg* makeXNode(const Element& element) {
    return new XNodeCfgImpl(element.name, &element.attributes, element.parent);
}

// Elements whose name decides their kind. A null maker: the element is
// known but makes no node.
const std::unordered_map<std::wstring, NodeMaker>& kindsByName() {
    static const std::unordered_map<std::wstring, NodeMaker> table{
        {L"PresentationGroup", nullptr},
        {L"InputConfig", nullptr},
        {L"PresentationElements", nullptr},
        {L"XValue", nullptr},
        {L"UseDataCollector", nullptr},
        {L"UseDataModifiers", nullptr},
        {L"UseRefPresentationElement", nullptr},
        {L"UseFixedPresentationElement", nullptr},
        {L"ExtParams", nullptr},
        {L"ExtParam", nullptr},
        {L"PresentationElement", nullptr},
        {L"OutputConfig", nullptr},
        {L"UsePresenter", nullptr},
        {L"ParamSets", nullptr},
        {L"UseXValue", nullptr},
        {L"UseData", nullptr},
        {L"UseExpression", nullptr},
        {L"UseEngine", nullptr},
        {L"UseDouble", nullptr},
        {L"UseString", nullptr},
        {L"UseInteger", nullptr},
        {L"UseBoolean", nullptr},
        {L"UseLanguageString", nullptr},
        {L"UseTables", nullptr},
        {L"UseTable", nullptr},
        {L"UseColumn", nullptr},
        {L"Tables", nullptr},
        {L"Table", nullptr},
        {L"Properties", nullptr},
        {L"Property", nullptr},
        {L"Column", nullptr},
        {L"SelectTables", nullptr},
        {L"Features", nullptr},
        {L"ExtraValuesConfig", nullptr},
        {L"SampleResults", nullptr},
        {L"SampleFixedResult", nullptr},
        {L"SampleRefResult", nullptr},
    };
    return table;
}

// The kind created for the first element when the factory expects one.
NodeMaker makerForExpectedKind(INodeCfg::NodeType) { return nullptr; }

// The kind of an element that its name does not decide, by its parent's kind.
NodeMaker makerForParentKind(INodeCfg::NodeType, const std::wstring&) { return makeXNode; }

bool receivesCharacters(INodeCfg::NodeType kind) {
    return kind == INodeCfg::UseData || kind == INodeCfg::UseExpression ||
           kind == INodeCfg::UseRefData || kind == INodeCfg::SampleRefResult;
}

const std::wstring kRootDirectoryMacro = L"[Kestrelon.RootDirectory]";

}  // namespace

KAZParserContentHandlerImpl::KAZParserContentHandlerImpl(INodeCfg* parent)
    : NodeStackHandler(parent) {}

KAZParserContentHandlerImpl::~KAZParserContentHandlerImpl() { freeRefused(); }

long KAZParserContentHandlerImpl::endDocument() {
    freeRefused();
    return kaz::xml::S_OK;
}

void KAZParserContentHandlerImpl::freeRefused() {
    for (INodeCfg* node : refused_) delete node;
    refused_.clear();
}

void KAZParserContentHandlerImpl::addError(const std::wstring& text) {
    errorText_ += text;
    errorFlag_ = true;
}

void KAZParserContentHandlerImpl::replaceRootDirectory(std::wstring& text) {
    std::size_t position = text.find(kRootDirectoryMacro);
    if (position == std::wstring::npos) return;
    if (!rootDirectory_)
        rootDirectory_ = environmentadapter::IEnvironmentAdapter::getInstance().getRootDirectory();
    for (; position != std::wstring::npos; position = text.find(kRootDirectoryMacro, position)) {
        text.replace(position, kRootDirectoryMacro.size(), *rootDirectory_);
        position += rootDirectory_->size();
    }
}

long KAZParserContentHandlerImpl::startElement(const wchar_t*, int, const wchar_t*, int,
                                               const wchar_t* qName, int qNameLength,
                                               kaz::xml::ISAXAttributes* attributes) {
    KAZSAXAttributesImpl copy(attributes);
    int count = 0;
    copy.getLength(&count);
    for (int i = 0; i < count; ++i) {
        const wchar_t* value = nullptr;
        int length = 0;
        if (kaz::xml::failed(copy.getValue(i, &value, &length))) continue;
        std::wstring text(value, static_cast<std::size_t>(length));
        replaceRootDirectory(text);
        copy.setValue(i, text);
    }
    const std::wstring name(qName, static_cast<std::size_t>(qNameLength));
    madeNode_.push_back(false);
    std::unique_ptr<INodeCfg> node(createNode(name, copy));
    if (node == nullptr) {
        addError(L"\nCan not create <" + name + L">\n");
        return kaz::xml::S_OK;
    }
    push(node.get());
    node.release();
    madeNode_.back() = true;
    return kaz::xml::S_OK;
}

INodeCfg* KAZParserContentHandlerImpl::createNode(const std::wstring& name,
                                                  KAZSAXAttributesImpl& attributes) {
    const Element element{name, attributes, nextParent()};
    const auto& byName = kindsByName();
    if (const auto known = byName.find(name); known != byName.end())
        return known->second != nullptr ? known->second(element) : nullptr;
    if (expectedKind_) {
        const INodeCfg::NodeType kind = *expectedKind_;
        expectedKind_.reset();
        const NodeMaker maker = makerForExpectedKind(kind);
        return maker != nullptr ? maker(element) : nullptr;
    }
    if (element.parent != nullptr)
        return makerForParentKind(element.parent->getNodeType(), name)(element);
    return makeXNode(element);
}

long KAZParserContentHandlerImpl::endElement(const wchar_t*, int, const wchar_t*, int,
                                             const wchar_t* qName, int qNameLength) {
    const bool madeNode = madeNode_.back();
    madeNode_.pop_back();
    if (!madeNode) return kaz::xml::S_OK;
    const std::wstring name(qName, static_cast<std::size_t>(qNameLength));
    INodeCfg* child = pop();
    if (hasOpenElements()) attachToParent(child, name);
    return kaz::xml::S_OK;
}

void KAZParserContentHandlerImpl::attachToParent(INodeCfg* child, const std::wstring& name) {
    INodeCfg* parent = top();
    try {
        if (parent->setChild(child)) return;
        child->setParent(parent);
    } catch (kazexception::IKAZException* e) {
        kazexception::ExceptionGuard guard(e);
        addError(L"\nexception occorred at <" + name + L">\n" + e->getMessage());
    }
    refused_.push_back(child);
}

long KAZParserContentHandlerImpl::characters(const wchar_t* chars, int length) {
    INodeCfg* node = top();
    if (node == nullptr || !receivesCharacters(node->getNodeType())) return kaz::xml::S_OK;
    std::wstring text(chars, static_cast<std::size_t>(length));
    replaceRootDirectory(text);
    if (auto* receiver = dynamic_cast<CharacterDataReceiver*>(node)) receiver->appendCharacters(text);
    return kaz::xml::S_OK;
}

}  // namespace kaz::kazparser
